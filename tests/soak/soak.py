"""soak.py PROGRAM [THEME ...]: what goes wrong on real machines, done on purpose and often; in a session of its own, as root.

For each theme it prints a line for docs/reliability.md: what was tried, how often, what was lost, and what the program held before and
after. Ends with an error when a photo was harmed, a copy was not whole or something was left behind. Randomness has a fixed seed.
"""

import hashlib
import os
import pathlib
import random
import shutil
import subprocess
import sys
import time

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parent.parent / "e2e"))
import support
from support import COPIES, DOWNLOADS, HOME, SETTINGS, Application, entry, photo, wait_until

support.PATIENCE = 900
PROGRAM = pathlib.Path(sys.argv[1]).resolve()
CHANCE = random.Random(20260314)


def digest(path):
    return hashlib.sha256(path.read_bytes()).hexdigest()


def is_whole(copy):
    return subprocess.run(["pngcheck", "-q", copy], capture_output=True).returncode == 0


def left_behind():
    """Workers that outlived the program, and files that are neither photo nor copy."""
    workers = subprocess.run(["pgrep", "-f", "lumaport-imageworker"], capture_output=True, text=True).stdout.split()
    return workers + [str(path) for path in DOWNLOADS.rglob(".*")]


def nothing_left():
    """The kernel ends the workers of a program that is gone, in its own time."""
    wait_until(lambda: not left_behind(), "the end of the last worker")


def fresh():
    for folder in (DOWNLOADS, SETTINGS.parent):
        shutil.rmtree(folder, ignore_errors=True)
    DOWNLOADS.mkdir()
    SETTINGS.parent.mkdir(parents=True)
    SETTINGS.write_text("[General]\nhasSeenSignatureWelcome=true\n", encoding="utf-8")


def held(application):
    """Descriptors, threads and resident megabytes of the program."""
    process = pathlib.Path(f"/proc/{application.process.pid}")
    memory = next(line for line in (process / "status").read_text().splitlines() if line.startswith("VmRSS"))
    return f"{len(list((process / 'fd').iterdir()))} fd, {len(list((process / 'task').iterdir()))} threads, " \
           f"{int(memory.split()[1]) // 1024} MB"


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


def kills():
    source = made("large.HEIC", 2000, 1500)
    whole = digest(source)
    copies = 0
    for _ in range(100):
        fresh()
        with Application(PROGRAM) as application:
            for index in range(4):
                land(source, f"IMG_{index}.HEIC")
            time.sleep(CHANCE.uniform(1.1, 2.6))
            application.kill()
        nothing_left()
        found = list(COPIES.glob("*")) if COPIES.exists() else []
        assert all(is_whole(copy) for copy in found), found
        assert all(digest(original) == whole for original in DOWNLOADS.glob("*.HEIC"))
        copies += len(found)
    report("kill -9 at a random moment of a burst of 4", 100, f"nothing; {copies} copies were there, all whole; no worker, no part left")


def full_disk():
    source = made("large.HEIC", 2000, 1500)
    needed = source.stat().st_size // 1024
    ready = failed = 0
    sizes = [needed + 8 + step * 4 for step in range(24)] + [needed + 4000]
    for size in sizes:
        fresh()
        subprocess.run(["mount", "-t", "tmpfs", "-o", f"size={size}k", "tmpfs", DOWNLOADS], check=True)
        try:
            with Application(PROGRAM):
                land(source, "IMG_1.HEIC")
                done = wait_until(lambda: entry("IMG_1.HEIC"), "the end of the conversion")
            nothing_left()
            assert digest(DOWNLOADS / "IMG_1.HEIC") == digest(source)
            found = list(COPIES.glob("*")) if COPIES.exists() else []
            assert all(is_whole(copy) for copy in found) and bool(found) == (done["status"] == "ready"), (done, found)
            ready += done["status"] == "ready"
            failed += done["status"] == "failed"
        finally:
            subprocess.run(["umount", DOWNLOADS], check=True)
    report("disk full, from a free page to enough room", len(sizes), f"nothing; {failed} failed with the sentence and left nothing, {ready} fitted")


def folders():
    source = made("small.HEIC")
    rounds = 10
    for _ in range(rounds):
        fresh()
        with Application(PROGRAM) as application:
            land(source, "IMG_1.HEIC")
            wait_until(lambda: entry("IMG_1.HEIC"), "the first")
            shutil.rmtree(DOWNLOADS)
            DOWNLOADS.mkdir()
            subprocess.run(["mount", "-t", "tmpfs", "tmpfs", DOWNLOADS], check=True)
            time.sleep(1)
            subprocess.run(["umount", DOWNLOADS], check=True)
            assert application.process.poll() is None
        with Application(PROGRAM):
            land(source, "IMG_2.HEIC")
            assert wait_until(lambda: entry("IMG_2.HEIC"), "the one after")["status"] == "ready"
    report("folder deleted, made again, mounted over, unmounted; program started again", rounds, "nothing; it went on")


