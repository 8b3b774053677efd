"""The shell around the views: main window, shortcuts, panel, status item, several starts, and the end of the session."""

import os
import re
import signal
import subprocess
import sys
import unittest

import dbus

from assistive import UsableChanges, accessible, press
from session_tools import (DOWNLOADS, HOME, PATIENCE, Application, Program, client_area, ended, everything_in, fresh, history, key, move, photo,
                           ready, run, stored, wait_stored, wait_until, windows)

PROGRAM = sys.argv.pop()
ITEM = "org.kde.StatusNotifierItem"
WATCHER = "org.kde.StatusNotifierWatcher"
PROPERTIES = "org.freedesktop.DBus.Properties"
NAME = "io.lumaport.Lumaport"
MAIN = "^Lumaport$"
PANEL = "^Lumaport Quick Panel$"


def one_window(name):
    return wait_until(lambda: (found := windows(name)) and len(found) == 1 and found[0], f"one window {name}")


def wait_closed(name):
    wait_until(lambda: not windows(name), f"the end of {name}")


def has_focus(window):
    return run("xdotool", "getwindowfocus").strip() == window


def screen_size():
    return tuple(int(number) for number in run("xdotool", "getdisplaygeometry").split())


def frame(window):
    """x, y, width and height of the window with its decoration."""
    told = wait_until(lambda: re.findall(r"\d+", run("xprop", "-id", window, "_NET_FRAME_EXTENTS")), "the decoration")
    left, right, top, bottom = map(int, told)
    x, y, width, height = client_area(window)
    return x - left, y - top, width + left + right, height + top + bottom


def is_centred(window):
    x, y, width, height = frame(window)
    across, down = screen_size()
    return abs(2 * x + width - across) <= 1 and abs(2 * y + height - down) <= 1


def arrived(name):
    return any(item["sourceName"] == name for item in history())


def tray_icon():
    """Place and size of the program's icon once it is inside the XEmbed tray at the top of the screen."""
    for tray in run("xdotool", "search", "--class", "trayer").split():
        tree = run("xwininfo", "-id", tray, "-tree")
        for found in re.findall(r'\("lumaport" "[Ll]umaport"\)\s+(\d+)x(\d+)\S+\s+\+(\d+)\+(\d+)', tree):
            width, height, x, y = map(int, found)
            if 12 <= width <= 64 and 12 <= height <= 64 and y < 40:
                return x, y, width, height
    return None


class Shell(Application):
    """The program with its main window."""

    def __enter__(self):
        super().__enter__()
        self.window = one_window(MAIN)
        # The status item is the last step of the start: from here on keys work.
        wait_until(lambda: dbus.SessionBus().name_has_owner(f"{ITEM}-{self.process.pid}-1"), "the status item")
        return self

    def key(self, keys):
        """Types into the main window."""
        run("xdotool", "windowfocus", "--sync", self.window)
        wait_until(lambda: has_focus(self.window), "the focus")
        key(keys)

    def close_window(self):
        self.key("ctrl+w")
        wait_closed(MAIN)

    def open_panel(self):
        self.key("ctrl+shift+m")
        panel = one_window(PANEL)
        wait_until(lambda: has_focus(panel), "the panel's focus")
        assert "SKIP_TASKBAR" in run("xprop", "-id", panel, "_NET_WM_STATE")
        return panel

    def signal_workers(self, number):
        for program in wait_until(self.worker_programs, "the worker programs"):
            os.kill(int(program), number)

    def item(self, interface):
        item = dbus.SessionBus().get_object(f"{ITEM}-{self.process.pid}-1", "/StatusNotifierItem")
        return dbus.Interface(item, interface)

    def tool_tip(self):
        return self.item(PROPERTIES).Get(ITEM, "ToolTip")[3]


