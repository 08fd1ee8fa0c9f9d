"""The program in an install folder of its own, driven by keys and mouse."""

import os
import re
import shutil

from desktop import until
from screen import Gone


class Program:
    def __init__(self, desktop, screen, shipped, folder):
        """Copies the install folder `shipped` to `folder`."""
        self.desktop, self.screen, self.folder = desktop, screen, folder
        shutil.copytree(shipped, folder)
        self.process = None
        self.copies = []

    def start(self, **environment):
        """Starts a copy of the program and returns its process."""
        sound = os.path.join(self.desktop.folder, "sound.raw")
        copy = self.desktop.spawn(
            [os.path.join(self.folder, "Quorvex")], "program", cwd=self.desktop.folder,
            env={"QT_LINUX_ACCESSIBILITY_ALWAYS_ON": "1", "QT_QPA_PLATFORM": "xcb", "QT_QPA_PLATFORMTHEME": "",
                 "SDL_AUDIODRIVER": "disk", "SDL_DISKAUDIOFILE": sound, **environment})
        self.copies.append(copy)
        return copy

    def open(self, **environment):
        """Starts the program and waits for the login dialog."""
        self.process = self.start(**environment)
        self.wait_active("Login")

    def ended(self):
        """Waits until the program has ended and returns its exit code."""
        until(lambda: self.process.poll() is not None, "the program's end")
        return self.process.returncode

    def kill(self):
        """Ends every copy at once, without a word."""
        for copy in self.copies:
            copy.kill()
            copy.wait()

    # Files

    def path(self, *names):
        return os.path.join(self.folder, *names)

    def bytes(self, *names):
        with open(self.path(*names), "rb") as file:
            return file.read()

    def write(self, data, *names):
        """Writes a file, and its folder where it is missing."""
        os.makedirs(os.path.dirname(self.path(*names)), exist_ok=True)
        with open(self.path(*names), "wb") as file:
            file.write(data)

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

    def wait_active(self, title, role=None):
        """Waits until the window of this title (without spaces at its ends) has the focus of the display."""
        def active():
            shown, kind = self.active_window()
            return shown == title and role in (None, kind)
        until(active, lambda: f"{title!r} in front, where {self.active_window()} is")

    def active_window(self):
        """Title and role of the window that has the focus."""
        try:
            for window in self.screen.windows():
                if window.has("active"):
                    return window.name.strip(), window.role
        except Gone:
            pass
        return "", ""

    def is_on_screen(self, title):
        """Whether a window of this title is mapped; accessibility does not know what the window manager hides."""
        return bool(self.desktop.xdotool("search", "--onlyvisible", "--name", f"^{re.escape(title)} *$", check=False))

    def main_window(self):
        """The number of the main window, while it is on the screen."""
        return self.desktop.xdotool("search", "--onlyvisible", "--name", "^Quorvex$").split()[0]

    def described(self, name, description):
        """Waits until the control of this name has this description."""
        self.holds(lambda: self.screen.find(name).description == description,
                   lambda: f"{name!r} to be {description!r}, where it is {self.see(name).description!r}")

    def log_in(self, name):
        """Types a name into the login dialog, wants no placement test and waits for the menu."""
        self.type(name)
        self.keys("Return")
        self.refuse_placement_test(name)

    def open_menu(self):
        """Starts the program and logs in."""
        self.open()
        self.log_in("anna")

    def refuse_placement_test(self, name):
        """Answers No to the question after a login, and waits for the menu."""
        self.wait_active("Typing Speed Test")
        self.keys("Escape")
        self.see(f"Username:{name}")
        self.wait_active("Quorvex")

    def start_again(self):
        """Starts the program a second time, which brings this copy to the front, and waits for the second's end."""
        second = self.start()
        until(lambda: second.poll() is not None, "the second copy's end")
        return second.returncode

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

    def go(self, *steps):
        """Presses keys (separated by spaces) and waits for the window to which they lead, step by step. What has the
        focus there, by name and role, may be said too."""
        for keys, title, *focused in steps:
            self.keys(*keys.split())
            self.wait_active(title)
            if focused:
                self.holds(lambda: self.screen.find(*focused).has("focused"), f"the focus on {focused}")

    def click(self, name, role=None, times=1, opens=None):
        """Clicks the middle of a control as soon as it can be used, and waits for the window that it opens."""
        node = self.see(name, role)
        self.holds(lambda: {"enabled", "showing"} <= node.states(), f"{name!r} to be enabled")
        self.click_at(*node.centre, times=times)
        if opens:
            self.wait_active(opens)

    def click_at(self, x, y, times=1):
        self.desktop.xdotool("mousemove", x, y, "click", "--repeat", times, "--delay", 60, 1)
