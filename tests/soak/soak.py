"""soak.py PROGRAM [THEME ...]: faults of real machines, caused on purpose and often; in a session of its own, as root.

For each theme it prints a line for docs/reliability.md: what was tried, how often, what was lost, and what the program held before and
after. Ends with an error when a photo was harmed, a copy was not whole or something was left behind. Randomness has a fixed seed.
"""

import os
import pathlib
import random
import shutil
import subprocess
import sys
import time

import session_tools
from session_tools import COPIES, DOWNLOADS, HOME, Application, ended, entry, fresh, photo, ready, resident, run, wait_until

session_tools.PATIENCE = 900
PROGRAM = pathlib.Path(sys.argv[1]).resolve()
CHANCE = random.Random(20260314)


def left_behind():
    """Workers that outlived the program, and files that are neither photo nor copy."""
    return run("pgrep", "-f", f"({PROGRAM.parent}|{HOME}/installed)/lumaport-imageworker").split() + list(DOWNLOADS.rglob(".*"))


def whole_copies():
    """All copies, which must be whole, with nothing else left; the kernel ends the workers of a program that is gone in its own time."""
    wait_until(lambda: not left_behind(), "the end of the last worker")
    copies = list(COPIES.glob("*"))
    for copy in copies:
        subprocess.run(["pngcheck", "-q", copy], capture_output=True, check=True)
    return copies


def held(application):
    """Descriptors, threads and resident megabytes of the program."""
    process = pathlib.Path(f"/proc/{application.process.pid}")
    counts = (len(list((process / folder).iterdir())) for folder in ("fd", "task"))
    return "{} descriptors, {} threads, {:.0f} MB".format(*counts, resident(application.process))


def report(what, times, result, before="", after=""):
    print(f"| {what} | {times} | {result} | {before} | {after} |", flush=True)


def made(name, width=64, height=48):
    folder = HOME / "made"
    folder.mkdir(exist_ok=True)
    return photo(folder, name, width, height)


def land(source, name):
    """Moves a copy of `source` into the watched folder whole."""
    part = HOME / "landing"
    shutil.copy(source, part)
    return shutil.move(part, DOWNLOADS / name)


def convert(source, name):
    """Lands a copy of `source`, which has to be converted."""
    land(source, name)
    ready(name)


def kills():
    source = made("large.HEIC", 2000, 1500)
    whole = source.read_bytes()
    copies = 0
    for _ in range(100):
        fresh()
        with Application(PROGRAM) as application:
            for index in range(4):
                land(source, f"IMG_{index}.HEIC")
            time.sleep(CHANCE.uniform(1.1, 2.6))
            application.kill()
        copies += len(whole_copies())
        assert all(original.read_bytes() == whole for original in DOWNLOADS.glob("*.HEIC"))
    report("kill -9 at a random moment of a burst of 4", 100, f"nothing; {copies} copies were there, all whole; no worker, no part left")


def full_disk():
    source = made("large.HEIC", 2000, 1500)
    needed = source.stat().st_size // 1024
    fitted = 0
    sizes = [needed + 8 + step * 4 for step in range(24)] + [needed + 4000]
    for size in sizes:
        fresh()
        subprocess.run(["mount", "-t", "tmpfs", "-o", f"size={size}k", "tmpfs", DOWNLOADS], check=True)
        try:
            with Application(PROGRAM):
                land(source, "IMG_1.HEIC")
                done = ended("IMG_1.HEIC")
            assert (DOWNLOADS / "IMG_1.HEIC").read_bytes() == source.read_bytes()
            copies = len(whole_copies())
            assert copies == (done["status"] == "ready"), done
            fitted += copies
        finally:
            subprocess.run(["umount", DOWNLOADS], check=True)
    report("disk full, from a free page to enough room", len(sizes), f"nothing; {len(sizes) - fitted} failed with the sentence and left nothing, {fitted} fitted")


def folders():
    source = made("small.HEIC")
    rounds = 10
    for _ in range(rounds):
        fresh()
        with Application(PROGRAM) as application:
            convert(source, "IMG_1.HEIC")
            shutil.rmtree(DOWNLOADS)
            DOWNLOADS.mkdir()
            subprocess.run(["mount", "-t", "tmpfs", "tmpfs", DOWNLOADS], check=True)
            time.sleep(1)
            subprocess.run(["umount", DOWNLOADS], check=True)
            time.sleep(12)  # it is looked for every ten seconds
            convert(source, "IMG_2.HEIC")
            assert application.process.poll() is None
    report("folder deleted, made again, mounted over, unmounted", rounds, "nothing; the next photo was converted")


