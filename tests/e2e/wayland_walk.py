"""The program on a Wayland desktop, where no window can be placed or faded by its owner."""

import os
import pathlib
import sys
import unittest

from assistive import accessible, press
from session_tools import COPIES, DOWNLOADS, HOME, Application, Program, ended, key, photo, stored, wait_stored, wait_until, windows

PROGRAM = sys.argv.pop()
SOCKET = "wayland-walk"


class Compositor(Program):
    """A compositor whose screen and keyboard are a window of this session."""

    def __init__(self):
        settings = HOME / "weston.ini"
        settings.write_text("[core]\nidle-time=0\n[shell]\npanel-position=none\nlocking=false\n", encoding="utf-8")
        super().__init__("weston", "--backend=x11-backend.so", f"--socket={SOCKET}", f"--config={settings}", "--width=1200",
                         "--height=900", ready=lambda: windows("Weston", "--class"))

    @staticmethod
    def key(keys):
        key(keys, windows("Weston", "--class")[0])


class WaylandApplication(Application):
    @staticmethod
    def windows():
        return accessible("Lumaport", "frame")


class WaylandWalk(unittest.TestCase):
    def test_from_the_welcome_to_the_end(self):
        with Compositor() as compositor:
            os.environ.update(WAYLAND_DISPLAY=SOCKET, QT_QPA_PLATFORM="wayland")
            with WaylandApplication(PROGRAM) as application:
                self.assertIn("wayland", pathlib.Path(f"/proc/{application.process.pid}/maps").read_text(encoding="utf-8"))
                wait_until(lambda: compositor.key("Return") or stored("hasSeenSignatureWelcome"), "the end of the welcome")
                photo(DOWNLOADS, "IMG_1.HEIC")
                ended("IMG_1.HEIC")
                self.assertTrue((COPIES / "IMG_1.png").exists())
                press("Pause")
                wait_stored("isWatching", "false")
                compositor.key("ctrl+w")
                wait_until(lambda: not application.windows(), "the end of the window")
                application.start_again()
                wait_until(application.windows, "the window")
                wait_until(lambda: compositor.key("ctrl+q") or application.process.poll() is not None, "the end of the program")
            self.assertEqual(stored("LumaportMainWindow"), "900 780")  # the size alone: there is no place to keep


if __name__ == "__main__":
    unittest.main()
