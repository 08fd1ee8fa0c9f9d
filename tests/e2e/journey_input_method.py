"""An input method that is left on while English is practised."""

from desktop import until
from journey import Journey

DRILL = "Typing Course \\ Key Drill (Junior)"
WANTS_ENGLISH = "Please switch to English input"


class LeftOn(Journey):
    def typed_caps(self):
        caps = self.program.see("Keys to type").children()
        return [cap.description for cap in caps if cap.has("showing")].count("typed")

    def test_a_drill_asks_for_english_and_counts_nothing(self):
        p = self.program
        pinyin = self.start_pinyin()
        p.open_menu()
        p.click("English typing", opens=DRILL)
        pinyin.switch()
        p.type("ff")
        p.see(WANTS_ENGLISH, "label")
        p.keys("space")
        pinyin.switch()
        self.assertEqual(self.typed_caps(), 0)
        p.described("Time", "time:")

        p.type("f")
        p.holds(lambda: self.typed_caps() == 1, "the key to count")
        p.described("Correct rate", "100%")
        p.wait_gone(WANTS_ENGLISH, "label")