def writers():
    source = made("large.HEIC", 2000, 1500)
    content = source.read_bytes()
    rounds = 5
    for _ in range(rounds):
        fresh()
        with Application(PROGRAM):
            with open(DOWNLOADS / "slow.HEIC", "wb") as slow:
                for start in range(0, len(content), len(content) // 8 + 1):
                    slow.write(content[start:start + len(content) // 8 + 1])
                    slow.flush()
                    time.sleep(0.4)
            (DOWNLOADS / "arriving.part").write_bytes(content)
            (DOWNLOADS / "arriving.part").rename(DOWNLOADS / "renamed.HEIC")
            land(source, "future.HEIC")
            os.utime(DOWNLOADS / "future.HEIC", (4e9, 4e9))
            land(source, "past.HEIC")
            os.utime(DOWNLOADS / "past.HEIC", (0, 0))
            for name in ("slow", "renamed", "future", "past"):
                wait_until(lambda: (done := entry(f"{name}.HEIC")) and done["status"] == "ready", name)
            os.utime(land(made("other.HEIC"), "renamed.HEIC"))  # another photo under a name that is known
            wait_until(lambda: (COPIES / "renamed 2.png").exists(), "the copy of what replaced it")
        nothing_left()
    assert all(is_whole(copy) for copy in COPIES.glob("*.png"))
    report("written in pieces over 3 s, renamed into place, dated 2096 and 1970, replaced in place", rounds * 5, "nothing; each became a whole copy")


def burst():
    count = 2000
    source = made("small.HEIC")
    fresh()
    with Application(PROGRAM) as application:
        land(source, "first.HEIC")
        wait_until(lambda: entry("first.HEIC"), "the first")
        before = held(application)
        start = time.monotonic()
        for number in range(count):
            land(source, f"IMG_{number:04}.HEIC")
        wait_until(lambda: len(list(COPIES.glob("*.png"))) == count + 1, "the last of the burst")
        seconds = time.monotonic() - start
        wait_until(lambda: not application.workers(), "the end of the last worker")
        after = held(application)
    nothing_left()
    assert all(is_whole(copy) for copy in COPIES.glob("*.png"))
    report(f"{count} photos at once", 1, f"nothing; all converted, {seconds:.0f} s", before, after)


def hostile():
    seeds = [made("small.HEIC"), made("large.HEIC", 700, 500)]
    samples = pathlib.Path(os.environ.get("LUMAPORT_SAMPLE_PHOTOS", "/nowhere"))
    seeds += [path for path in samples.rglob("*.hei*") if path.stat().st_size < 300_000]
    count = 1000
    fresh()
    with Application(PROGRAM) as application:
        land(seeds[0], "first.HEIC")
        wait_until(lambda: entry("first.HEIC"), "the first")
        before = held(application)
        for number in range(count):
            content = bytearray(CHANCE.choice(seeds).read_bytes())
            for _ in range(CHANCE.randint(1, 12)):  # most of it where the structure is described
                content[CHANCE.randrange(min(len(content), 1500))] = CHANCE.randrange(256)
            if CHANCE.random() < 0.2:
                del content[CHANCE.randrange(len(content)):]
            (HOME / "hostile").write_bytes(content)
            land(HOME / "hostile", f"bad_{number:04}.HEIC")
        land(seeds[0], "zz_last.HEIC")  # names are taken in their order
        assert wait_until(lambda: entry("zz_last.HEIC"), "the last")["status"] == "ready"
        wait_until(lambda: not application.workers(), "the end of the last worker")
        copies = len(list(COPIES.glob("bad_*.png")))
        after = held(application)
    nothing_left()
    assert all(is_whole(copy) for copy in COPIES.glob("*.png"))
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
        land(source, "first.HEIC")
        assert wait_until(lambda: entry("first.HEIC"), "the first")["status"] == "ready"
        for other in (None, "/bin/true", "/bin/cat") * 5:
            worker.unlink()
            if other:
                shutil.copy(other, worker)
            for process in application.worker_programs():
                subprocess.run(["kill", "-9", process], check=False)
            land(source, f"IMG_{tried}.HEIC")
            done = wait_until(lambda: entry(f"IMG_{tried}.HEIC"), "the end of one without a worker")
            assert done["status"] == "failed", done
            worker.unlink(missing_ok=True)
            worker.write_bytes(good)
            worker.chmod(0o755)
            land(source, f"good_{tried}.HEIC")
            assert wait_until(lambda: entry(f"good_{tried}.HEIC"), "the next")["status"] == "ready"
            tried += 1
    nothing_left()
    report("worker program killed and missing, or another in its place", tried, "nothing; the sentence, and the photo after its return converts")


def bus():
    source = made("small.HEIC")
    fresh()
    with Application(PROGRAM) as application:
        land(source, "before.HEIC")
        wait_until(lambda: entry("before.HEIC"), "the one before")
        subprocess.run(["pkill", "-f", "dbus-daemon --session --fork"], check=True)
        for number in range(5):
            land(source, f"IMG_{number}.HEIC")
            assert wait_until(lambda: entry(f"IMG_{number}.HEIC"), "one without a bus")["status"] == "ready"
        assert application.process.poll() is None
    report("the message bus goes away", 1, "nothing; photos go on being converted, without notifications")


THEMES = [kills, full_disk, folders, writers, burst, hostile, worker_program, bus]

if __name__ == "__main__":
    wanted = sys.argv[2:] or [theme.__name__ for theme in THEMES]
    for theme in THEMES:
        if theme.__name__ in wanted:
            theme()
