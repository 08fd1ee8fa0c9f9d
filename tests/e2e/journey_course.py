"""The typing course from drill to drill by tabs and the keypad switch, and what each of them stores."""

import os

from desktop import until
from journey import Journey

JUNIOR = "Typing Course \\ Key Drill (Junior)"
KEYPAD = "Keyboard Training\\ Number Keyboard"
SENIOR = "Typing Course \\ Key Drill (Senior)"
WORD = "Typing Course \\ Word Drill"
TEXT = "Typing Course \\ Text Drill"


class Course(Journey):
    def heard(self):
        """Whether the sound device was given anything but silence."""
        with open(os.path.join(self.program.desktop.folder, "sound.raw"), "rb") as sound:
            return any(sound.read())

    def test_five_drills_by_tabs(self):
        p = self.program
        p.write(b"Two groups\r\nfj FJ\r\n", "Data", "English", "T_Character", "Standard", "00.txt")
        p.write(b"Sums\r\n12+3 45\r\n", "Data", "English", "T_Character", "Numpad", "00.txt")
        p.write(b"One two.\r\n", "Data", "English", "T_Article", "Adage", "1.txt")
        p.open_menu()
        p.click("English typing", opens=JUNIOR)
        p.keys("f", "x")
        p.described("Correct rate", "50%")
        window = p.main_window()
        p.click("Minimize")
        until(lambda: not p.is_on_screen(JUNIOR) and not p.is_on_screen("Quorvex"), "the windows to go")
        p.desktop.xdotool("windowactivate", window)
        p.wait_active(JUNIOR)
        p.click("Settings")
        p.wait_active("Quorvex", "dialog")
        p.click("Music", "radio button")
        p.click("OK", opens=JUNIOR)
        p.keys("x")
        until(self.heard, "a sound")

        p.click("Numeric keypad", opens=KEYPAD)
        p.see("Sums", "label")
        p.keys("KP_1", "KP_2")
        p.described("Correct rate", "100%")
        p.click("Main keyboard", opens=JUNIOR)

        p.click("Key drill (senior)", opens=SENIOR)
        p.described("Line to type", "fj FJ ")
        p.type("fx")
        p.described("Typed so far", "fx")
        p.keys("BackSpace", "ctrl+v", "j", "space")
        p.described("Typed so far", "fj ")
        p.described("Correct rate", "75%")

        p.click("Word drill", opens=WORD)
        first = until(lambda: p.screen.find("Line to type").description.split(" ")[0], "a word")
        p.type(first + " ")
        p.described("Typed so far", first + " ")

        p.click("Text drill", opens=TEXT)
        p.described("Text to copy", "One two.\n\n\n\nNext: O")
        p.type("One")
        p.described("Typed text", "One")
        p.described("Correct rate", "100%")
        p.go(("alt+F4", "Quorvex"))

        self.assertIsNone(p.process.poll(), "only the drill is left")
        settings = p.settings("anna")
        self.assertEqual(settings["main", "ensound"], "2")
        self.assertEqual(settings["english", "keytrain_index"], "1")
        self.assertEqual(settings["english", "wordtrain_index"], "1")
        self.assertEqual(p.bytes("Users", "anna", "MistakeEN.Dat"), b"\x01\x00J\x03\x00")
