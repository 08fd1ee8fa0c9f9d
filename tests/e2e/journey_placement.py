"""The placement test from the login to the drill that it suggests."""

import os
import shutil

from desktop import until
from journey import Journey

TEST = "Typing Speed Test"


class Placement(Journey):
    def only_text(self, language, text):
        for kind in ("T_Article", "Professional"):
            shutil.rmtree(self.program.path("Data", language, kind))
        self.program.write(text, "Data", language, "T_Article", "Adage", "1.txt")

    def test_from_the_login_to_a_drill_and_never_asked_again(self):
        p = self.program
        self.only_text("English", b"A hut.\r\n")
        p.open()
        p.type("anna")
        p.go(("Return", TEST))
        p.click("Don't display this dialog next time.", "check box")
        p.click("Yes")
        p.described("Text to copy", "A hut.\n\n\n\nNext: A")
        p.type("A hux")
        p.keys("Pause")
        p.see("Suspended by PAUSE/BREAK", "label")
        p.type("y")
        p.keys("Pause", "BackSpace")
        p.type("t.")
        p.described("Typed text", "A hut.")
        p.go(("Return", "Suggestion"))
        p.keys("Return")
        p.wait_gone("Suggestion")
        self.assertEqual(p.settings("anna")["main", "begintest"], "0")
        self.assertEqual(sorted(os.listdir(p.path("Users", "anna"))), ["Setting.ini"])
        p.go(("alt+F4", "Quorvex"))

        p.click("Change user", opens="Login")
        p.click("anna", "list item", times=2, opens="Quorvex")

    def test_a_chinese_text_through_pinyin_and_home(self):
        p = self.program
        self.only_text("Chinese", "你好，我们学习。\r\n".encode("gb18030"))
        pinyin = self.start_pinyin()
        p.open()
        p.type("anna")
        p.go(("Return", TEST))
        p.click("Chinease-typing speed", "radio button")
        p.click("Yes")
        p.described("Text to copy", "你好，我们学习。\n\n\n\nNext: 你")
        pinyin.switch()
        for letters, typed in (("nihao", "你好"), (",", "你好，"), ("tamen", "你好，他们"), ("xuexi", "你好，他们学习")):
            p.type(letters)
            if letters.isalpha():
                until(pinyin.candidates, "candidates")
                p.keys("space")
            p.described("Typed text", typed)
        p.click("Finish the test", opens="Suggestion")
        result = p.see("Suggestion", "dialog").description
        self.assertRegex(result, r"^Result:\n\n    Speed[1-9]\d*   Correct Rate85%\nSuggestion:.+$")
        p.click("Home", opens="Quorvex")
        self.assertEqual(os.listdir(p.path("Users", "anna")), [])
