"""Tools to run the real program in a desktop session: the program itself, generated photos, other programs of the desktop."""

import json
import os
import pathlib
import re
import shutil
import signal
import struct
import subprocess
import tempfile
import threading
import time
import zlib

PATIENCE = 60  # seconds; what happens at all happens far sooner, also under sanitizers

HOME = pathlib.Path.home()
DOWNLOADS = HOME / "Downloads"
COPIES = DOWNLOADS / "Lumaport"
SETTINGS = HOME / ".config/lumaport/lumaport.conf"


def fresh(settings="[General]\nhasSeenSignatureWelcome=true\n"):
    """Empties the watched folder and replaces the settings."""
    for folder in (DOWNLOADS, SETTINGS.parent):
        shutil.rmtree(folder, ignore_errors=True)
        folder.mkdir(parents=True)
    SETTINGS.write_text(settings, encoding="utf-8")


def wait_until(condition, what):
    """Waits until the condition is true and returns its value."""
    limit = time.monotonic() + PATIENCE
    while not (answer := condition()):
        if time.monotonic() > limit:
            raise AssertionError(f"{what} did not come within {PATIENCE} s")
        time.sleep(0.02)
    return answer


def run(*command):
    """The output of a command, whatever its exit status."""
    return subprocess.run(command, capture_output=True, text=True, check=False).stdout


def windows(pattern, by="--name"):
    """The visible windows whose title matches; `by` names another property to search."""
    return run("xdotool", "search", "--onlyvisible", by, pattern).split()


def key(keys, window=None):
    """Types on the keyboard, into the window if one is given."""
    focus = ("windowfocus", "--sync", window) if window else ()
    run("xdotool", *focus, "key", keys)


def move(x, y, *further):
    """Moves the pointer, and passes `further` on: "click", "1" clicks there."""
    run("xdotool", "mousemove", str(x), str(y), *further)


def client_area(window):
    """x, y, width and height of the window without its decoration."""
    told = run("xwininfo", "-id", window)  # xdotool counts the decoration twice
    return tuple(int(re.search(rf"{name}: +(-?\d+)", told).group(1)) for name in
                 ("Absolute upper-left X", "Absolute upper-left Y", "Width", "Height"))


