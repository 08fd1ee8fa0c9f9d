"""A Pinyin input method on the private desktop: IBus with libpinyin, or Fcitx 5.

It starts with the plain layout; Ctrl+Space switches to Pinyin and back, as on people's desktops.
"""

import os

from desktop import until
from gi.repository import Gio, GLib

IBUS_SETTINGS = """[desktop/ibus/general]
preload-engines=['xkb:us::eng', 'libpinyin']
[desktop/ibus/general/hotkey]
triggers=['<Control>space']
"""
FCITX_PROFILE = """[Groups/0]
Name=Default
Default Layout=us
DefaultIM=pinyin
[Groups/0/Items/0]
Name=keyboard-us
[Groups/0/Items/1]
Name=pinyin
[GroupOrder]
0=Default
"""
# Wayland, the network and the panel of other desktops.
FCITX_LEFT_OUT = "wayland,waylandim,cloudpinyin,kimpanel,notificationitem,notifications"


class PinyinInput:
    def __init__(self, desktop, kind="ibus"):
        self.desktop, self.kind = desktop, kind
        if kind == "fcitx":
            self._write("fcitx5/profile", FCITX_PROFILE)
            self.process = desktop.spawn(["fcitx5", "-D", f"--disable={FCITX_LEFT_OUT}"], "fcitx5")
        else:
            self._write("glib-2.0/settings/keyfile", IBUS_SETTINGS)
            # The panel knows the hot key, so it is wanted.
            self.process = desktop.spawn(
                ["ibus-daemon", "--panel=/usr/libexec/ibus-ui-gtk3", "--emoji-extension=disable"], "ibus",
                env={"GSETTINGS_BACKEND": "keyfile"})
            until(lambda: desktop.xdotool("search", "--class", "ibus-ui-gtk", check=False), "the panel")
        until(lambda: self.engine() is not None, "the input method")

    def _write(self, name, text):
        path = os.path.join(self.desktop.environment["XDG_CONFIG_HOME"], name)
        os.makedirs(os.path.dirname(path), exist_ok=True)
        with open(path, "w", encoding="utf-8") as file:
            file.write(text)

    def engine(self):
        """The input method's own name for what is active, "" where nothing is typed into, None when it does not run."""
        if self.kind == "ibus":
            return self.desktop.output(["ibus", "engine"]) or None
        try:
            # Asked without starting it: the bus would start a second one, without the profile.
            bus = Gio.bus_get_sync(Gio.BusType.SESSION)
            return bus.call_sync("org.fcitx.Fcitx5", "/controller", "org.fcitx.Fcitx.Controller1", "CurrentInputMethod",
                                 None, None, Gio.DBusCallFlags.NO_AUTO_START, 5000, None).unpack()[0]
        except GLib.Error:
            return None

    def switch(self):
        """Presses Ctrl+Space and waits until Pinyin has become active, or the plain layout."""
        before = until(self.engine, "something to type into")
        self.desktop.xdotool("key", "ctrl+space")
        until(lambda: self.engine() not in (None, "", before), lambda: f"another input method than {before}")

    def candidates(self):
        """The window of the candidates, x, y, width and height, or nothing while there is none."""
        names = ["--name", "Fcitx5 Input Window"] if self.kind == "fcitx" else ["--class", "ibus-ui-gtk"]
        windows = self.desktop.xdotool("search", "--onlyvisible", *names, check=False).split()
        places = [self._place(window) for window in windows]
        return next((place for place in places if place and min(place[2:]) > 16), None)  # not the panel's icon

    def _place(self, window):
        shell = self.desktop.xdotool("getwindowgeometry", "--shell", window, check=False)
        found = dict(line.split("=", 1) for line in shell.splitlines() if "=" in line)
        return tuple(int(found[key]) for key in ("X", "Y", "WIDTH", "HEIGHT")) if "HEIGHT" in found else None

    def close(self):
        self.process.terminate()
        self.process.wait()