class ShellWalk(unittest.TestCase):
    def setUp(self):
        fresh()

    def test_the_window_keeps_its_size_and_place(self):
        with Shell(PROGRAM) as shell:
            menu_bar = client_area(shell.window)[3] - 780
            self.assertTrue(0 < menu_bar < 60, menu_bar)
            wait_until(lambda: client_area(shell.window)[2:] == (900, 780 + menu_bar), "the recommended size")

            wait_until(lambda: is_centred(shell.window), "the middle of the screen")
            run("xdotool", "windowsize", "--sync", shell.window, "850", str(660 + menu_bar))
            run("xdotool", "windowmove", "--sync", shell.window, "100", "120")
            wait_until(lambda: client_area(shell.window)[2:] == (850, 660 + menu_bar), "the new size")
            moved = frame(shell.window)
            shell.close_window()
            self.assertIsNone(shell.process.poll())
            self.assertEqual(stored("LumaportMainWindow"), f"{moved[0]} {moved[1]} 850 660")
            # A second start shows the window of the first, where it was.
            shell.start_again()
            shell.window = one_window(MAIN)
            wait_until(lambda: frame(shell.window) == moved, "the frame it had")
        for _ in range(2):  # and the frame stays the same from launch to launch
            with Shell(PROGRAM) as shell:
                wait_until(lambda: frame(shell.window) == moved, "the frame of the launch before")
        with Shell(PROGRAM) as shell:  # the smallest size is the content's, not the window's
            def is_smallest():  # repeated, because the start may still be placing it
                run("xdotool", "windowsize", shell.window, "300", "300")
                return client_area(shell.window)[2:] == (800, 620 + menu_bar)

            wait_until(is_smallest, "the smallest size")

    def test_several_starts_make_one_process_and_one_window(self):
        both = [subprocess.Popen([PROGRAM], stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True) for _ in range(2)]
        gone = wait_until(lambda: next((each for each in both if each.poll() is not None), None), "the end of one of the two")
        left = both[0] if gone is both[1] else both[1]
        self.assertEqual((gone.returncode, gone.communicate()[0]), (0, ""))
        one_window(MAIN)
        for name in ("IMG_1.HEIC", "IMG_2.heif"):
            (HOME / name).write_bytes(b"no photo")
        subprocess.run([PROGRAM, "IMG_1.HEIC"], check=True, timeout=PATIENCE, cwd=HOME)
        wait_until(lambda: arrived("IMG_1.HEIC"), "the file of a further start")
        dbus.SessionBus().get_object(NAME, "/io/lumaport/Lumaport").Open(
            [(HOME / "IMG_2.heif").as_uri()], dbus.Dictionary(signature="sv"),
            dbus_interface="org.freedesktop.Application")
        wait_until(lambda: arrived("IMG_2.heif"), "the file of a file manager")
        one_window(MAIN)
        left.terminate()
        self.assertEqual((left.communicate(timeout=PATIENCE)[0], left.returncode), ("", 0))
        self.assertFalse(dbus.SessionBus().name_has_owner(NAME))

    def test_a_file_for_a_process_that_ends_is_taken_by_the_next(self):
        (HOME / "IMG_3.HEIC").write_bytes(b"no photo")
        monitor = subprocess.Popen(["dbus-monitor", "--session", f"destination='{NAME}',member='Open'"], stdout=subprocess.PIPE, text=True)
        try:
            next(line for line in monitor.stdout if "NameLost" in line)  # from here on it reports every call
            with Shell(PROGRAM) as shell:
                os.kill(shell.process.pid, signal.SIGSTOP)  # it still owns the name but answers nothing
                with Application(PROGRAM, HOME / "IMG_3.HEIC"):
                    next(line for line in monitor.stdout if "member=Open" in line)
                    shell.kill()
                    wait_until(lambda: arrived("IMG_3.HEIC"), "the file, in the next process")
        finally:
            monitor.terminate()
            monitor.communicate(timeout=PATIENCE)

    def test_without_a_bus_one_process_converts_and_bears_a_hang_up(self):
        without = {"DBUS_SESSION_BUS_ADDRESS": "unix:path=/none"}
        with Application("nohup", PROGRAM, **without) as application:
            again = subprocess.run([PROGRAM], env={**os.environ, **without}, capture_output=True, text=True, timeout=PATIENCE, check=False)
            self.assertEqual((again.returncode, again.stderr),
                             (1, "lumaport: is running already, and cannot be reached without a session bus\n"))
            application.process.send_signal(signal.SIGHUP)
            photo(DOWNLOADS, "IMG_1.HEIC")
            ready("IMG_1.HEIC")

    def test_the_commands_keys_work_and_the_panel_closes_when_left(self):
        with Shell(PROGRAM) as shell:
            shell.key("ctrl+shift+p")
            wait_stored("isWatching", "false")
            key("ctrl+shift+p")
            wait_stored("isWatching", "true")
            (DOWNLOADS / "IMG_7.heif").write_bytes(b"no photo")
            key("ctrl+k")
            wait_until(lambda: arrived("IMG_7.heif"), "the photo of the folder")
            panel = shell.open_panel()
            self.assertEqual(client_area(panel)[2], 360)
            key("ctrl+shift+p")
            wait_stored("isWatching", "false")
            key("ctrl+shift+m")
            wait_closed(PANEL)
            shell.open_panel()
            x, y, _, height = client_area(shell.window)
            move(x + 12, y + height - 12, "click", "1")
            wait_closed(PANEL)
            shell.open_panel()
            manager = ("-P", str(os.getppid()), "openbox")
            run("pkill", "-STOP", *manager)  # so that the click takes no focus
            move(2, screen_size()[1] - 2, "click", "1")
            try:
                wait_closed(PANEL)
            finally:
                run("pkill", "-CONT", *manager)
            shell.open_panel()  # the keys open it at once, unlike a click that has just closed it
            key("ctrl+shift+m")
            wait_closed(PANEL)
            shell.key("ctrl+q")
            shell.process.wait(timeout=PATIENCE)

    def test_the_menus_open_by_the_keyboard_and_the_assistive_interface(self):
        with Shell(PROGRAM) as shell:
            for opening, steps in (("F10", ["Right"]), ("alt+c", [])):
                before = stored("isWatching")
                shell.key(opening)
                for keys in (*steps, *["Down"] * 4, "Return"):  # to the last of "Convert"
                    key(keys)
                wait_until(lambda: stored("isWatching") not in (None, before), "the end of watching, and watching again")
            x, y, width, _ = frame(shell.window)
            move(x + width // 2, y + 8, "click", "--repeat", "2", "1")  # on its title
            wait_until(lambda: client_area(shell.window)[2] > 1400, "the maximised window")
            press("Window", "menu bar")
            press("Use Recommended Window Size", "menu item")
            wait_until(lambda: client_area(shell.window)[2] == 900 and is_centred(shell.window), "the recommended frame")

    def test_the_panel_works_through_the_assistive_interface(self):
        with Shell(PROGRAM) as shell:
            shell.open_panel()
            key("Escape")
            wait_closed(PANEL)
            shell.close_window()

            shell.item(ITEM).Activate(700, 2)  # as a host says that it was clicked there
            x, y, width, _ = client_area(one_window(PANEL))
            self.assertTrue(abs(x + width // 2 - 700) <= 1 and 2 < y < 20, (x, y))
            press("Open Lumaport")
            shell.window = one_window(MAIN)
            wait_closed(PANEL)
            shell.open_panel()
            press("Quit Lumaport")
            shell.process.wait(timeout=PATIENCE)

    def test_a_screen_reader_hears_what_cannot_be_pressed_while_photos_are_converted(self):
        convert = "Convert existing HEIC photos"
        with Shell(PROGRAM) as shell, UsableChanges() as changes:
            photo(DOWNLOADS, "IMG_1.HEIC")  # the first starts the worker programs
            ended("IMG_1.HEIC")
            press("Conversion options")
            wait_until(lambda: accessible(convert), "the options")
            shell.signal_workers(signal.SIGSTOP)
            photo(DOWNLOADS, "IMG_2.HEIC")
            wait_until(lambda: changes.heard(convert, False), "the news that the button cannot be pressed")
            shell.signal_workers(signal.SIGCONT)
            wait_until(lambda: changes.heard(convert, True), "the news that it can be pressed again")

    def test_a_desktop_panel_that_comes_later_gets_the_item(self):
        bus = dbus.SessionBus()
        with Shell(PROGRAM) as shell:
            self.assertEqual(shell.tool_tip(), "Lumaport: Auto-convert: On")
            with Program("xfce4-panel", "--disable-wm-check", ready=lambda: bus.name_has_owner(WATCHER)):
                watcher = bus.get_object(WATCHER, "/StatusNotifierWatcher")
                wait_until(lambda: any(f"-{shell.process.pid}-1" in item for item in watcher.Get(
                    WATCHER, "RegisteredStatusNotifierItems", dbus_interface=PROPERTIES)), "the item's registration")
                shell.key("ctrl+shift+p")
                wait_until(lambda: shell.tool_tip() == "Lumaport: Auto-convert: Paused", "the tooltip")

    def test_an_older_tray_that_comes_later_gets_the_icon(self):
        with Shell(PROGRAM), Program("trayer", "--edge", "top", "--align", "right", "--widthtype", "request", "--height", "24",
                                     ready=lambda: run("xdotool", "search", "--class", "trayer")):
            x, y, width, height = wait_until(tray_icon, "the icon in the tray")
            click = (x + width // 2, y + height // 2, "click", "1")
            move(*click)
            panel = client_area(one_window(PANEL))
            self.assertTrue(panel[1] >= y + height and panel[0] + panel[2] <= screen_size()[0], panel)
            move(*click)
            wait_closed(PANEL)

    def test_the_sessions_end_leaves_no_worker_no_file_and_every_setting(self):
        names = [f"IMG_{number}.HEIC" for number in range(6)]
        with Shell(PROGRAM) as shell:
            shell.key("ctrl+shift+p")
            wait_stored("isWatching", "false")
            for name in names:
                photo(DOWNLOADS, name, 1600, 1200)
            key("ctrl+k")
            wait_until(lambda: arrived(names[-1]), "the photos in the history")
            shell.process.terminate()
            shell.process.wait(timeout=PATIENCE)
        self.assertEqual(stored("isWatching"), "false")
        worker = os.path.dirname(os.path.dirname(PROGRAM)) + ".*/lumaport-imageworker"
        wait_until(lambda: run("pgrep", "-f", worker) == "", "the end of the last worker")  # the kernel ends them in its time
        copies = {f"Lumaport/{name.replace('.HEIC', '.png')}" for name in names}
        self.assertLessEqual(set(everything_in(DOWNLOADS)), {*names, "Lumaport", *copies})


if __name__ == "__main__":
    os.environ["XFCE_PANEL_MIGRATE_DEFAULT"] = "1"
    unittest.main()
