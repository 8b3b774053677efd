"""Arrivals of photos, and the faults that may happen on the way."""

import os
import pathlib
import shutil
import subprocess
import sys
import unittest

from session_tools import (COPIES, DOWNLOADS, HOME, Application, Program, ended, everything_in, fresh, history, key, photo, ready, run,
                           wait_stored, wait_until)

PROGRAM = sys.argv.pop()
UNREADABLE = "The image could not be opened. It may still be transferring."
UNWRITABLE = "The converted image could not be written."


def size_of(path):
    """Width and height by an independent reader, which also reads every pixel."""
    return subprocess.check_output(["identify", "-format", "%w %h %[pixel:p{5,5}]", path], text=True).split()[:2]


def is_watched(application, folder):
    """Whether the kernel reports this folder's changes to the program."""
    watch = f"inotify wd:1 ino:{folder.stat().st_ino:x} "
    return any(watch in path.read_text() for path in pathlib.Path(f"/proc/{application.process.pid}/fdinfo").iterdir())


class ArrivalWalk(unittest.TestCase):
    def setUp(self):
        fresh()

    def test_a_photo_lands_whatever_the_settings_and_is_remembered(self):
        fresh("\ufffd[[[=\nconversionSettings=@ByteArray(\nrecentItems=7\nisWatching=maybe\n")
        photo(DOWNLOADS, "before.heic")
        with Application(PROGRAM):
            photo(DOWNLOADS, "IMG 1.HEIC")
            self.assertEqual(ended("IMG 1.HEIC")["outputName"], "IMG 1.png")
            self.assertEqual(size_of(COPIES / "IMG 1.png"), ["64", "48"])
        kept = history()
        self.assertEqual(everything_in(DOWNLOADS), ["IMG 1.HEIC", "Lumaport", "Lumaport/IMG 1.png", "before.heic"])
        with Application(PROGRAM):
            photo(DOWNLOADS, "second.heic")
            ended("second.heic")
            self.assertEqual(history()[1:], kept)

    def test_what_is_no_photo_gets_a_sentence_and_leaves_nothing(self):
        with Application(PROGRAM) as application:
            whole = photo(HOME, "whole.heic", 640, 480).read_bytes()
            bad = {"empty.heic": b"", "text.heic": b"hello", "cut.heic": whole[:-10], "half.heic": whole[: len(whole) // 2]}
            for name, content in bad.items():
                (DOWNLOADS / name).write_bytes(content)
            os.mkfifo(DOWNLOADS / "pipe.heic")
            (DOWNLOADS / "folder.heic").mkdir()
            for name in bad:
                self.assertEqual(ended(name).get("errorMessage"), UNREADABLE, name)
            self.assertEqual(everything_in(DOWNLOADS), sorted([*bad, "pipe.heic", "folder.heic"]))
            wait_until(lambda: len(application.workers()) <= 1, "the end of the workers")  # one may stand ready

    @unittest.skipUnless(os.geteuid() == 0, "mounting a small file system takes root")
    def test_a_full_disk(self):
        subprocess.run(["mount", "-t", "tmpfs", "-o", "size=1m", "small", DOWNLOADS], check=True)
        try:
            with Application(PROGRAM):
                source = photo(DOWNLOADS, "big.heic", 2000, 1500)
                before = source.read_bytes()
                run("dd", "if=/dev/zero", f"of={DOWNLOADS / 'filler'}")  # while the photo settles
                self.assertEqual(ended("big.heic").get("errorMessage"), UNWRITABLE)
                self.assertEqual(source.read_bytes(), before)
                (DOWNLOADS / "filler").unlink()
                photo(DOWNLOADS, "next.heic")
                ready("next.heic")
                self.assertEqual(everything_in(DOWNLOADS), ["Lumaport", "Lumaport/next.png", "big.heic", "next.heic"])
        finally:
            subprocess.run(["umount", DOWNLOADS], check=True)

    def test_a_stalled_transfer_and_a_folder_that_goes_and_comes_back(self):
        with Application(PROGRAM) as application:
            whole = photo(HOME, "whole.heic", 640, 480).read_bytes()
            with open(DOWNLOADS / "stalled.heic", "wb", buffering=0) as stalled:
                stalled.write(whole[: len(whole) // 2])
                for name in ["first.heic", "second.heic"]:  # each settles after the stalled one could have
                    photo(DOWNLOADS, name)
                    ready(name)
                stalled.write(whole[len(whole) // 2 :])
            ready("stalled.heic")
            self.assertEqual([item["sourceName"] for item in history()], ["stalled.heic", "second.heic", "first.heic"])
            shutil.rmtree(DOWNLOADS)
            DOWNLOADS.mkdir()
            photo(DOWNLOADS, "known.heic")
            # Until the folder has been found again, photos count as those that it came back with.
            wait_until(lambda: is_watched(application, DOWNLOADS), "the watch on the new folder")
            photo(DOWNLOADS, "new.heic")
            ready("new.heic")
            self.assertEqual(history()[1]["sourceName"], "stalled.heic")

    @unittest.skipUnless(os.access("/dev/fuse", os.W_OK), "serving a folder takes FUSE")
    def test_a_served_folder_that_fails_and_hangs(self):
        served = HOME / "served"
        served.mkdir()
        photo(served, "old.heic")
        server = pathlib.Path(__file__).with_name("served_folder.py")
        with (Program("/usr/bin/python3", server, served, DOWNLOADS, HOME, ready=lambda: os.path.ismount(DOWNLOADS)),
              Application(PROGRAM)):
            for fault, met in (("fail", "failed"), ("hang", "hung")):
                photo(served, f"before {fault}.heic")
                ready(f"before {fault}.heic")
                (HOME / fault).touch()
                wait_until((HOME / met).exists, "the look at the folder")
                for isWatching in ("false", "true"):  # the window answers
                    key("ctrl+shift+p")
                    wait_stored("isWatching", isWatching)
                (HOME / fault).unlink()
            photo(served, "last.heic")
            ready("last.heic")
            self.assertEqual([item["sourceName"] for item in history()], ["last.heic", "before hang.heic", "before fail.heic"])

    def test_being_killed_leaves_no_part_and_the_next_start_works(self):
        with Application(PROGRAM) as application:
            for index in range(12):
                photo(DOWNLOADS, f"{index}.heic", 1600, 1200)
            wait_until(lambda: COPIES.exists() and any(COPIES.iterdir()), "the first copy")
            application.kill()
        for copy in COPIES.iterdir():
            self.assertEqual(size_of(copy), ["1600", "1200"], copy)
        self.assertEqual([path for path in everything_in(DOWNLOADS) if pathlib.Path(path).name.startswith(".")], [])
        with Application(PROGRAM):
            photo(DOWNLOADS, "after.heic")
            ready("after.heic")


if __name__ == "__main__":
    unittest.main()
