"""window.py PROGRAM, in a session of its own: start to the first window on the screen and resident memory after a minute, of the
program with a full stored history and of another Qt program that shows pictures. Prints JSON.
"""
import json
import pathlib
import re
import shutil
import subprocess
import sys
import time
import uuid

HOME = pathlib.Path.home()
MINUTE = 60  # seconds
STARTS = 3


def store_history():
    """Twelve entries, all that is kept, with copies to show."""
    copy = HOME / "copy.png"
    subprocess.run(["convert", "-size", "1200x900", "plasma:fractal", copy], check=True)
    entries = []
    for number in range(12):
        shutil.copy(copy, HOME / f"IMG_{number}.png")
        entries.append({"id": str(uuid.uuid4()).upper(), "sourceName": f"IMG_{number}.HEIC", "outputName": f"IMG_{number}.png",
                        "status": "ready", "createdAt": 7.9e8 + number, "sourceURL": (HOME / f"IMG_{number}.HEIC").as_uri(),
                        "outputURL": (HOME / f"IMG_{number}.png").as_uri()})
    settings = HOME / ".config/lumaport/lumaport.conf"
    settings.parent.mkdir(parents=True)
    history = json.dumps(entries).replace('"', '\\"')
    settings.write_text(f'[General]\nhasSeenSignatureWelcome=true\nrecentItems="@ByteArray({history})"\n', encoding="utf-8")


def start(command, window_class):
    """The started process and the seconds until its window was on the screen."""
    begun = time.perf_counter()
    process = subprocess.Popen(command, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
    while subprocess.run(["xdotool", "search", "--onlyvisible", "--class", window_class], capture_output=True).returncode != 0:
        if process.poll() is not None or time.perf_counter() - begun > MINUTE:
            sys.exit(f"{command[0]} shows no window")
    return process, time.perf_counter() - begun


def end(process):
    process.terminate()
    process.wait()


def resident(process):
    """Megabytes."""
    status = pathlib.Path(f"/proc/{process.pid}/status").read_text()
    return int(re.search(r"VmRSS:\s+(\d+)", status).group(1)) / 1e3


def main():
    store_history()
    programs = {"lumaport": [sys.argv[1]], "qimgv": ["qimgv", HOME / "IMG_0.png"]}
    starts = {name: [] for name in programs}
    for _ in range(STARTS):
        for name, command in programs.items():
            process, seconds = start(command, name)
            starts[name].append(seconds)
            end(process)
    running = {name: start(command, name)[0] for name, command in programs.items()}
    time.sleep(MINUTE)
    print(json.dumps({name: {"start": sorted(starts[name])[STARTS // 2], "memory": resident(process)}
                      for name, process in running.items()}))
    for process in running.values():
        end(process)


if __name__ == "__main__":
    main()
