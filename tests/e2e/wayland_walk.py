"""The program on a Wayland desktop, where no window can be placed or faded by its owner."""

import os
import pathlib
import subprocess
import sys
import unittest

from assistive import accessible, press
from support import COPIES, HOME, PATIENCE, Application, DOWNLOADS, entry, photo, run, stored, wait_until

PROGRAM = sys.argv.pop()
SOCKET = "wayland-walk"


class Compositor:
    """A compositor whose screen and keyboard are a window of this session; use it in a with statement."""

    def __enter__(self):
        settings = HOME / "weston.ini"
        settings.write_text("[core]\nidle-time=0\n[shell]\npanel-position=none\nlocking=false\n", encoding="utf-8")
        self.process = subprocess.Popen(
            ["weston", "--backend=x11-backend.so", f"--socket={SOCKET}", f"--config={settings}", "--width=1200", "--height=900"],
            stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        self.window = wait_until(lambda: run("xdotool", "search", "--onlyvisible", "--class", "Weston").split(), "the compositor")[0]
        return self

    def __exit__(self, *_):
        self.process.terminate()
        self.process.wait(timeout=PATIENCE)

    def key(self, keys):
        run("xdotool", "windowfocus", "--sync", self.window, "key", keys)


class WaylandApplication(Application):
    @staticmethod
    def windows():
        frame = accessible("Lumaport", "frame")
        return [frame] if frame else []


class WaylandWalk(unittest.TestCase):
    def test_from_the_welcome_to_the_end(self):
        with Compositor() as compositor:
            os.environ["WAYLAND_DISPLAY"] = SOCKET
            os.environ["QT_QPA_PLATFORM"] = "wayland"
            with WaylandApplication(PROGRAM) as application:
                self.assertIn("wayland", pathlib.Path(f"/proc/{application.process.pid}/maps").read_text(encoding="utf-8"))
                wait_until(lambda: compositor.key("Return") or stored("hasSeenSignatureWelcome"), "the end of the welcome")
                photo(DOWNLOADS, "IMG_1.HEIC")
                wait_until(lambda: entry("IMG_1.HEIC"), "the end of the photo")
                self.assertTrue((COPIES / "IMG_1.png").exists())
                press("Pause")
                wait_until(lambda: stored("isWatching") == "false", "the pause")
                compositor.key("ctrl+w")
                wait_until(lambda: not application.windows(), "the end of the window")
                again = subprocess.run([PROGRAM], timeout=PATIENCE, capture_output=True, text=True, check=False)
                self.assertEqual((again.returncode, again.stdout + again.stderr), (0, ""))
                wait_until(application.windows, "the window")
                wait_until(lambda: compositor.key("ctrl+q") or application.process.poll() is not None, "the end of the program")
            self.assertEqual(stored("LumaportMainWindow"), "900 780")  # the size alone: there is no place to keep


if __name__ == "__main__":
    unittest.main()
