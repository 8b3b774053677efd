#!/usr/bin/python3
"""Walks through the shell of the real program in a real session: status item, panel, shortcuts, window, ending.

Usage, in a session of its own (see scripts/session): shell.py PROGRAM [NAME OF ONE WALK ...]
Each walk starts the program with a fresh home of its own, and ends it. Exit status 1 when any walk fails; what the
program prints counts as a failure.
"""

import os
import pathlib
import re
import shutil
import signal
import subprocess
import sys
import time
import traceback

import dbus
import pyatspi

PATIENCE = 30  # seconds for any step; no walk waits that long unless it fails
ITEM = "org.kde.StatusNotifierItem"
APPLICATION = ("io.lumaport.Lumaport", "/io/lumaport/Lumaport")


def wait(what, condition):
    """The first true value of `condition`, asked again until it comes."""
    limit = time.monotonic() + PATIENCE
    while time.monotonic() < limit:
        value = condition()
        if value:
            return value
        time.sleep(0.02)
    raise AssertionError(f"never happened: {what}")


def run(*command):
    return subprocess.run(command, capture_output=True, text=True, check=False).stdout


def windows(name):
    return run("xdotool", "search", "--onlyvisible", "--name", name).split()


def one_window(name):
    return wait(f"one window {name}", lambda: (found := windows(name)) and len(found) == 1 and found[0])


def focus(window):
    run("xdotool", "windowfocus", "--sync", window)


def key(keys):
    run("xdotool", "key", keys)


def client_area(window):
    """x, y, width and height of the window without its decoration."""
    numbers = {line.split("=")[0]: line.split("=")[1] for line in
               run("xdotool", "getwindowgeometry", "--shell", window).split() if "=" in line}
    return tuple(int(numbers[name]) for name in ("X", "Y", "WIDTH", "HEIGHT"))


def frame(window):
    """x, y, width and height of the window with its decoration."""
    left, right, top, bottom = (int(number) for number in
                                re.findall(r"\d+", run("xprop", "-id", window, "_NET_FRAME_EXTENTS")))
    x, y, width, height = client_area(window)
    return x - left, y - top, width + left + right, height + top + bottom


class Program:
    """Lumaport in a home of its own."""

    def __init__(self, path, home):
        self.path = path
        self.home = pathlib.Path(home)
        self.settings = self.home / ".config/lumaport/lumaport.conf"
        (self.home / "Downloads").mkdir(parents=True, exist_ok=True)
        self.environment = {
            **os.environ,
            "HOME": str(self.home),
            "XDG_CONFIG_HOME": str(self.home / ".config"),
            "XDG_DATA_HOME": str(self.home / ".local/share"),
            "XDG_CACHE_HOME": str(self.home / ".cache"),
            "QT_LINUX_ACCESSIBILITY_ALWAYS_ON": "1",
        }
        self.processes = []
        self.output = open(self.home / "output.txt", "ab+")

    def start(self, *arguments):
        process = subprocess.Popen([self.path, *arguments], env=self.environment, stdout=self.output,
                                   stderr=self.output, cwd=self.home)
        self.processes.append(process)
        return process

    def started(self, *arguments):
        """Started, and its window shown."""
        process = self.start(*arguments)
        self.window = one_window("^Lumaport$")
        return process

    def quit(self, process):
        process.send_signal(signal.SIGTERM)
        if process.wait(timeout=PATIENCE) != 0:
            raise AssertionError(f"ended with status {process.returncode}")

    def stored(self, name):
        text = self.settings.read_text(encoding="utf-8") if self.settings.exists() else ""
        found = re.search(rf"^{name}=(.*)$", text, re.MULTILINE)
        return found and found.group(1)

    def have_seen_welcome(self):
        self.settings.parent.mkdir(parents=True, exist_ok=True)
        self.settings.write_text("[General]\nhasSeenSignatureWelcome=true\n", encoding="utf-8")

    def end(self):
        for process in self.processes:
            if process.poll() is None:
                process.kill()
                process.wait()

    def printed(self):
        self.output.seek(0)
        return self.output.read().decode(errors="replace")


