"""The main window: the welcome, a photo dragged from another program, and no frame drawn while nothing changes."""

import re
import sys
import time
import unittest

from session_tools import (COPIES, DOWNLOADS, HOME, PATIENCE, Application, Program, client_area, ended, fresh, key, move, photo, ready, run,
                           stored, wait_until, windows)

DRAG_SOURCE = sys.argv.pop()
PROGRAM = sys.argv.pop()
WELCOME = "^Lumaport Welcome$"
QUIET = 2.0  # seconds without a frame: far more than any pause between two frames of an animation


def opacity(window):
    found = re.search(r"= (\d+)", run("xprop", "-id", window, "_NET_WM_WINDOW_OPACITY"))
    return int(found.group(1)) / 0xFFFFFFFF if found else 1.0


def stacking():
    """The numbers of all windows, from the lowest to the highest."""
    return [int(number, 16) for number in re.findall(r"0x[0-9a-f]+", run("xprop", "-root", "_NET_CLIENT_LIST_STACKING"))]


def approach(target):
    """Moves the pointer from the drag source to `target`, step by step, as a hand would."""
    for step in range(13):
        move(*(start + (end - start) * step // 12 for start, end in zip((44, 34), target)))
        time.sleep(0.02)
    return True


def welcome_seen():
    return stored("hasSeenSignatureWelcome") == "true"


class Lumaport(Application):
    """The program, with the times at which it drew its frames."""

    def __init__(self):
        # As on a machine with a graphics processor; the other walks draw as without one.
        super().__init__(PROGRAM, QT_LOGGING_RULES="qt.scenegraph.time.renderloop=true", QSG_RHI_BACKEND="opengl")
        self.frames = []

    def __enter__(self):
        super().__enter__()
        self.window = wait_until(lambda: windows("^Lumaport$"), "the main window")[0]
        self.rest()
        return self

    def is_expected(self, line):
        if "frame rendered" in line.lower():
            self.frames.append(time.monotonic())
        return "qt.scenegraph" in line

    def rest(self):
        """Waits until no frame has been drawn for a while."""
        wait_until(lambda: self.frames and time.monotonic() - self.frames[-1] > QUIET, "rest")


class LandingWalk(unittest.TestCase):
    def test_a_photo_dragged_from_another_program_is_converted(self):
        fresh()
        elsewhere = HOME / "Pictures"
        elsewhere.mkdir(exist_ok=True)
        dragged = photo(elsewhere, "IMG 7.HEIC")
        with Lumaport() as lumaport, Program(DRAG_SOURCE, dragged, ready=lambda: windows("^Drag source$")):
            x, y, width, height = client_area(lumaport.window)
            move(40, 30, "mousedown", "1")
            drawn = len(lumaport.frames)
            wait_until(lambda: approach((x + width // 2, y + height // 2)) and len(lumaport.frames) > drawn, "the cards fanning out")
            lumaport.rest()
            run("xdotool", "mouseup", "1")
            ready("IMG 7.HEIC")
        self.assertTrue((elsewhere / "Lumaport" / "IMG 7.png").exists())
        self.assertFalse(COPIES.exists())

    def test_nothing_is_drawn_when_nothing_moves_or_nobody_can_see(self):
        fresh()
        with Lumaport() as lumaport:
            run("xdotool", "windowminimize", "--sync", lumaport.window)
            lumaport.rest()
            drawn = len(lumaport.frames)
            photo(DOWNLOADS, "IMG 8.HEIC")
            ended("IMG 8.HEIC")
            lumaport.rest()
            self.assertEqual(len(lumaport.frames), drawn)

    def test_the_welcome_is_inside_the_window_without_a_compositor_and_bears_quitting(self):
        fresh("")
        for keys in ("ctrl+q", None, "Return"):
            with Lumaport() as lumaport:
                self.assertEqual(windows(WELCOME), [])
                self.assertFalse(welcome_seen())
                x, y, width, height = client_area(lumaport.window)
                move(x + width // 2, y + height - 52)  # on the button
                lumaport.rest()
                if keys:
                    key(keys, lumaport.window)
                if keys == "ctrl+q":
                    lumaport.process.wait(timeout=PATIENCE)
                if keys == "Return":
                    wait_until(welcome_seen, "the end of the welcome")
                    lumaport.rest()

    def test_the_welcome_has_a_panel_over_the_window_with_a_compositor(self):
        fresh("")
        compositor = ("picom", "--backend", "xrender", "--config", "/dev/null")
        with Program(*compositor, ready=lambda: "picom" in run("xwininfo", "-root", "-tree")), Lumaport() as lumaport:
            panel = wait_until(lambda: windows(WELCOME), "the panel")[0]
            self.assertEqual(opacity(lumaport.window), 0.0)
            # A second start brings the main window forward, which cannot be seen now.
            lumaport.start_again()
            lumaport.rest()
            self.assertEqual(run("xdotool", "getwindowfocus").strip(), panel)
            self.assertLess(*(stacking().index(int(window)) for window in (lumaport.window, panel)))
            key("Return")
            wait_until(welcome_seen, "the end of the welcome")
            wait_until(lambda: not windows(WELCOME), "the end of the panel")
            wait_until(lambda: opacity(lumaport.window) == 1.0, "the main window")


if __name__ == "__main__":
    unittest.main()
