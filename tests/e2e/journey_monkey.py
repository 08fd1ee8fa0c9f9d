"""Random but plausible keys and clicks through all windows: nothing crashes, hangs, grows without end or is lost.

A run is repeated by its seed. QUORVEX_MONKEY_EVENTS and QUORVEX_MONKEY_SEED say how long and which.
"""

import os
import random
import re
import struct
import time

from journey import Journey
from screen import Gone

EVENTS = int(os.environ.get("QUORVEX_MONKEY_EVENTS", "500"))
SEED = int(os.environ.get("QUORVEX_MONKEY_SEED", "1"))
BATCH = 25
KEYS = ["Return", "Return", "space", "BackSpace", "BackSpace", "Tab", "Escape", "Up", "Down", "Left", "Right", "Home",
        "End", "Delete", "Pause", "Next", "Prior", "F1", "shift+Tab", "ctrl+v", "ctrl+space", "ctrl+shift", "alt+F4",
        "KP_5", "KP_Add", "Num_Lock", "Caps_Lock"]
LETTERS = "etaoinshrdlucmfwypvbgkjqxz ETA.,;'1234567890-=/"
CLICKED = {"push button", "button", "list item", "radio button", "check box", "page tab", "combo box", "table cell",
           "label"}
SANITIZER = re.compile(r"AddressSanitizer|LeakSanitizer|runtime error:|ASSERT|Segmentation")
MEBIBYTE = 1 << 20


def check_training(data):
    """That a training file ends with a record."""
    at = 0
    while at < len(data):
        length = struct.unpack_from("<dffH", data, at)[3]
        at += 18 + length + 2
    assert at == len(data), "the file ends inside a record"


class Monkey(Journey):
    def setUp(self):
        super().setUp()
        self.random = random.Random(SEED)
        self.steps, self.memory = [], []
        self.last, self.stay = "", 0

    def begin(self):
        """Starts the program as one of three people."""
        p = self.program
        p.open()
        name = self.random.choice(["ann", "bob", "eve"])
        p.type(name)
        p.keys("Return")
        p.see(f"Username:{name}")

    def target(self, window):
        """The middle of something in the window that can be clicked, or any place."""
        try:
            nodes = [node for node in window.all() if node.role in CLICKED and {"showing", "enabled"} <= node.states()]
            # To leave the program, or to put it aside, is a rare wish.
            nodes = [node for node in nodes if node.name not in ("Close", "Minimize") or self.random.random() < 0.05]
            if nodes and self.random.random() < 0.9:
                return self.random.choice(nodes).centre
        except Gone:
            pass
        return self.random.randrange(self.program.desktop.width), self.random.randrange(self.program.desktop.height)

    def prompt(self, window):
        """What a typist would type next, as far as the window says so."""
        try:
            node = window.find("Line to type") or window.find("Text to copy")
            return node.description[:BATCH] if node else ""
        except Gone:
            return ""

    def events(self):
        """One call of xdotool: a few clicks and some typing."""
        windows = self.program.screen.windows()
        command = self.leave() if self.stays_too_long(windows) else []
        for _ in range(self.random.randrange(1, 4)):
            x, y = self.target(windows[0]) if windows else (10, 10)
            command += ["mousemove", x, y, "click", "--repeat", self.random.choice([1, 1, 1, 2]), "--delay", 30, 1]
        text = self.prompt(windows[0]) if windows and self.random.random() < 0.5 else ""
        while len(text) < BATCH:
            text += self.random.choice(LETTERS)
        for part in re.findall(r"[ -~]{1,6}", text):
            command += ["type", "--delay", 4, part]
            if self.random.random() < 0.5:
                command += ["key", "--delay", 8, self.random.choice(KEYS)]
        return command

    def stays_too_long(self, windows):
        """Notes which window is in front; true when it has been the same for some time."""
        try:
            name = windows[0].name if windows else ""
        except Gone:
            name = ""
        self.stay = self.stay + 1 if name == self.last else 0
        self.last = name
        return self.stay >= 5 and name != "Quorvex"

    def leave(self):
        self.stay = 0
        return ["key", "--delay", 60, "Escape", self.random.choice(["Escape", "alt+F4"])]

    def check(self):
        """Starts again after an orderly end; the windows answer, and the memory is noted."""
        p = self.program
        time.sleep(0.02)
        if p.process.poll() is not None:
            self.assertEqual(p.process.returncode, 0, f"a crash with seed {SEED} after {self.steps[-3:]}")
            p.desktop.xdotool("keyup", "shift", "keyup", "ctrl", "keyup", "alt")
            self.begin()
        if not p.active_window()[0]:
            p.desktop.xdotool("search", "--name", "^Quorvex", "windowactivate", "%@", check=False)
        p.holds(lambda: p.process.poll() is not None or p.screen.windows(),
                lambda: f"an answer with seed {SEED} after {self.steps[-3:]}")
        try:
            with open(f"/proc/{p.process.pid}/statm", encoding="ascii") as file:
                self.memory.append(int(file.read().split()[1]) * os.sysconf("SC_PAGE_SIZE"))
        except OSError:
            pass

    def check_files(self):
        """What was practised can be read to its end."""
        users = self.program.path("Users")
        for user in os.listdir(users):
            for file in os.listdir(os.path.join(users, user)):
                data = self.program.bytes("Users", user, file)
                if file.startswith("Record"):
                    check_training(data)
                elif file == "Setting.ini":
                    data.decode("utf-8")
                elif not file.startswith("Mistake"):
                    self.fail(f"{user} has a file {file}")

    def test_random_keys_and_clicks(self):
        self.begin()
        done = 0
        while done < EVENTS:
            command = self.events()
            self.steps.append(command)
            self.program.desktop.xdotool(*command, check=False)
            done += BATCH
            self.check()
        self.assertNotRegex(self.program.desktop.log("program"), SANITIZER)
        self.check_files()
        quarter = len(self.memory) // 4
        growth = max(self.memory[-quarter:]) - max(self.memory[quarter:2 * quarter])
        self.assertLess(growth, 40 * MEBIBYTE, "memory grows")
