"""What a person meets when photos arrive, and what may go wrong on the way."""

import os
import pathlib
import subprocess
import sys
import unittest

import support
from support import COPIES, DOWNLOADS, SETTINGS, Application, Desktop, Dunst, entry, everything_in, history, photo, wait_until

PROGRAM = sys.argv.pop()
UNREADABLE = "The image could not be opened. It may still be transferring."
UNWRITABLE = "The converted image could not be written."


def size_of(path):
    """Width and height by an independent reader, which also reads every pixel."""
    found = subprocess.run(["identify", "-format", "%w %h %[pixel:p{5,5}]", path], check=True, capture_output=True, text=True)
    return found.stdout


def ended(name):
    return wait_until(lambda: entry(name), f"the end of {name}")


class ArrivalWalk(unittest.TestCase):
    def setUp(self):
        subprocess.run(["rm", "-rf", DOWNLOADS, SETTINGS], check=True)
        DOWNLOADS.mkdir()

    def test_a_photo_lands_is_announced_and_shown_on_a_click(self):
        photo(DOWNLOADS, "before.heic")
        with Desktop() as desktop, Dunst() as dunst:
            with Application(PROGRAM) as application:
                photo(DOWNLOADS, "IMG 1.HEIC")
                self.assertEqual(ended("IMG 1.HEIC")["outputName"], "IMG 1.png")
                self.assertTrue(size_of(COPIES / "IMG 1.png").startswith("64 48 "))
                wait_until(lambda: dunst.displayed() == 1, "the notification")
                dunst.click()
                wait_until(lambda: desktop.file_manager.shown, "the file manager's call")
                self.assertEqual(desktop.file_manager.shown, [(COPIES / "IMG 1.png").as_uri()])

                second = subprocess.run([PROGRAM], timeout=support.PATIENCE, capture_output=True, text=True)
                self.assertEqual((second.returncode, second.stdout + second.stderr), (0, ""))
                self.assertEqual(len(application.windows()), 1)
            kept = history()
        self.assertEqual(everything_in(DOWNLOADS), ["IMG 1.HEIC", "Lumaport", "Lumaport/IMG 1.png", "before.heic"])
        with Application(PROGRAM):
            photo(DOWNLOADS, "second.heic")
            ended("second.heic")
            self.assertEqual(history()[1:], kept)

    def test_what_is_no_photo_gets_a_sentence_and_leaves_nothing(self):
        with Application(PROGRAM) as application:
            whole = photo(support.HOME, "whole.heic", 640, 480).read_bytes()
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
    def test_a_full_disk_and_a_folder_that_takes_nothing(self):
        subprocess.run(["mount", "-t", "tmpfs", "-o", "size=1m", "small", DOWNLOADS], check=True)
        try:
            (DOWNLOADS / "filler").write_bytes(b"x" * 900_000)
            with Application(PROGRAM):
                source = photo(DOWNLOADS, "big.heic", 2000, 1500)
                before = source.read_bytes()
                # The picture compresses well; what is left of the disk is taken while the photo settles.
                fill(DOWNLOADS / "filler2")
                self.assertEqual(ended("big.heic").get("errorMessage"), UNWRITABLE)
                self.assertEqual(source.read_bytes(), before)
                (DOWNLOADS / "filler").unlink()
                (DOWNLOADS / "filler2").unlink()
                photo(DOWNLOADS, "next.heic")
                self.assertEqual(ended("next.heic")["status"], "ready")
                self.assertEqual(everything_in(DOWNLOADS), ["Lumaport", "Lumaport/next.png", "big.heic", "next.heic"])
                subprocess.run(["mount", "-o", "remount,ro", DOWNLOADS], check=True)
                subprocess.run(["mount", "-o", "remount,rw", DOWNLOADS], check=True)
        finally:
            subprocess.run(["umount", DOWNLOADS], check=True)

    def test_being_killed_leaves_no_part_and_the_next_start_works(self):
        with Application(PROGRAM) as application:
            for index in range(12):
                photo(DOWNLOADS, f"{index}.heic", 1600, 1200)
            wait_until(lambda: COPIES.exists() and any(COPIES.iterdir()), "the first copy")
            application.kill()
        for copy in COPIES.iterdir():
            self.assertEqual(size_of(copy).split()[:2], ["1600", "1200"], copy)
        self.assertEqual([path for path in everything_in(DOWNLOADS) if pathlib.Path(path).name.startswith(".")], [])
        with Application(PROGRAM):
            photo(DOWNLOADS, "after.heic")
            self.assertEqual(ended("after.heic")["status"], "ready")

    def test_settings_full_of_garbage_are_defaults(self):
        SETTINGS.parent.mkdir(parents=True, exist_ok=True)
        SETTINGS.write_bytes(b"\xff\x00[[[=\nconversionSettings=@ByteArray(\nrecentItems=7\nisWatching=maybe\n")
        with Application(PROGRAM):
            photo(DOWNLOADS, "a.heic")
            self.assertEqual(ended("a.heic")["outputName"], "a.png")


def fill(path):
    """Takes what is left of the file system."""
    with open(path, "wb", buffering=0) as file:
        try:
            while True:
                file.write(b"x" * 4096)
        except OSError:
            pass


if __name__ == "__main__":
    unittest.main()
