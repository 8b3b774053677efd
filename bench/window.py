"""window.py PROGRAM, in a session of its own: start to the first window on the screen and resident memory after a minute, of the
program with a full stored history and of another Qt program that shows pictures. Prints JSON.
"""
import json
import pathlib
import shutil
import subprocess
import sys
import time
import uuid

from session_tools import HOME, fresh, resident, windows

MINUTE = 60  # seconds
STARTS = 3


def store_history():
    """Twelve entries, all that is kept, with copies to show."""
    copy = HOME / "copy.png"
    subprocess.run(["convert", "-size", "1200x900", "plasma:fractal", copy], check=True)
    entries = []
    for number in range(12):
        name = f"IMG_{number}"
        shutil.copy(copy, HOME / f"{name}.png")
        entries.append({"id": str(uuid.uuid4()).upper(), "sourceName": f"{name}.HEIC", "outputName": f"{name}.png",
                        "status": "ready", "createdAt": 7.9e8 + number, "sourceURL": (HOME / f"{name}.HEIC").as_uri(),
                        "outputURL": (HOME / f"{name}.png").as_uri()})
    history = json.dumps(entries).replace('"', '\\"')
    fresh(f'[General]\nhasSeenSignatureWelcome=true\nrecentItems="@ByteArray({history})"\n')


def start(command, window_class):
    """The started process and the seconds until its window was on the screen."""
    begun = time.perf_counter()
    process = subprocess.Popen(command, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
    while not windows(window_class, "--class"):
        if process.poll() is not None or time.perf_counter() - begun > MINUTE:
            sys.exit(f"{command[0]} shows no window")
    return process, time.perf_counter() - begun


def end(process):
    process.terminate()
    process.wait()


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
