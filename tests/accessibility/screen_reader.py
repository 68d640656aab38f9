"""Meets a program as a screen reader and a keyboard do: over AT-SPI, and by keys alone."""

import subprocess
import time

import gi

gi.require_version("Atspi", "2.0")
import pyatspi  # noqa: E402
from gi.repository import Gio, GLib  # noqa: E402

ROLES_WITH_NAMES = {
    pyatspi.ROLE_CHECK_BOX, pyatspi.ROLE_COMBO_BOX, pyatspi.ROLE_LABEL, pyatspi.ROLE_LIST,
    pyatspi.ROLE_MENU_ITEM, pyatspi.ROLE_PUSH_BUTTON, pyatspi.ROLE_RADIO_BUTTON,
    pyatspi.ROLE_SCROLL_BAR, pyatspi.ROLE_SPIN_BUTTON, pyatspi.ROLE_TEXT,
}


def enable_accessibility():
    """Says on the session bus what a screen reader says when it starts."""
    bus = Gio.bus_get_sync(Gio.BusType.SESSION)
    for name in ("IsEnabled", "ScreenReaderEnabled"):
        bus.call_sync("org.a11y.Bus", "/org/a11y/bus", "org.freedesktop.DBus.Properties", "Set",
                      GLib.Variant("(ssv)", ("org.a11y.Status", name, GLib.Variant("b", True))),
                      None, Gio.DBusCallFlags.NONE, -1)


def until(condition, seconds=10):
    """The first true value of the condition, or its last; events are heard meanwhile."""
    end = time.monotonic() + seconds
    while not (value := condition()) and time.monotonic() < end:
        while GLib.MainContext.default().iteration(False):
            pass
        time.sleep(0.02)
    return value


def has(control, state):
    return control.getState().contains(state)


def is_shown(control):
    return has(control, pyatspi.STATE_SHOWING)


class Program:
    def __init__(self, command):
        self.focused = None  # the control that last said that it has the keyboard
        self.renamed = []  # names of controls in the order in which they changed
        self.said = []  # what a screen reader says at once, wherever the keyboard is
        pyatspi.Registry.registerEventListener(self._on_focus, "object:state-changed:focused")
        pyatspi.Registry.registerEventListener(self._on_showing, "object:state-changed:showing")
        pyatspi.Registry.registerEventListener(self._on_announcement, "object:announcement")
        pyatspi.Registry.registerEventListener(self._on_name,
                                               "object:property-change:accessible-name")
        self.process = subprocess.Popen(command)
        self.application = until(self._find_application, 30)

    def _find_application(self):
        for application in pyatspi.Registry.getDesktop(0):
            if (application and application.get_process_id() == self.process.pid
                    and application.childCount):
                return application
        return None

    def _on_focus(self, event):
        if event.detail1:
            self.focused = event.source

    def _on_name(self, event):
        self.renamed.append(event.source.name)
        # A name that comes with the event is said of the control that has the keyboard.
        if event.source == self.focused and event.any_data == event.source.name:
            self.said.append(event.any_data)

    def _on_showing(self, event):
        if event.detail1 and event.source.getRole() == pyatspi.ROLE_NOTIFICATION:
            self.said.append(event.source.name)

    def _on_announcement(self, event):
        self.said.append(event.any_data)

    def controls(self, root=None):
        """All that is shown, windows first."""
        for child in root or self.application:
            if child is None:
                continue
            if is_shown(child):
                yield child
                yield from self.controls(child)

    def window(self, title):
        return until(lambda: next((window for window in self.application
                                   if window and window.name == title and is_shown(window)), None))

    def find(self, start, root=None):
        """The first shown control whose name starts so, or None."""
        return next((c for c in self.controls(root) if c.name.startswith(start)), None)

    def figure(self, heading):
        """What stands behind a heading: "7" of "Influence, Player 3: 7"."""
        control = self.find(heading + ": ")
        return control.name[len(heading) + 2:] if control else None

    def press(self, *keys):
        subprocess.run(["xdotool", "key", "--delay", "20", *keys], check=True)
        until(lambda: False, 0.15)

    def type(self, text):
        subprocess.run(["xdotool", "type", "--delay", "20", text], check=True)
        until(lambda: False, 0.15)

    def focus_name(self):
        return self.focused.name if self.focused else ""

    def tab_to(self, start, key="Tab"):
        """Presses Tab until the keyboard is on the control whose name starts so."""
        for _ in range(120):
            if self.focus_name().startswith(start):
                return True
            self.press(key)
        return False

    def tab_round(self):
        """The names of all controls that Tab reaches, once round."""
        names = []
        while (name := self.focus_name()) not in names and len(names) < 150:
            names.append(name)
            self.press("Tab")
        return names
