"""One long day with the program, as a person has it: from the first start to the one after the last."""

import sys
import unittest

import dbus

from assistive import accessible, press
from support import COPIES, DOWNLOADS, HOME, Application, Desktop, Dunst, entry, history, photo, run, stored, wait_until

PROGRAM = sys.argv.pop()
OTHER = HOME / "Camera"


def ready(name):
    done = wait_until(lambda: entry(name), f"the end of {name}")
    assert done["status"] == "ready", done
    return done


def key(window, keys):
    run("xdotool", "windowfocus", "--sync", window, "key", keys)


def answer_dialog(path):
    """Types a path into the file dialog that stands open."""

    def dialog():
        main = run("xdotool", "search", "--onlyvisible", "--name", "^Lumaport").split()
        others = run("xdotool", "search", "--onlyvisible", "--class", "lumaport").split()
        return next((window for window in others if window not in main), None)

    window = wait_until(dialog, "the file dialog")
    run("xdotool", "windowfocus", "--sync", window)
    run("xdotool", "type", "--delay", "5", str(path))
    run("xdotool", "key", "Return")
    wait_until(lambda: not dialog(), "the end of the file dialog")


class PersonWalk(unittest.TestCase):
    def test_a_day(self):
        with Desktop() as desktop, Dunst() as dunst:
            with Application(PROGRAM) as application:
                window = application.windows()[0]
                self.welcome(window)
                self.first_photo(desktop, dunst)
                self.one_that_was_still_arriving()
                self.chosen_by_hand()
                self.paused()
                self.options()
                self.another_folder()
                self.the_end(application, window)
            self.the_next_start()

    def welcome(self, window):
        # The button comes with the end of the animation: Return is pressed until it does something.
        wait_until(lambda: key(window, "Return") or stored("hasSeenSignatureWelcome"), "the end of the welcome")

    def first_photo(self, desktop, dunst):
        photo(DOWNLOADS, "IMG_1.HEIC")
        self.assertEqual(ready("IMG_1.HEIC")["outputName"], "IMG_1.png")
        wait_until(lambda: dunst.displayed() == 1, "the notification")
        dunst.click()
        wait_until(lambda: desktop.file_manager.shown == [(COPIES / "IMG_1.png").as_uri()], "the file manager's call")

    def one_that_was_still_arriving(self):
        whole = photo(HOME, "whole.heic", 640, 480).read_bytes()
        (DOWNLOADS / "IMG_2.HEIC").write_bytes(whole[: len(whole) // 2])
        self.assertEqual(wait_until(lambda: entry("IMG_2.HEIC"), "the cut photo")["status"], "failed")
        (DOWNLOADS / "IMG_2.HEIC").write_bytes(whole)
        press("Recent photos", "page tab")
        press("Try again")
        wait_until(lambda: (done := entry("IMG_2.HEIC")) and done["status"] == "ready", "the second try")
        press("AirDrop", "page tab")

    def chosen_by_hand(self):
        elsewhere = HOME / "Elsewhere"
        elsewhere.mkdir()
        photo(elsewhere, "IMG_3.HEIC")
        press("Choose HEIC photos")
        answer_dialog(elsewhere / "IMG_3.HEIC")
        ready("IMG_3.HEIC")
        self.assertTrue((elsewhere / "Lumaport" / "IMG_3.png").exists())

    def paused(self):
        press("Pause")
        wait_until(lambda: stored("isWatching") == "false", "the pause")
        photo(DOWNLOADS, "IMG_4.HEIC")
        press("Resume")
        wait_until(lambda: stored("isWatching") == "true", "the end of the pause")
        press("Conversion options")
        press("Convert existing HEIC photos")
        ready("IMG_4.HEIC")

    def options(self):
        press("Convert to JPEG", "radio button")
        press("Dark", "radio button")
        wait_until(lambda: stored("appearanceMode") == "Dark", "the dark appearance")
        photo(DOWNLOADS, "IMG_5.HEIC")
        self.assertEqual(ready("IMG_5.HEIC")["outputName"], "IMG_5.jpg")

    def another_folder(self):
        OTHER.mkdir()
        press("Change…")
        answer_dialog(OTHER)
        wait_until(lambda: accessible(str(OTHER), "label"), "the folder's path in the options")
        photo(OTHER, "IMG_6.HEIC")
        ready("IMG_6.HEIC")
        self.assertTrue((OTHER / "Lumaport" / "IMG_6.jpg").exists())

    def the_end(self, application, window):
        press("Close options")
        press("Recent photos", "page tab")
        press("Clear history")
        wait_until(lambda: history() == [], "the empty history")
        key(window, "ctrl+w")
        wait_until(lambda: not application.windows(), "the closed window")
        item = f"org.kde.StatusNotifierItem-{application.process.pid}-1"
        dbus.SessionBus().get_object(item, "/StatusNotifierItem").Activate(
            700, 2, dbus_interface="org.kde.StatusNotifierItem")
        press("Open Lumaport")
        again = wait_until(lambda: run("xdotool", "search", "--onlyvisible", "--name", "^Lumaport$").split(), "the window")[0]
        wait_until(lambda: key(again, "ctrl+q") or application.process.poll() is not None, "the end of the program")

    def the_next_start(self):
        with Application(PROGRAM):
            wait_until(lambda: accessible("Dark", "radio button"), "the window without a welcome")
            photo(OTHER, "IMG_7.HEIC")
            self.assertEqual(ready("IMG_7.HEIC")["outputName"], "IMG_7.jpg")
        self.assertEqual([item["sourceName"] for item in history()], ["IMG_7.HEIC"])


if __name__ == "__main__":
    unittest.main()
