"""Dictionaries are made from good word lists only, and a bad line is named."""

import os
import sqlite3
import subprocess
import sys
import tempfile
import unittest

HEAD = "  1 Notice of the\n  2   \n  3 makers.  \n"
LONG = "a part of a whole; " + "x" * 80
WORDNET = {
    "noun": [("bank", ["slope beside water; \"a steep bank\"; \"another\"", "a house for money", "slope beside water"]),
             ("whole", [LONG + "; " + "y" * 30])],
    "verb": [("bank", ["to trust"])],
    "adj": [("half", ["one of two equal parts"])],
    "adv": [],
}
FAULTS = [
    ("café\t1\tnoun\t\tæ\tx", "cannot be typed"),
    ("{a\t1\tnoun\t\tæ\tx", "never shown"),
    ("\t1\tnoun\t\tæ\tx", "no word"),
    ("bank\t0", "difficulty"),
    ("bank", "difficulty"),
    ("bank\t1\tnome\t\tæ", "no part of speech \"nome\""),
    ("zebra\t1\t\t\tæ\tx", "no part of speech"),
    ("bank\t1", "no phonetic"),
    ("bank\t1\t\t\tbaŋk:", "sign \":\" (U+003a)"),
    ("bank\t1\t\t\tŋk", "no vowel"),
    ("bank\t1\t\t\tˈbæŋˈkə", "stressed twice"),
    ("bank\t1\t\t\tbæŋkə", "no stress"),
    ("bank\t1\t\t\tbæŋkˈ", "without a syllable"),
    ("zebra\t1\tnoun\t\tæ", "no explanation"),
    ("bank\t1\tnoun\t1,4\tæ", "no sense \"4\""),
    ("bank\t1\tnoun\t\tæ\t" + "x" * 111, "longer than 110"),
    ("bank\t1\tnoun\t\tæ\tx\ty", "7 columns"),
    ("bank\t1\tnoun\t\tæ\tx ", "space too many"),
    ("good\t1\tnoun\t\tæ\tx", "line 2 already"),
]


class MakeDictionaries(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = folder.name
        for part, words in WORDNET.items():
            index, data = HEAD, HEAD
            for word, senses in words:
                offsets = []
                for gloss in senses:
                    offsets.append(f"{len(data.encode()):08}")
                    data += f"{offsets[-1]} 00 n 01 {word} 0 000 | {gloss}  \n"
                index += f"{word} n {len(senses)} 1 @ {len(senses)} 0 {' '.join(offsets)}  \n"
            self.write("wordnet/index." + part, index)
            self.write("wordnet/data." + part, data)
        self.write("wordnet/cntlist.rev", "bank%1:01:00:: 1 2\nbank%2:30:00:: 1 9\nhalf%5:00:00:x:00 1 1\n")

    def write(self, name, text):
        path = os.path.join(self.folder, name)
        os.makedirs(os.path.dirname(path), exist_ok=True)
        with open(path, "w", encoding="utf-8", newline="") as file:
            file.write(text)

    def make(self, lists, *options):
        for name, text in lists.items():
            self.write("lists/" + name, text)
        done = subprocess.run([MAKER, *options, "lists", "made"], cwd=self.folder, capture_output=True, check=False)
        return done.returncode, done.stderr.decode()

    def entries(self, name):
        with open(os.path.join(self.folder, "made", name + ".ID"), "rb") as file:
            words = file.read()
        with sqlite3.connect(os.path.join(self.folder, "made", name + ".Dat")) as database:
            return words, [text for (text,) in database.execute("SELECT text FROM entry ORDER BY id")]

    def test_good_lists(self):
        lists = {"Dictionary/A.tsv": "# note\n\nbank\t3\tnoun\t1,2,3\tbæŋk\r\nof\t1\tprep\t\təv\tnot off\n",
                 "General/B.tsv": "bank\t1\nwhole\t2\nhalf\t9"}
        code, said = self.make(lists, "--wordnet", "wordnet")
        self.assertEqual((code, said), (0, ""))
        words, texts = self.entries("Dictionary/A")
        self.assertEqual(words, b"\1\0\0\0\4\0bank\3\0\0\0" b"\2\0\0\0\2\0of\1\0\0\0")
        self.assertEqual(texts, ["& [bæŋk]\n% n. \n# slope beside water; a house for money",
                                 "& [əv]\n% prep. \n# not off"])
        self.assertEqual(self.entries("General/B")[1],
                         ["% v. \n# to trust", "% n. \n# " + LONG, "% adj. \n# one of two equal parts"])
        with open(os.path.join(self.folder, "made", "WordNet-notice.txt"), encoding="utf-8") as file:
            self.assertEqual(file.read(), "Notice of the\n\nmakers.\n")

    def test_bad_lines_are_named(self):
        for line, fault in FAULTS:
            text = "# note\ngood\t1\tnoun\t\tɡʊd\twhat is good\n" + line + "\n"
            code, said = self.make({"Dictionary/A.tsv": text}, "--wordnet", "wordnet")
            self.assertEqual(code, 1, line)
            self.assertTrue(said.startswith("lists/Dictionary/A.tsv:3: "), said)
            self.assertIn(fault, said)
            self.assertEqual(said.count("\n"), 1)
            self.assertFalse(os.path.exists(os.path.join(self.folder, "made/Dictionary/A.ID")))

    def test_what_is_missing_is_said(self):
        self.assertIn("no word list", self.make({"A.txt": ""})[1])
        self.assertIn("has no words", self.make({"A.tsv": "# none\n"})[1])
        self.assertIn("lists does not hold", self.make({}, "--wordnet", "lists")[1])
        self.assertIn("no explanation", self.make({"A.tsv": "bank\t1\tnoun\n"})[1])
        self.assertEqual(self.make({"A.tsv": "bank\t1\tnoun\t\t\ta slope\n"}), (0, ""))


if __name__ == "__main__":
    MAKER = sys.argv.pop(1)
    unittest.main()
