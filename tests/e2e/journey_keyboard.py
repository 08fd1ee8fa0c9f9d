"""A lesson, a test and the records without a mouse."""

from journey import Journey

JUNIOR = "Typing Course \\ Key Drill (Junior)"
SENIOR = "Typing Course \\ Key Drill (Senior)"
KEYPAD = "Keyboard Training\\ Number Keyboard"
TEST = "Speed Test \\ Screen Text"


class Keyboard(Journey):
    def test_everything_by_keys(self):
        p = self.program
        p.write(b"Last lesson\r\nab\r\n", "Data", "English", "T_Character", "Standard", "99.txt")
        p.write(b"at noon", "Data", "English", "E_General", "lunch.txt")
        p.open()
        p.type("anna")
        # The menu: arrows, Enter, letters, help, the system menu.
        p.go(("alt+l", "Typing Speed Test"), ("alt+n", "Quorvex", "English typing"))
        p.go(("Down Up F1", "Quorvex Help"), ("Escape", "Quorvex"), ("Return", JUNIOR))

        # A drill: its lesson, its settings, its tabs.
        p.go(("alt+l", "Quorvex", "Lessons"), ("End Return", JUNIOR))
        p.see("Last lesson", "label")
        p.keys("a")
        p.described("Finger to use", "left index finger")
        p.go(("alt+s", "Quorvex", "Normal", "radio button"))
        p.keys("alt+m")
        p.holds(lambda: p.screen.find("Music", "radio button").has("checked"), "music to be chosen")
        p.go(("Return", JUNIOR), ("alt+s", "Quorvex", "Music", "radio button"), ("Escape", JUNIOR))
        p.described("Keyboard", "Next key: B, left index finger")
        p.go(("alt+k", KEYPAD), ("alt+k", JUNIOR), ("alt+2", SENIOR), ("F1", "Quorvex Help"), ("Escape", SENIOR),
             ("alt+b", "Quorvex"))

        # A test to its result, then who is the fastest.
        p.go(("alt+s", TEST, "Type here", "text"), ("alt+t", "Top List"), ("Escape", TEST))
        p.type("at noon")
        p.wait_active("Test result")
        p.keys("alt+w")
        p.described("Wrong characters", "No character was typed wrong")
        p.go(("Tab Return", TEST), ("alt+t", "Top List", "Top list"), ("alt+o", TEST), ("alt+b", "Quorvex"))

        # The records: the page of the tests, one ticked and deleted.
        p.go(("alt+c", "Personal Management"))
        p.keys("alt+7")
        p.holds(lambda: p.screen.find("Speed tests", "radio button").has("checked"), "the tests' page")
        p.go(("Tab space Delete", "Confirm"))
        p.keys("alt+y")
        p.holds(lambda: not p.screen.find("Clear all").has("enabled"), "nothing to delete any more")
        p.go(("Escape", "Quorvex"))
        p.keys("alt+F4")
        self.assertEqual(p.ended(), 0)

    def test_alt_leads_on_through_an_input_method(self):
        p = self.program
        pinyin = self.start_pinyin()
        p.open_menu()
        p.go(("alt+e", JUNIOR), ("alt+l", "Quorvex", "Lessons"), ("Escape", JUNIOR), ("alt+b", "Quorvex"),
             ("alt+s", TEST))
        pinyin.switch()
        p.go(("alt+t", "Top List"))