def accessible(name, role):
    """Lumaport's element of this name and role that shows on the screen; None without one."""
    def search(element):
        for child in element:
            if child is None:
                continue
            if child.name == name and child.getRoleName() == role and \
                    child.getState().contains(pyatspi.STATE_SHOWING):
                return child
            found = search(child)
            if found:
                return found
        return None

    for application in pyatspi.Registry.getDesktop(0):
        if application is not None and application.name in ("lumaport", "Lumaport"):
            return search(application)
    return None


def press(name, role="push button"):
    element = wait(f"{role} {name}", lambda: accessible(name, role))
    actions = element.queryAction()
    names = [actions.getName(number) for number in range(actions.nActions)]
    actions.doAction(names.index("Press"))


def started_host(*command, ready):
    process = subprocess.Popen(command, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
    wait(f"{command[0]} to be ready", ready)
    return process


def ended(process):
    process.terminate()
    process.wait(timeout=PATIENCE)


def owned(name):
    return dbus.SessionBus().name_has_owner(name)


def item_name(process):
    return f"{ITEM}-{process.pid}-1"


def item_property(process, name):
    item = dbus.SessionBus().get_object(item_name(process), "/StatusNotifierItem")
    return item.Get(ITEM, name, dbus_interface="org.freedesktop.DBus.Properties")


# ---------------------------------------------------------------------------------------------------------- the walks


def window_keeps_its_place(program):
    """First launch, recommended size, saved frame, close and reopen."""
    process = program.started()
    screen = [int(number) for number in run("xdotool", "getdisplaygeometry").split()]
    menu_bar = wait("a menu bar", lambda: client_area(program.window)[3] - 780)
    assert 0 < menu_bar < 60, menu_bar
    wait("the recommended size", lambda: client_area(program.window)[2:] == (900, 780 + menu_bar))
    first = wait("a centred window",
                 lambda: (now := frame(program.window)) and abs(now[0] - (screen[0] - now[2]) // 2) <= 1 and
                 abs(now[1] - (screen[1] - now[3]) // 2) <= 1 and now)

    run("xdotool", "windowsize", "--sync", program.window, "850", str(660 + menu_bar))
    run("xdotool", "windowmove", "--sync", program.window, "100", "120")
    moved = wait("the window to have moved", lambda: (now := frame(program.window)) != first and now)
    focus(program.window)
    key("ctrl+w")
    wait("the window to close", lambda: not windows("^Lumaport$"))
    assert process.poll() is None, "closing the window ended the program"
    assert re.match(r"-?\d+ -?\d+ 850 660$", program.stored("LumaportMainWindow").strip('"')), \
        program.stored("LumaportMainWindow")

    # A second start shows the window of the first, where it was.
    assert program.start().wait(timeout=PATIENCE) == 0
    program.window = one_window("^Lumaport$")
    wait("the window where it was", lambda: frame(program.window) == moved)
    program.quit(process)

    # So does the next launch; and the frame does not creep from launch to launch.
    for _ in range(2):
        process = program.started()
        wait("the frame of the launch before", lambda: frame(program.window) == moved)
        program.quit(process)

    # The smallest size is the content's, not the window's.
    process = program.started()
    run("xdotool", "windowsize", program.window, "300", "300")
    wait("the smallest size", lambda: client_area(program.window)[2:] == (800, 620 + menu_bar))
    program.quit(process)


def starts_at_once_make_one_process(program):
    """Two starts at once: one program, one window; files of a later start are converted by the first."""
    first, second = program.start(), program.start()
    wait("one of the two to end", lambda: first.poll() is not None or second.poll() is not None)
    left = first if second.poll() is not None else second
    one_window("^Lumaport$")
    assert left.poll() is None

    (program.home / "IMG_1.HEIC").write_bytes(b"no photo")
    assert program.start("IMG_1.HEIC").wait(timeout=PATIENCE) == 0
    wait("the photo in the history", lambda: "IMG_1.HEIC" in (program.stored("recentItems") or ""))
    uri = (program.home / "IMG_2.heif").as_uri()
    (program.home / "IMG_2.heif").write_bytes(b"no photo")
    dbus.SessionBus().get_object(*APPLICATION).Open(
        [uri], {}, dbus_interface="org.freedesktop.Application")
    wait("the opened photo in the history", lambda: "IMG_2.heif" in (program.stored("recentItems") or ""))
    program.quit(left)
    assert not owned(APPLICATION[0])


def shortcuts_do_what_the_menu_says(program):
    """The three commands' keys, from the window and from the panel."""
    process = program.started()
    focus(program.window)
    key("ctrl+shift+p")
    wait("watching to pause", lambda: program.stored("isWatching") == "false")
    key("ctrl+shift+p")
    wait("watching to resume", lambda: program.stored("isWatching") == "true")

    (program.home / "Downloads/IMG_7.HEIC").write_bytes(b"no photo")
    key("ctrl+k")
    wait("the folder's photo in the history", lambda: "IMG_7.HEIC" in (program.stored("recentItems") or ""))

    key("ctrl+shift+m")
    panel = one_window("Lumaport Quick Panel")
    assert client_area(panel)[2] == 360
    wait("the panel to have the focus", lambda: run("xdotool", "getwindowfocus").strip() == panel)
    key("ctrl+shift+p")
    wait("watching to pause from the panel", lambda: program.stored("isWatching") == "false")
    key("ctrl+shift+m")
    wait("the same keys to close the panel", lambda: not windows("Lumaport Quick Panel"))

    key("ctrl+q")
    assert process.wait(timeout=PATIENCE) == 0


def panel_works_through_the_assistive_interface(program):
    """The panel's controls pressed through AT-SPI; the panel closes by Escape and by going elsewhere."""
    process = program.started()
    focus(program.window)
    key("ctrl+shift+m")
    panel = one_window("Lumaport Quick Panel")
    press("Pause")
    wait("watching to pause", lambda: program.stored("isWatching") == "false")
    press("Resume")
    wait("watching to resume", lambda: program.stored("isWatching") == "true")

    wait("the panel to have the focus", lambda: run("xdotool", "getwindowfocus").strip() == panel)
    key("Escape")
    wait("Escape to close the panel", lambda: not windows("Lumaport Quick Panel"))
    focus(program.window)
    key("ctrl+shift+m")
    panel = one_window("Lumaport Quick Panel")
    wait("the panel to have the focus", lambda: run("xdotool", "getwindowfocus").strip() == panel)
    x, y, width, height = client_area(program.window)
    run("xdotool", "mousemove", str(x + 12), str(y + height - 12), "click", "1")
    wait("a click elsewhere to close the panel", lambda: not windows("Lumaport Quick Panel"))

    key("ctrl+w")
    wait("the window to close", lambda: not windows("^Lumaport$"))
    dbus.SessionBus().get_object(item_name(process), "/StatusNotifierItem").Activate(
        700, 2, dbus_interface=ITEM)
    x, y, width, _ = client_area(one_window("Lumaport Quick Panel"))
    assert abs(x + width // 2 - 700) <= 1 and 2 < y < 20, (x, y)
    press("Open Lumaport")
    one_window("^Lumaport$")
    wait("the panel to close", lambda: not windows("Lumaport Quick Panel"))

    key("ctrl+shift+m")
    one_window("Lumaport Quick Panel")
    press("Quit Lumaport")
    assert process.wait(timeout=PATIENCE) == 0


def status_item_joins_a_panel_that_comes_later(program):
    """A desktop panel started after the program shows the item; a click on it there opens the panel."""
    process = program.started()
    assert "Auto-convert: On" in item_property(process, "ToolTip")[2]
    host = started_host("xfce4-panel", "--disable-wm-check", ready=lambda: owned("org.kde.StatusNotifierWatcher"))
    try:
        watcher = dbus.SessionBus().get_object("org.kde.StatusNotifierWatcher", "/StatusNotifierWatcher")
        wait("the item to register", lambda: any(item_name(process) in item for item in watcher.Get(
            "org.kde.StatusNotifierWatcher", "RegisteredStatusNotifierItems",
            dbus_interface="org.freedesktop.DBus.Properties")))
        focus(program.window)
        key("ctrl+shift+p")
        wait("the tooltip to follow",
             lambda: item_property(process, "ToolTip")[2] == "Lumaport: Auto-convert: Paused")
        assert item_property(process, "IconAccessibleDesc") == "Lumaport, Auto-convert: Paused"
    finally:
        ended(host)
    # No tray left: the program goes on, and its window can be had again.
    assert process.poll() is None
    key("ctrl+w")
    wait("the window to close", lambda: not windows("^Lumaport$"))
    assert program.start().wait(timeout=PATIENCE) == 0
    one_window("^Lumaport$")
    program.quit(process)


def status_item_works_in_an_older_tray(program):
    """An XEmbed tray started after the program takes the icon; a click there opens the panel, another closes it."""
    process = program.started()
    host = started_host("trayer", "--edge", "top", "--align", "right", "--widthtype", "request", "--height", "24",
                        ready=lambda: run("xdotool", "search", "--class", "trayer").split())
    try:
        # The icon is a window of the program's own, inside the tray's.
        icon = wait("the icon in the tray", lambda: tray_icon())
        x, y, width, height = icon
        run("xdotool", "mousemove", str(x + width // 2), str(y + height // 2), "click", "1")
        panel = client_area(one_window("Lumaport Quick Panel"))
        assert panel[1] >= y + height, (panel, icon)
        assert panel[0] + panel[2] <= int(run("xdotool", "getdisplaygeometry").split()[0]), panel
        run("xdotool", "click", "1")
        wait("the next click to close the panel", lambda: not windows("Lumaport Quick Panel"))
    finally:
        ended(host)
    program.quit(process)


def tray_icon():
    """Place of the program's icon in an XEmbed tray, as the window tree has it."""
    for line in run("xwininfo", "-root", "-tree").splitlines():
        found = re.search(r'"lumaport" \("lumaport" "[Ll]umaport"\)\s+(\d+)x(\d+)\+-?\d+\+-?\d+\s+\+(\d+)\+(\d+)', line)
        if found:
            width, height, x, y = (int(number) for number in found.groups())
            if 12 <= width <= 64 and 12 <= height <= 64 and y < 40:
                return x, y, width, height
    return None


def ends_cleanly_while_it_converts(program):
    """The session's end during conversions leaves no process, no temporary file, and every setting."""
    process = program.started()
    for number in range(6):
        (program.home / f"Downloads/IMG_{number}.HEIC").write_bytes(b"no photo" * 100)
    focus(program.window)
    key("ctrl+shift+p")
    wait("watching to pause", lambda: program.stored("isWatching") == "false")
    key("ctrl+k")
    wait("photos in the history", lambda: "IMG_5.HEIC" in (program.stored("recentItems") or ""))
    program.quit(process)
    assert program.stored("isWatching") == "false"
    # By its whole name among the arguments: a process's own name is cut after 15 letters.
    left = run("pgrep", "-f", "-l", f"^{re.escape(str(pathlib.Path(program.path).parent))}/lumaport")
    assert not left, f"still running: {left}"
    found = {path.name for path in (program.home / "Downloads").iterdir()}
    assert found <= {f"IMG_{number}.HEIC" for number in range(6)}, found


WALKS = [
    window_keeps_its_place,
    starts_at_once_make_one_process,
    shortcuts_do_what_the_menu_says,
    panel_works_through_the_assistive_interface,
    status_item_joins_a_panel_that_comes_later,
    status_item_works_in_an_older_tray,
    ends_cleanly_while_it_converts,
]


def main():
    path, *names = sys.argv[1:]
    failed = 0
    for walk in (each for each in WALKS if not names or each.__name__ in names):
        home = pathlib.Path.home() / walk.__name__
        home.mkdir()
        program = Program(os.path.abspath(path), home)
        program.have_seen_welcome()
        start = time.monotonic()
        try:
            walk(program)
            printed = program.printed()
            assert not printed, f"it printed:\n{printed}"
            print(f"passed  {time.monotonic() - start:5.1f} s  {walk.__name__}", flush=True)
        except Exception:  # any failure of a walk is reported, and the next walk goes on
            failed += 1
            run("import", "-window", "root", f"/tmp/{walk.__name__}.png")
            print(f"FAILED  {time.monotonic() - start:5.1f} s  {walk.__name__}\n{traceback.format_exc()}"
                  f"{program.printed()}", flush=True)
        finally:
            program.end()
            shutil.rmtree(home, ignore_errors=True)
    return 1 if failed else 0


if __name__ == "__main__":
    sys.exit(main())
