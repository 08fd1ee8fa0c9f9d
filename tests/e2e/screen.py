"""What is on the screen, read through accessibility: controls with their names, roles, states, texts and places.

It asks the program anew each time and keeps nothing, so that what it says is what is there now.
"""

import gi

gi.require_version("Gio", "2.0")
from gi.repository import Gio, GLib  # noqa: E402

ACCESSIBLE, COMPONENT, TEXT = (f"org.a11y.atspi.{name}" for name in ("Accessible", "Component", "Text"))
ROOT = "/org/a11y/atspi/accessible/root"
# Numbers of states as AT-SPI defines them.
STATES = {"active": 1, "checked": 4, "enabled": 8, "focused": 12, "selected": 23, "showing": 25}


class Gone(Exception):
    """The control or its program is not there any more."""


class Node:
    """One control of a program."""

    def __init__(self, bus, owner, path):
        self.bus, self.owner, self.path = bus, owner, path

    def _call(self, interface, method, arguments=None):
        try:
            return self.bus.call_sync(self.owner, self.path, interface, method, arguments, None,
                                      Gio.DBusCallFlags.NO_AUTO_START, 5000, None).unpack()
        except GLib.Error as error:
            raise Gone(f"{self.path}: {error.message}") from error

    def _property(self, interface, name):
        return self._call("org.freedesktop.DBus.Properties", "Get", GLib.Variant("(ss)", (interface, name)))[0]

    @property
    def name(self):
        return self._property(ACCESSIBLE, "Name")

    @property
    def description(self):
        return self._property(ACCESSIBLE, "Description")

    @property
    def role(self):
        return self._call(ACCESSIBLE, "GetRoleName")[0]

    def states(self):
        words = self._call(ACCESSIBLE, "GetState")[0]
        bits = words[0] | (words[1] << 32)
        return {name for name, bit in STATES.items() if bits >> bit & 1}

    def has(self, state):
        return state in self.states()

    @property
    def rect(self):
        """x, y, width, height on the screen."""
        return self._call(COMPONENT, "GetExtents", GLib.Variant("(u)", (0,)))[0]

    @property
    def centre(self):
        x, y, width, height = self.rect
        return x + width // 2, y + height // 2

    @property
    def text(self):
        return self._call(TEXT, "GetText", GLib.Variant("(ii)", (0, -1)))[0]

    def children(self):
        return [Node(self.bus, owner, path) for owner, path in self._call(ACCESSIBLE, "GetChildren")[0]]

    def all(self):
        """This control and everything in it; what vanishes while it is read is left out."""
        yield self
        try:
            children = self.children()
        except Gone:
            return
        for child in children:
            yield from child.all()

    def matches(self, name, role, showing):
        try:
            return ((name is None or self.name == name) and (role is None or self.role == role)
                    and (not showing or "showing" in self.states()))
        except Gone:
            return False

    def find(self, name=None, role=None, showing=True):
        """The first control in this one with this name and role, or None."""
        return next((node for node in self.all() if node.matches(name, role, showing)), None)

    def find_all(self, name=None, role=None, showing=True):
        return [node for node in self.all() if node.matches(name, role, showing)]

    def tree(self, depth=0):
        """All controls as indented lines, for a person who looks for a mistake."""
        try:
            states = " ".join(sorted(self.states()))
            try:
                rect = self.rect
            except Gone:
                rect = ""
            lines = [f"{'  ' * depth}{self.role} {self.name!r} {rect} {self.description!r} [{states}]"]
            for child in self.children():
                lines += child.tree(depth + 1)
            return lines
        except Gone:
            return [f"{'  ' * depth}(gone)"]


class Screen:
    """All programs of the desktop that accessibility knows."""

    def __init__(self, desktop):
        session = self._connect(desktop.environment["DBUS_SESSION_BUS_ADDRESS"])
        address = session.call_sync("org.a11y.Bus", "/org/a11y/bus", "org.a11y.Bus", "GetAddress", None, None,
                                    Gio.DBusCallFlags.NONE, 20000, None).unpack()[0]
        self.bus = self._connect(address)

    @staticmethod
    def _connect(address):
        flags = Gio.DBusConnectionFlags
        return Gio.DBusConnection.new_for_address_sync(
            address, flags.AUTHENTICATION_CLIENT | flags.MESSAGE_BUS_CONNECTION, None, None)

    def programs(self):
        root = Node(self.bus, "org.a11y.atspi.Registry", ROOT)
        root.bus.call_sync(root.owner, ROOT, ACCESSIBLE, "GetRole", None, None, Gio.DBusCallFlags.NONE, 20000, None)
        return root.children()

    def windows(self):
        """The windows that are shown, of all programs, the one in front first."""
        found = []
        for program in self.programs():
            try:
                for window in program.children():
                    states = window.states()
                    if "showing" in states:
                        found.insert(0 if "active" in states else len(found), window)
            except Gone:
                pass
        return found

    def find(self, name=None, role=None, showing=True):
        for window in self.windows():
            found = window.find(name, role, showing)
            if found:
                return found
        return None

    def tree(self):
        return "\n".join("\n".join(program.tree()) for program in self.programs())
