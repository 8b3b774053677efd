"""The program as a screen reader sees and works it."""

import os

os.environ["QT_LINUX_ACCESSIBILITY_ALWAYS_ON"] = "1"

import pyatspi
from gi.repository import GLib

from session_tools import wait_until


def accessible(name, role="button"):
    """The program's element of this name and role that shows on the screen; None without one."""

    def search(element):
        for child in filter(None, element):
            shows = child.getState().contains(pyatspi.STATE_SHOWING)
            # Debian 12 says "push button" of what later releases call a button.
            if shows and child.name == name and child.getRoleName().removeprefix("push ") == role:
                return child
            if found := search(child):
                return found
        return None

    programs = filter(None, pyatspi.Registry.getDesktop(0))
    program = next((each for each in programs if each.name.lower() == "lumaport"), None)
    return program and search(program)


def press(name, role="button"):
    """Presses a button as a screen reader does."""
    actions = wait_until(lambda: accessible(name, role), f"the {role} {name}").queryAction()
    names = [actions.getName(number) for number in range(actions.nActions)]
    actions.doAction(names.index("Press"))


def take_messages():
    """Hands what has come over the message bus to those who wait for it."""
    while GLib.MainContext.default().iteration(False):
        pass


class UsableChanges(list):
    """What a screen reader hears of elements that can be pressed or no longer; use it in a with statement."""

    def __enter__(self):
        pyatspi.Registry.registerEventListener(self.hear, "object:state-changed:enabled")
        return self

    def __exit__(self, *_):
        pyatspi.Registry.deregisterEventListener(self.hear, "object:state-changed:enabled")

    def hear(self, event):
        self.append((event.source.name, bool(event.detail1)))

    def heard(self, name, usable):
        take_messages()
        return (name, usable) in self
