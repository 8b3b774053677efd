"""A whole session of a user, from the first start to the next one."""

import sys
import unittest

import dbus
import dbus.service
from dbus.mainloop.glib import DBusGMainLoop

from assistive import accessible, press, take_messages
from session_tools import (COPIES, DOWNLOADS, HOME, Application, Dunst, ended, entry, history, key, photo, ready, run, stored, wait_stored,
                           wait_until, windows)

PROGRAM = sys.argv.pop()
ELSEWHERE = HOME / "Elsewhere"
OTHER = HOME / "Camera"


class FileManager(dbus.service.Object):
    """Keeps what it was asked to show."""

    def __init__(self):
        bus = dbus.SessionBus(mainloop=DBusGMainLoop())
        super().__init__(bus, "/org/freedesktop/FileManager1")
        self.kept_name = dbus.service.BusName("org.freedesktop.FileManager1", bus)
        self.shown = []

    @dbus.service.method("org.freedesktop.FileManager1", in_signature="ass")
    def ShowItems(self, uris, _startup):
        self.shown.extend(str(uri) for uri in uris)

    def has_shown(self):
        take_messages()
        return self.shown


def answer_dialog(path):
    """Types a path into the file dialog that stands open over the main window."""

    def dialog():
        main = windows("^Lumaport")
        return next((window for window in windows("lumaport", "--class") if window not in main), None)

    shown = wait_until(dialog, "the file dialog")
    owner = run("xprop", "-id", shown, "-f", "WM_TRANSIENT_FOR", "32i", " $0", "WM_TRANSIENT_FOR").split()[1]
    assert owner in windows("^Lumaport$"), owner
    run("xdotool", "windowfocus", "--sync", shown, "type", "--delay", "5", str(path))
    key("Return")
    wait_until(lambda: not dialog(), "the end of the file dialog")


class PersonWalk(unittest.TestCase):
    def test_a_day(self):
        with Dunst() as dunst:
            with Application(PROGRAM) as application:
                window = application.windows()[0]
                self.welcome(window)
                self.first_photo(dunst)
                self.one_that_was_still_arriving()
                self.chosen_by_hand()
                self.paused()
                self.options()
                self.another_folder()
                self.the_end(application, window)
            self.the_next_start()

    def welcome(self, window):
        # The button appears at the end of the animation: Return is pressed until it has an effect.
        wait_until(lambda: key("Return", window) or stored("hasSeenSignatureWelcome"), "the end of the welcome")

    def first_photo(self, dunst):
        file_manager = FileManager()
        photo(DOWNLOADS, "IMG_1.HEIC")
        self.assertEqual(ready("IMG_1.HEIC")["outputName"], "IMG_1.png")
        wait_until(lambda: dunst.displayed() == 1, "the notification")
        run("dunstctl", "action", "0")  # a click on the notification itself
        wait_until(file_manager.has_shown, "the file manager's call")
        self.assertEqual(file_manager.shown, [(COPIES / "IMG_1.png").as_uri()])

    def one_that_was_still_arriving(self):
        whole = photo(HOME, "whole.heic", 640, 480).read_bytes()
        (DOWNLOADS / "IMG_2.HEIC").write_bytes(whole[: len(whole) // 2])
        self.assertEqual(ended("IMG_2.HEIC")["status"], "failed")
        (DOWNLOADS / "IMG_2.HEIC").write_bytes(whole)
        press("Recent photos", "page tab")
        press("Try again")
        wait_until(lambda: (done := entry("IMG_2.HEIC")) and done["status"] == "ready", "the second try")
        press("AirDrop", "page tab")

    def chosen_by_hand(self):
        ELSEWHERE.mkdir()
        press("Choose HEIC photos")
        answer_dialog(photo(ELSEWHERE, "IMG_3.HEIC"))
        ready("IMG_3.HEIC")
        self.assertTrue((ELSEWHERE / "Lumaport" / "IMG_3.png").exists())

    def paused(self):
        press("Pause")
        wait_stored("isWatching", "false")
        photo(DOWNLOADS, "IMG_4.HEIC")
        press("Resume")
        wait_stored("isWatching", "true")
        press("Conversion options")
        press("Convert existing HEIC photos")
        ready("IMG_4.HEIC")

    def options(self):
        press("Convert to JPEG", "radio button")
        press("Dark", "radio button")
        wait_stored("appearanceMode", "Dark")
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
        wait_until(lambda: key("ctrl+q", window) or application.process.poll() is not None, "the end of the program")

    def the_next_start(self):
        with Application(PROGRAM):
            wait_until(lambda: accessible("Dark", "radio button"), "the window without a welcome")
            photo(OTHER, "IMG_7.HEIC")
            self.assertEqual(ready("IMG_7.HEIC")["outputName"], "IMG_7.jpg")
        self.assertEqual([item["sourceName"] for item in history()], ["IMG_7.HEIC"])


if __name__ == "__main__":
    unittest.main()
