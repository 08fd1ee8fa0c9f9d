"""A lesson, a test and the records without a mouse."""

from journey import Journey

JUNIOR = "Typing Course \\ Key Drill (Junior)"
SENIOR = "Typing Course \\ Key Drill (Senior)"
KEYPAD = "Keyboard Training\\ Number Keyboard"
TEST = "Speed Test \\ Screen Text"


class Keyboard(Journey):
    def focused(self, name, role=None):
        self.program.holds(lambda: self.program.screen.find(name, role).has("focused"), f"the focus on {name!r}")

    def test_everything_by_keys(self):
        p = self.program
        for folder, name, text in (("T_Character/Standard", "99.txt", b"Last lesson\r\nab\r\n"),
                                   ("E_General", "lunch.txt", b"at noon")):
            with open(p.path("Data", "English", *folder.split("/"), name), "wb") as file:
                file.write(text)
        p.open()
        p.type("anna")
        p.keys("alt+l")
        p.wait_active("Typing Speed Test")
        p.keys("alt+n")
        p.wait_active("Quorvex", "frame")

        # The menu: arrows, Enter, letters, help, the system menu.
        self.focused("English typing")
        p.keys("Down", "Up", "F1")
        p.wait_active("Quorvex Help")
        p.keys("Escape")
        p.wait_active("Quorvex", "frame")
        p.keys("Return")

        # A drill: its lesson, its settings, its tabs.
        p.wait_active(JUNIOR)
        p.keys("alt+l")
        self.focused("Lessons")
        p.keys("End", "Return")
        p.see("Last lesson", "label")
        p.wait_active(JUNIOR)
        p.keys("a")
        p.described("Finger to use", "left index finger")
        p.keys("alt+s")
        p.wait_active("Quorvex", "dialog")
        self.focused("Normal", "radio button")
        p.keys("alt+m")
        p.holds(lambda: p.screen.find("Music", "radio button").has("checked"), "music to be chosen")
        p.keys("Return")
        p.wait_active(JUNIOR)
        p.keys("alt+s")
        self.focused("Music", "radio button")
        p.keys("Escape")
        p.wait_active(JUNIOR)
        p.described("Keyboard", "Next key: B, left index finger")
        p.keys("alt+k")
        p.wait_active(KEYPAD)
        p.keys("alt+k")
        p.wait_active(JUNIOR)
        p.keys("alt+2")
        p.wait_active(SENIOR)
        p.keys("F1")
        p.wait_active("Quorvex Help")
        p.keys("Escape")
        p.wait_active(SENIOR)
        p.keys("alt+b")
        p.wait_active("Quorvex", "frame")

        # A test to its result, then who is the fastest.
        p.keys("alt+s")
        p.wait_active(TEST)
        self.focused("Type here", "text")
        p.keys("alt+t")
        p.wait_active("Top List")
        p.keys("Escape")
        p.wait_active(TEST)
        p.type("at noon")
        p.wait_active("Test result")
        p.keys("alt+w")
        p.described("Wrong characters", "No character was typed wrong")
        p.keys("Tab", "Return")
        p.wait_active(TEST)
        p.keys("alt+t")
        p.wait_active("Top List")
        self.focused("Top list")
        p.keys("alt+o")
        p.wait_active(TEST)
        p.keys("alt+b")
        p.wait_active("Quorvex", "frame")

        # The records: the page of the tests, one ticked and deleted.
        p.keys("alt+c")
        p.wait_active("Personal Management")
        p.keys("alt+7")
        p.holds(lambda: p.screen.find("Speed tests", "radio button").has("checked"), "the tests' page")
        p.keys("Tab", "space", "Delete")
        p.wait_active("Confirm")
        p.keys("alt+y")
        p.holds(lambda: not p.screen.find("Clear all").has("enabled"), "nothing to delete any more")
        p.keys("Escape")
        p.wait_active("Quorvex", "frame")
        p.keys("alt+F4")
        self.assertEqual(p.ended(), 0)

    def test_alt_leads_on_through_an_input_method(self):
        p = self.program
        pinyin = self.start_pinyin()
        p.open()
        p.log_in("anna")
        p.keys("alt+e")
        p.wait_active(JUNIOR)
        p.keys("alt+l")
        self.focused("Lessons")
        p.keys("Escape")
        p.wait_active(JUNIOR)
        p.keys("alt+b")
        p.wait_active("Quorvex", "frame")
        p.keys("alt+s")
        p.wait_active(TEST)
        pinyin.switch()
        p.keys("alt+t")
        p.wait_active("Top List")