def picture(path, width, height):
    """A sky over a sea, as PNG."""

    def chunk(kind, data):
        return struct.pack(">I", len(data)) + kind + data + struct.pack(">I", zlib.crc32(kind + data))

    rows = b"".join(b"\0" + bytes((255 - 180 * y // height, 190 - 90 * y // height, 150 + 100 * y // height)) * width
                    for y in range(height))
    header = struct.pack(">IIBBBBB", width, height, 8, 2, 0, 0, 0)
    path.write_bytes(
        b"\x89PNG\r\n\x1a\n" + chunk(b"IHDR", header) + chunk(b"IDAT", zlib.compress(rows)) + chunk(b"IEND", b"")
    )


def photo(folder, name, width=64, height=48):
    """Generates a HEIC photo and moves it into `folder` when it is complete."""
    with tempfile.TemporaryDirectory(dir=HOME) as making:
        making = pathlib.Path(making)
        picture(making / "made.png", width, height)
        subprocess.run(["heif-enc", "-q", "90", making / "made.png", "-o", making / "made.heic"],
                       check=True, capture_output=True)
        shutil.copy(making / "made.heic", folder / ".arriving")  # the folder may be another file system
    return (folder / ".arriving").rename(folder / name)


def stored(name):
    """The value in the settings file; None when it is missing."""
    text = SETTINGS.read_text(encoding="utf-8", errors="replace") if SETTINGS.exists() else ""
    found = re.search(rf"^{name}=(.*)$", text, re.MULTILINE)
    return found and found.group(1).strip('"')


def wait_stored(name, value):
    wait_until(lambda: stored(name) == value, f"{name}={value}")


def history():
    """The history as the program stores it, newest first."""
    found = re.fullmatch(r"@ByteArray\((.*)\)", stored("recentItems") or "")
    if not found:
        return []
    text = found.group(1).encode("latin-1", "replace").decode("unicode_escape")  # as the settings file escapes bytes
    return json.loads(text.encode("latin-1").decode("utf-8"))


def entry(name):
    """The newest history entry of a source file, once it is ready or failed."""
    newest = next((item for item in history() if item["sourceName"] == name), None)
    return newest if newest and newest["status"] in ("ready", "failed") else None


def ended(name):
    """Waits for that entry."""
    return wait_until(lambda: entry(name), f"the end of {name}")


def ready(name):
    """Waits for that entry, which must be ready."""
    done = ended(name)
    assert done["status"] == "ready", done
    return done


def everything_in(folder):
    return sorted(str(path.relative_to(folder)) for path in folder.rglob("*"))


def resident(process):
    """Resident memory of the process in megabytes."""
    status = pathlib.Path(f"/proc/{process.pid}/status").read_text(encoding="utf-8")
    return int(re.search(r"VmRSS:\s+(\d+)", status).group(1)) / 1e3


class Application:
    """The started program, which has to end well and print nothing; use it in a with statement."""

    def __init__(self, *command, **environment):
        self.command = command
        self.environment = {**os.environ, **environment}
        self.process = None
        self.end = 0  # what it has to end with
        self.printed = []

    def __enter__(self):
        self.process = subprocess.Popen(self.command, env=self.environment, stdout=subprocess.PIPE,
                                        stderr=subprocess.STDOUT, text=True)
        self.reader = threading.Thread(target=self.listen, daemon=True)
        self.reader.start()
        wait_until(lambda: self.windows() or self.process.poll() is not None, "the window")
        return self

    def __exit__(self, kind, *_):
        if self.process.poll() is None:
            self.process.terminate()
        status = self.process.wait(timeout=PATIENCE)
        self.reader.join(timeout=PATIENCE)
        self.process.stdout.close()
        if kind is None and (status, self.printed) != (self.end, []):
            raise AssertionError(f"ended with {status} and printed:\n{''.join(self.printed)}")

    def kill(self):
        """Kills it, as the kernel does when memory runs out."""
        self.end = -signal.SIGKILL
        self.process.kill()
        self.process.wait(timeout=PATIENCE)

    def listen(self):
        for line in self.process.stdout:
            if not self.is_expected(line):
                self.printed.append(line)

    def is_expected(self, _line):
        """Whether the program was asked to print this."""
        return False

    def start_again(self, *arguments):
        """Starts the program once more, which hands over to this process and exits."""
        again = subprocess.run([*self.command, *arguments], capture_output=True, text=True, timeout=PATIENCE, cwd=HOME)
        assert (again.returncode, again.stdout + again.stderr) == (0, ""), again

    @staticmethod
    def windows():
        return windows("^Lumaport")

    def worker_programs(self):
        """Process numbers of the running worker programs: the conversions' and the previews'."""
        return run("pgrep", "-P", str(self.process.pid)).split()

    def workers(self):
        """Process numbers of their workers, those that have ended but were not reaped included."""
        programs = self.worker_programs()
        return run("pgrep", "-P", ",".join(programs)).split() if programs else []


class Program:
    """Another program of the desktop, ended with a with statement."""

    def __init__(self, *command, ready):
        self.command = command
        self.ready = ready

    def __enter__(self):
        self.process = subprocess.Popen(self.command, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        wait_until(self.ready, self.command[0])
        return self

    def __exit__(self, *_):
        self.process.terminate()
        self.process.wait(timeout=PATIENCE)


class Dunst(Program):
    """A real notification service that shows each notification by itself."""

    def __init__(self):
        settings = HOME / "dunstrc"
        settings.write_text("[global]\nstack_duplicates = false\nmonitor = 0\n", encoding="utf-8")
        super().__init__("dunst", "-config", settings, ready=lambda: run("dunstctl", "count"))

    @staticmethod
    def displayed():
        return int(run("dunstctl", "count", "displayed") or 0)
