"""What the walks share: the program, photos made on the spot, and what the desktop around it saw."""

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

import dbus
import dbus.service
from dbus.mainloop.glib import DBusGMainLoop
from gi.repository import GLib

PATIENCE = 60  # seconds; what comes at all comes far sooner, also under sanitizers

HOME = pathlib.Path.home()
DOWNLOADS = HOME / "Downloads"
COPIES = DOWNLOADS / "Lumaport"
SETTINGS = HOME / ".config/lumaport/lumaport.conf"


def wait_until(condition, what):
    """Waits for a truthy answer and gives it back."""
    limit = time.monotonic() + PATIENCE
    while True:
        answer = condition()
        if answer:
            return answer
        if time.monotonic() > limit:
            raise AssertionError(f"{what} did not come within {PATIENCE} s")
        time.sleep(0.02)


def run(*command):
    """What a command prints, whatever it ends with."""
    return subprocess.run(command, capture_output=True, text=True, check=False).stdout


def windows(name):
    """The visible windows whose title fits."""
    return run("xdotool", "search", "--onlyvisible", "--name", name).split()


def client_area(window):
    """x, y, width and height of the window without its decoration."""
    told = run("xwininfo", "-id", window)  # xdotool counts the decoration twice
    return tuple(int(re.search(rf"{name}: +(-?\d+)", told).group(1)) for name in
                 ("Absolute upper-left X", "Absolute upper-left Y", "Width", "Height"))


def picture(path, width=64, height=48):
    """A PNG whose left half is red and whose right half is blue."""

    def chunk(kind, data):
        return struct.pack(">I", len(data)) + kind + data + struct.pack(">I", zlib.crc32(kind + data))

    row = b"\0" + b"\xe0\x20\x20" * (width // 2) + b"\x20\x20\xe0" * (width - width // 2)
    header = struct.pack(">IIBBBBB", width, height, 8, 2, 0, 0, 0)
    path.write_bytes(
        b"\x89PNG\r\n\x1a\n" + chunk(b"IHDR", header) + chunk(b"IDAT", zlib.compress(row * height)) + chunk(b"IEND", b"")
    )


def photo(folder, name, width=64, height=48):
    """A HEIC photo, written elsewhere and moved into `folder` whole."""
    with tempfile.TemporaryDirectory(dir=HOME) as making:
        making = pathlib.Path(making)
        picture(making / "made.png", width, height)
        subprocess.run(["heif-enc", "-q", "90", making / "made.png", "-o", making / "made.heic"],
                       check=True, capture_output=True)
        shutil.copy(making / "made.heic", folder / ".arriving")  # the folder may be another file system
    return (folder / ".arriving").rename(folder / name)


def history():
    """The history as the program stores it, newest first."""
    try:
        text = SETTINGS.read_text(encoding="utf-8", errors="replace")
    except FileNotFoundError:
        return []
    found = re.search(r'^recentItems="?@ByteArray\((.*)\)"?$', text, re.MULTILINE)
    if not found:
        return []
    stored = found.group(1).encode("latin-1", "replace").decode("unicode_escape")  # as the settings file escapes bytes
    return json.loads(stored.encode("latin-1").decode("utf-8"))


def entry(name):
    """The newest history entry of a source file, once it is ready or failed."""
    for item in history():
        if item["sourceName"] == name:
            return item if item["status"] in ("ready", "failed") else None
    return None


def stored(name):
    """A plain value of the settings, as it stands in their file; None without one."""
    text = SETTINGS.read_text(encoding="utf-8") if SETTINGS.exists() else ""
    found = re.search(rf"^{name}=(.*)$", text, re.MULTILINE)
    return found and found.group(1).strip('"')


def everything_in(folder):
    return sorted(str(path.relative_to(folder)) for path in folder.rglob("*"))


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
        """Ends it as the kernel does when memory runs out."""
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

    @staticmethod
    def windows():
        return windows("^Lumaport")

    def worker_programs(self):
        """Process numbers of the running worker programs: the conversions' and the previews'."""
        found = subprocess.run(["pgrep", "-P", str(self.process.pid)], capture_output=True, text=True)
        return found.stdout.split()

    def workers(self):
        """Process numbers of the workers that these have raised, those that have ended but were not reaped included."""
        programs = self.worker_programs()
        if not programs:
            return []
        found = subprocess.run(["pgrep", "-P", ",".join(programs)], capture_output=True, text=True)
        return found.stdout.split()


class FileManager(dbus.service.Object):
    """Owns the file manager's name and keeps what it was asked to show."""

    def __init__(self, bus):
        super().__init__(bus, "/org/freedesktop/FileManager1")
        self.kept_name = dbus.service.BusName("org.freedesktop.FileManager1", bus)
        self.shown = []

    @dbus.service.method("org.freedesktop.FileManager1", in_signature="ass")
    def ShowItems(self, uris, _startup):
        self.shown.extend(str(uri) for uri in uris)


class Desktop:
    """A message bus served in the background; use it in a with statement."""

    def __enter__(self):
        DBusGMainLoop(set_as_default=True)
        self.bus = dbus.SessionBus()
        self.file_manager = FileManager(self.bus)
        self.loop = GLib.MainLoop()
        self.thread = threading.Thread(target=self.loop.run, daemon=True)
        self.thread.start()
        return self

    def __exit__(self, *_):
        self.loop.quit()
        self.thread.join()


class Dunst:
    """A real notification service that shows each notification by itself; use it in a with statement."""

    def __enter__(self):
        settings = HOME / "dunstrc"
        settings.write_text("[global]\nstack_duplicates = false\nmonitor = 0\n", encoding="utf-8")
        self.process = subprocess.Popen(["dunst", "-config", settings], stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        wait_until(lambda: subprocess.run(["dunstctl", "count"], capture_output=True).returncode == 0, "dunst")
        return self

    def __exit__(self, *_):
        self.process.terminate()
        self.process.wait(timeout=PATIENCE)

    @staticmethod
    def displayed():
        found = subprocess.run(["dunstctl", "count", "displayed"], capture_output=True, text=True)
        return int(found.stdout or 0)

    @staticmethod
    def click():
        """Clicks the newest notification itself, not one of its buttons."""
        subprocess.run(["dunstctl", "action", "0"], check=True)
