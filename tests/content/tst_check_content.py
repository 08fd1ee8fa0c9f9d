"""The content check finds one bad sample of each kind, and nothing in good ones."""

import os
import sys
import tempfile
import unittest

ARTICLE = "English/T_Article/Sea/"
CHINESE = "Chinese/E_General/1.txt"
WORDS = "English/T_Word/Dictionary/GRE.tsv"
LESSON = "English/T_Character/Standard/"
EASY = ("The sea is big. " * 40).strip()
HARD = ("Navigational instruments revolutionised international transportation immediately. " * 20).strip()
FAIR = "船慢慢地离开了港口。" * 20
COURSE = {"Standard": {"00": "fj", "01": "dk"}}


def lesson(title, groups, count=60):
    return title + "\r\n" + " ".join((groups.split() * count)[:count]) + "\r\n"


def article(text, first="At sea"):
    return f"{first}\r\n{text}\r\n"


class CheckContent(unittest.TestCase):
    def check(self, files, course=None):
        """What is found in a library of these files (path -> text or bytes)."""
        with tempfile.TemporaryDirectory() as root:
            for path, data in files.items():
                path = os.path.join(root, path)
                os.makedirs(os.path.dirname(path), exist_ok=True)
                with open(path, "wb") as file:
                    file.write(data if isinstance(data, bytes) else data.encode())
            read, wrong = library.read(root, check_content.load("library.json")["folders"])
        lessons.KEYBOARD = {"Standard": set("fjdk")}
        return read, wrong + list(check_content.check_library(read, course or {}, library.StopWords()))

    def find(self, expected, files, course=None):
        with self.subTest(expected or "good"):
            _, wrong = self.check(files, course)
            self.assertEqual(len(wrong), 1 if expected else 0, wrong)
            self.assertIn(expected, "".join(wrong))

    def test_texts(self):
        good = article(EASY)
        for expected, text in {
            "": good,
            "byte order mark": b"\xef\xbb\xbf" + good.encode(),
            "is no UTF-8": article(EASY).encode() + b"Caf\xe9.\r\n",
            "line ends other": good.replace("\r\n", "\n"),
            "exactly one line end": good + "\r\n",
            "line 2: not typable: \u2014 (U+2014)": good.replace(". ", " \u2014 ", 1),
            "two spaces": good.replace(". ", ".  ", 1),
            "line 2: starts or ends": good.replace("\r\nThe", "\r\n The", 1),
            "a tab": good.replace(" is", "\tis", 1),
            "line 1: is empty": "\r\n" + good,
            "117 words": article("The sea is big. " * 28 + "It is calm."),
            "stop list": good.replace("sea is", chr(115) + "hit is", 1),
        }.items():
            self.find(expected, {ARTICLE + "1.txt": text})

    def test_texts_together(self):
        easy, hard = article(EASY), article(HARD, "Afar")
        self.find("", {ARTICLE + "2.txt": easy, ARTICLE + "10.txt": hard})
        self.find("10.txt: figure", {ARTICLE + "2.txt": hard, ARTICLE + "10.txt": easy})
        self.find("the same first line", {ARTICLE + "1.txt": easy, ARTICLE + "2.txt": article(HARD)})
        self.find("the same paragraph", {ARTICLE + "1.txt": easy, ARTICLE + "2.txt": article(EASY, "Afar")})
        self.find("no dialog", {ARTICLE + "deeper/1.txt": easy})
        self.find("only in letter case", {ARTICLE + "a.txt": easy, ARTICLE + "A.txt": hard})

    def test_chinese(self):
        for expected, text in {"": FAIR, "\u9f98 (U+9F98)": FAIR.replace("船", "\u9f98", 1),
                               ", (U+002C)": FAIR.replace("。", ",", 1), "100 characters": FAIR[:100]}.items():
            self.find(expected, {CHINESE: text + "\r\n"})

    def test_words(self):
        good = "# note\nabate\t5\tverb\t\təˈbeɪt\tto become less\n"
        for expected, text in {"": good, "lower-case": good.replace("abate", "Abate"),
                               "not 1 to 9": good.replace("5", "10"), "has no IPA": good.replace("əˈbeɪt", ""),
                               "signs y": good.replace("əˈ", "y"),
                               "stands in line 2": good + good, "stop list": good.replace("abate", chr(115) + "hit"),
                               "mixes line ends": good + "\r\n# end\n"}.items():
            self.find(expected, {WORDS: text})

    def test_lessons(self):
        first, second = lesson("Home row one", "fjf jfj"), lesson("Home row two", "dfkj kd")
        for expected, one, two in (("", first, second),
                                   ("fjd: no lesson up to here teaches d", first.replace("fjf", "fjd", 1), second),
                                   ("new key k is struck only 0 times", first, second.replace("k", "d")),
                                   ("59 groups", first, lesson("Home row two", "dfkj kd", 59)),
                                   ("has 3 characters", first.replace("Home row one", "One"), second),
                                   ("the same title", first, second.replace("two", "one")),
                                   ("the same content", *(lesson(f"Row {n} here", "fjdk") for n in "12")),
                                   ("more than 10", first.replace("fjf", "fjfjfjfjfjf", 1), second)):
            course = COURSE if "content" not in expected else {"Standard": {"00": "fjdk", "01": ""}}
            self.find(expected, {LESSON + "00.txt": one, LESSON + "01.txt": two}, course)
        self.find("but it is missing", {LESSON + "00.txt": first}, COURSE)

    def test_complete(self):
        read, _ = self.check({ARTICLE + "1.txt": article(EASY), WORDS: "abate\t5\n"})
        for wanted, expected in (({"below": "English", "files": 2, "folders": 2}, None),
                                 ({"below": "English", "files": 3}, "2 files"),
                                 ({"below": "English", "folders": 3}, "2 folders"),
                                 ({"below": "English/T_Article", "has": ["Sea/1.txt"]}, None),
                                 ({"below": "English/T_Article", "has": ["Adage/1.txt"]}, "Adage/1.txt: missing"),
                                 ({"below": "English/T_Word", "words": {"GRE": 2}}, "1 words, not 2")):
            with self.subTest(wanted=wanted):
                found = list(check_content.check_complete(read, [wanted]))
                self.assertEqual(bool(found), bool(expected), found)
                self.assertIn(expected or "", "".join(found))

    def test_figures(self):
        for word, count in {"sea": 1, "table": 2, "make": 1, "wanted": 2, "walked": 1, "science": 2, "being": 2,
                            "actual": 3, "nation": 2}.items():
            self.assertEqual(readability.syllables(word), count, word)
        self.assertEqual(len(readability.sentences('Mr. Hill came. "Why?" he asked.\nTitle')), 3)
        self.assertEqual(readability.chinese_grade("船来了。我们，走吧！"), 3.5)
        self.assertEqual(sorted(["10.txt", "b", "2.txt", "A"], key=library.natural), ["2.txt", "10.txt", "A", "b"])


if __name__ == "__main__":
    sys.path.insert(0, sys.argv.pop(1))
    import check_content
    import lessons
    import library
    import readability
    unittest.main()
