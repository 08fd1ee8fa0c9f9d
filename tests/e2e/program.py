"""The program in an install folder of its own, driven by keys and mouse."""

import os
import shutil
import signal

from desktop import Missing, until
from screen import Gone


class Program:
    def __init__(self, desktop, screen, shipped, folder):
        """Copies the install folder `shipped` to `folder`."""
        self.desktop, self.screen, self.folder = desktop, screen, folder
        shutil.copytree(shipped, folder)
        self.process = None

    def start(self, **environment):
        """Starts a copy of the program and returns its process."""
        sound = os.path.join(self.desktop.folder, "sound.raw")
        return self.desktop.spawn(
            [os.path.join(self.folder, "Quorvex")], "program", cwd=self.desktop.folder,
            env={"QT_LINUX_ACCESSIBILITY_ALWAYS_ON": "1", "QT_QPA_PLATFORM": "xcb", "QT_QPA_PLATFORMTHEME": "",
                 "SDL_AUDIODRIVER": "disk", "SDL_DISKAUDIOFILE": sound, **environment})

    def open(self, **environment):
        """Starts the program and waits for the login dialog."""
        self.process = self.start(**environment)
        self.wait_active("Login")

    def ended(self):
        """Waits until the program has ended and returns its exit code."""
        until(lambda: self.process.poll() is not None, "the program's end")
        return self.process.returncode

    def kill(self):
        if self.process and self.process.poll() is None:
            self.process.send_signal(signal.SIGKILL)
            self.process.wait()

    # Files

    def path(self, *names):
        return os.path.join(self.folder, *names)

    def bytes(self, *names):
        with open(self.path(*names), "rb") as file:
            return file.read()

    def settings(self, user):
        """The keys of the user's Setting.ini in lower case: {(section, key): value}."""
        found, section = {}, ""
        for line in self.bytes("Users", user, "Setting.ini").decode("utf-8").splitlines():
            if line.startswith("["):
                section = line[1:line.index("]")].lower()
            elif "=" in line:
                key, value = line.split("=", 1)
                found[section, key.strip().lower()] = value
        return found

    # Reading the screen

    def see(self, name, role=None, limit=15.0):
        """Waits for a shown control of this name and returns it."""
        return until(lambda: self.screen.find(name, role), f"{role or 'a control'} called {name!r}", limit)

    def wait_gone(self, name, role=None):
        until(lambda: not self.screen.find(name, role), f"{name!r} to disappear")

    def wait_active(self, title):
        """Waits until the window of this title has the focus of the display; titles are compared without end spaces."""
        def active():
            return self.active_title() == title
        until(active, lambda: f"{title!r} in front, where {self.active_title()!r} is")

    def active_title(self):
        try:
            for window in self.screen.windows():
                if window.has("active"):
                    return window.name.strip()
        except Gone:
            pass
        return ""

    def holds(self, condition, what, limit=15.0):
        """Waits for a condition that reads controls, which may vanish meanwhile."""
        def safe():
            try:
                return condition()
            except (Gone, AttributeError):
                return False
        return until(safe, what, limit)

    # Acting

    def keys(self, *names):
        self.desktop.xdotool("key", "--delay", 20, *names)

    def type(self, text):
        self.desktop.xdotool("type", "--delay", 20, "--", text)

    def click(self, name, role=None, times=1):
        """Clicks the middle of a control as soon as it can be used."""
        node = self.see(name, role)
        self.holds(lambda: {"enabled", "showing"} <= node.states(), f"{name!r} to be enabled")
        self.click_at(*node.centre, times=times)

    def click_at(self, x, y, times=1):
        self.desktop.xdotool("mousemove", x, y, "click", "--repeat", times, "--delay", 60, 1)

    def press(self, x, y):
        self.desktop.xdotool("mousemove", x, y, "mousedown", 1)

    def release(self, x, y):
        self.desktop.xdotool("mousemove", x, y, "mouseup", 1)


__all__ = ["Program", "Missing"]
