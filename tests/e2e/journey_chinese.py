"""A Chinese text, typed phrase by phrase through Pinyin, from choosing it to what it leaves in the files."""

import datetime
import struct

from desktop import until
from journey import Journey

SPEED_TEST = "Speed Test \\ Screen Text"
TEXT = "你好，我们学习中文。\n今天天气很好。\n"
# The person takes 他们 for 我们: one character wrong, one right.
TYPED = [("nihao", "你好"), (",", "，"), ("tamen", "他们"), ("xuexi", "学习"), ("zhongwen", "中文"), (".", "。"),
         ("jintian", "今天"), ("tianqi", "天气"), ("henhao", "很好"), (".", "。")]
FIRST_LINE = 10
PERSONS_PACE = 160  # milliseconds a key; so slow that the scales of Pinyin and of English give different levels
# Characters per minute from which a Pinyin typist with four of five right has this level.
LEVELS = [(80, "Expert"), (50, "Quick Typer"), (35, "Master"), (20, "Junior"), (10, "Junior"), (0, "Fresher")]


class Chinese(Journey):
    def choose_text(self):
        p = self.program
        p.click("Speed test", opens=SPEED_TEST)
        p.click("Select a lesson")
        p.see("Texts", "list")
        p.click("Chinese", "radio button")
        p.click("a.txt", "list item")
        p.click("OK")
        p.see("Speed Test/Screen Text —— E_General: a.txt", "label")

    def compose(self, pinyin, letters, place):
        """Types the letters of a phrase and looks where its candidates are; Space takes the first."""
        p = self.program
        p.desktop.xdotool("type", "--delay", PERSONS_PACE, letters)
        if not letters.isalpha():
            return
        x, y, width, height = until(pinyin.candidates, "candidates")
        self.assertTrue(y >= place[1] + place[3] or y + height <= place[1],
                        f"candidates at {x, y, width, height} cover the typing position {place}")
        p.keys("space")

    def type_text(self, pinyin):
        p = self.program
        done = ""
        for letters, characters in TYPED:
            self.compose(pinyin, letters, p.see("Type here").rect)
            done += characters
            line, shown = (1, done) if len(done) <= FIRST_LINE else (2, done[FIRST_LINE:])
            if len(done) < FIRST_LINE + 7:
                p.described(f"Typed text, line {line}", shown)

    def test_a_text_through_pinyin(self):
        p = self.program
        p.write(TEXT.replace("\n", "\r\n").encode("gb18030"), "Data", "Chinese", "E_General", "a.txt")
        pinyin = self.start_pinyin()
        p.open_menu()
        self.choose_text()
        pinyin.switch()
        self.type_text(pinyin)

        p.see("Correct rate:  94", "label")
        p.see("Backspace key: 0", "label")
        speed = next(int(label.name[15:]) for label in p.see("Test result", "dialog").find_all(role="label")
                     if label.name.startswith("Average speed: "))
        level = next(name for least, name in LEVELS if speed >= least)
        self.assertNotEqual(level, next(name for least, name in LEVELS if speed / 5 >= least), "the scales tell apart")
        p.see("Your level is:   " + level, "label")

        days = (datetime.date.today() - datetime.date(1899, 12, 30)).days
        text = b"Screen Text"
        record = struct.pack("<dffH", days, speed, 94, len(text)) + text + struct.pack("<h", 3)
        self.assertEqual(p.bytes("Users", "anna", "RecordEX.Dat"), record)
        self.assertEqual(p.bytes("Users", "anna", "MistakeCN.Dat"), b"\x03\x00" + "我".encode() + b"\x01\x00")
        p.go(("Return", SPEED_TEST))
