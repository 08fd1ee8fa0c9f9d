"""The junior key drill from the first key to what it leaves in the files."""

import os

from desktop import until
from journey import Journey
from screen import Gone

DRILL = "Typing Course \\ Key Drill (Junior)"
SENIOR_DRILL = "Typing Course \\ Key Drill (Senior)"
AT_REST = "Input by the current key suggested"
RUNNING = "Suspended by PAUSE/BREAK"
COMPLETED = "You have been completed the courses you selected\nContinued to practice other courses?"


class FirstLesson(Journey):
    def open_drill(self):
        self.program.open()
        self.program.log_in("anna")
        self.program.click("English typing")
        self.program.wait_active(DRILL)

    def caps(self):
        """The key caps of the group as (character, state) pairs."""
        try:
            row = self.program.see("Keys to type")
            return [(cap.name, cap.description) for cap in row.children() if cap.has("showing")]
        except Gone:
            return []

    def expect_caps(self, group, typed):
        """Waits until the group's caps are shown and so many of them are typed."""
        states = ["typed"] * typed + ["type this key now"] + ["to type"] * (len(group) - typed - 1)
        until(lambda: self.caps() == list(zip(group, states)), lambda: f"{group} with {typed} typed, not {self.caps()}")

    def heard(self):
        """Whether the sound device was given anything but silence."""
        with open(os.path.join(self.program.desktop.folder, "sound.raw"), "rb") as sound:
            return any(sound.read())

    def test_keys_right_wrong_and_paused(self):
        p = self.program
        self.open_drill()
        p.see("Home row 1: index and middle (F J D K)", "label")
        p.see(AT_REST, "label")
        self.expect_caps("FFF", 0)
        p.described("Time", "time:")

        p.keys("f")
        self.expect_caps("FFF", 1)
        p.keys("f")
        self.expect_caps("FFF", 2)
        p.see(RUNNING, "label")
        p.keys("x")
        p.see(AT_REST, "label")
        self.expect_caps("FFF", 2)
        p.described("Correct rate", "66%")
        self.assertNotEqual(p.see("Time").description, "time:", "the clock runs")

        p.keys("Pause")
        p.see(AT_REST, "label")
        p.keys("Left", "Insert", "Home", "Next")
        p.keys("shift+f")
        self.expect_caps("JJJ", 0)
        p.described("Correct rate", "75%")

        window = p.main_window()
        p.click("Minimize")
        until(lambda: not p.is_on_screen(DRILL) and not p.is_on_screen("Quorvex"), "the windows to go")
        p.desktop.xdotool("windowactivate", window)
        p.wait_active(DRILL)
        p.keys("j")
        self.expect_caps("JJJ", 1)

        p.click("Settings")
        p.wait_active("Quorvex", "dialog")
        p.holds(lambda: p.screen.find("Normal", "radio button").has("checked"), "key sounds at first")
        p.click("Music", "radio button")
        p.click("OK")
        p.wait_active(DRILL)
        p.keys("j")
        self.expect_caps("JJJ", 2)
        until(self.heard, "a sound")

        p.click("Back to the menu")
        p.wait_active("Quorvex")
        self.assertEqual(p.bytes("Users", "anna", "MistakeEN.Dat"), b"\x01\x00F\x01\x00")
        settings = p.settings("anna")
        self.assertTrue(settings["english", "keytrain_filename"].endswith("Data\\English\\T_Character\\Standard\\00.txt"))
        self.assertEqual(settings["english", "keytrain_index"], "1")
        self.assertEqual(settings["main", "ensound"], "2")
        lines = p.bytes("Data", "English", "T_Character", "Standard", "02.txt").split(b"\r\n")
        self.assertEqual(lines, [b"fallible key training", b""] + [b"ffffff"] * 36 + [b""])

        p.click("English typing")
        p.wait_active(DRILL)
        self.expect_caps("JJJ", 0)
        p.click("Key drill (senior)")
        p.wait_active(SENIOR_DRILL)
        p.click("Key drill (junior)")
        p.wait_active(DRILL)
        p.keys("alt+F4")
        p.wait_active("Quorvex")
        self.assertIsNone(p.process.poll(), "only the drill is left")

    def test_a_lesson_to_its_end(self):
        p = self.program
        with open(p.path("Data", "English", "T_Character", "Standard", "99.txt"), "wb") as file:
            file.write(b"Three letters\r\nab  c \r\n")
        self.open_drill()
        p.click("Select a lesson")
        p.wait_active("Quorvex", "dialog")
        p.keys("End", "Return")
        p.see("Three letters", "label")
        self.expect_caps("AB", 0)

        p.type("abc")
        p.see(COMPLETED, "label")
        p.described("Progress", "100 %")
        p.click("Yes")
        p.see("Lessons", "list")
        p.keys("Escape")
        p.wait_active(DRILL)
        p.keys("c")
        p.see(COMPLETED, "label")
        p.click("No")
        p.wait_active(DRILL)
        self.expect_caps("AB", 0)
        p.described("Progress", "0 %")
        p.described("Time", "time:")

        p.click("Close")
        p.wait_active("Quorvex")
        self.assertFalse(os.path.exists(p.path("Data", "English", "T_Character", "Standard", "02.txt")),
                         "nothing was missed")
        self.assertFalse(os.path.exists(p.path("Users", "anna", "MistakeEN.Dat"))
                         and p.bytes("Users", "anna", "MistakeEN.Dat"))
        self.assertTrue(p.settings("anna")["english", "keytrain_filename"].endswith("99.txt"))