def writers():
    source = made("large.HEIC", 2000, 1500)
    piece = source.stat().st_size // 8 + 1
    rounds = 5
    for _ in range(rounds):
        fresh()
        with Application(PROGRAM):
            with open(source, "rb") as whole, open(DOWNLOADS / "slow.HEIC", "wb", buffering=0) as slow:
                while slow.write(whole.read(piece)):
                    time.sleep(0.4)
            shutil.copy(source, DOWNLOADS / "arriving.part").rename(DOWNLOADS / "renamed.HEIC")
            os.utime(land(source, "future.HEIC"), (4e9, 4e9))
            os.utime(land(source, "past.HEIC"), (0, 0))
            for name in ("slow.HEIC", "renamed.HEIC", "future.HEIC", "past.HEIC"):
                wait_until(lambda: (done := entry(name)) and done["status"] == "ready", name)
            os.utime(land(made("other.HEIC"), "renamed.HEIC"))  # another photo under a name that is known
            wait_until(lambda: (COPIES / "renamed 2.png").exists(), "the copy of what replaced it")
        whole_copies()
    report("written in pieces over 3 s, renamed into place, dated 2096 and 1970, replaced in place", rounds * 5, "nothing; each became a whole copy")


def burst():
    count = 2000
    source = made("small.HEIC")
    fresh()
    with Application(PROGRAM) as application:
        convert(source, "first.HEIC")
        before = held(application)
        start = time.monotonic()
        for number in range(count):
            land(source, f"IMG_{number:04}.HEIC")
        wait_until(lambda: len(list(COPIES.glob("*.png"))) == count + 1, "the last of the burst")
        seconds = time.monotonic() - start
        wait_until(lambda: not application.workers(), "the end of the last worker")
        after = held(application)
    whole_copies()
    report(f"{count} photos at once", 1, f"nothing; all converted, {seconds:.0f} s", before, after)


def hostile():
    seeds = [made("small.HEIC"), made("large.HEIC", 700, 500)]
    samples = pathlib.Path(os.environ.get("LUMAPORT_SAMPLE_PHOTOS", "/nowhere"))
    seeds += [path for path in samples.rglob("*.hei*") if path.stat().st_size < 300_000]
    count = 1000
    fresh()
    with Application(PROGRAM) as application:
        convert(seeds[0], "first.HEIC")
        before = held(application)
        for number in range(count):
            content = bytearray(CHANCE.choice(seeds).read_bytes())
            for _ in range(CHANCE.randint(1, 12)):  # most of it where the structure is described
                content[CHANCE.randrange(min(len(content), 1500))] = CHANCE.randrange(256)
            if CHANCE.random() < 0.2:
                del content[CHANCE.randrange(len(content)):]
            (HOME / "hostile").write_bytes(content)
            land(HOME / "hostile", f"bad_{number:04}.HEIC")
        convert(seeds[0], "zz_last.HEIC")  # names are taken in their order
        wait_until(lambda: not application.workers(), "the end of the last worker")
        copies = len(list(COPIES.glob("bad_*.png")))
        after = held(application)
    whole_copies()
    report("files with bytes of their structure changed, a fifth of them cut", count,
           f"nothing; {copies} still gave a whole picture, the others the sentence", before, after)


def worker_program():
    """The worker program missing, or another in its place."""
    folder = HOME / "installed"
    shutil.rmtree(folder, ignore_errors=True)
    folder.mkdir()
    for name in ("lumaport", "lumaport-imageworker"):
        shutil.copy(PROGRAM.parent / name, folder)
    worker = folder / "lumaport-imageworker"
    good = worker.read_bytes()
    source = made("small.HEIC")
    fresh()
    tried = 0
    with Application(folder / "lumaport") as application:
        convert(source, "first.HEIC")
        for other in (None, "/bin/true", "/bin/cat") * 5:
            worker.unlink()
            if other:
                shutil.copy(other, worker)
            run("kill", "-9", *application.worker_programs())
            land(source, f"IMG_{tried}.HEIC")
            assert ended(f"IMG_{tried}.HEIC")["status"] == "failed"
            worker.unlink(missing_ok=True)
            worker.write_bytes(good)
            worker.chmod(0o755)
            convert(source, f"good_{tried}.HEIC")
            tried += 1
    whole_copies()
    report("worker program killed and missing, or another in its place", tried, "nothing; the sentence, and the photo after its return converts")


def bus():
    source = made("small.HEIC")
    fresh()
    with Application(PROGRAM) as application:
        convert(source, "before.HEIC")
        daemon = run("dbus-send", "--session", "--print-reply", "--dest=org.freedesktop.DBus", "/",
                     "org.freedesktop.DBus.GetConnectionUnixProcessID", "string:org.freedesktop.DBus").split()[-1]
        subprocess.run(["kill", daemon], check=True)
        for number in range(5):
            convert(source, f"IMG_{number}.HEIC")
        assert application.process.poll() is None
    report("the message bus goes away", 1, "nothing; photos go on being converted, without notifications")


THEMES = [kills, full_disk, folders, writers, burst, hostile, worker_program, bus]

if __name__ == "__main__":
    wanted = sys.argv[2:] or [theme.__name__ for theme in THEMES]
    for theme in THEMES:
        if theme.__name__ in wanted:
            theme()
