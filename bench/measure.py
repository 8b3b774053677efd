"""Runs commands in turns and measures them as whole processes."""
import os
import statistics
import subprocess
import time


def measure(command, folder):
    """Wall and processor seconds, peak memory in MB and the size in MB of what is in `folder` then; None when it fails."""
    for old in folder.iterdir():
        old.unlink()
    start = time.perf_counter()
    process = subprocess.Popen(command, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
    _, status, usage = os.wait4(process.pid, 0)
    wall = time.perf_counter() - start
    process.returncode = os.waitstatus_to_exitcode(status)
    if process.returncode != 0:
        return None
    size = sum(file.stat().st_size for file in folder.iterdir()) / 1e6
    return {"wall": wall, "cpu": usage.ru_utime + usage.ru_stime, "memory": usage.ru_maxrss / 1e3, "size": size}


def medians_of_rounds(commands, rounds, folder):
    """The median of each figure of each of the named commands, which take turns."""
    samples = {name: [] for name in commands}
    for _ in range(rounds):
        for name, command in commands.items():
            samples[name].append(measure(command, folder))
    return {name: None if None in measured else
            {key: statistics.median(one[key] for one in measured) for key in measured[0]}
            for name, measured in samples.items()}
