"""What the Debian package puts on the disk, and what it leaves to its maintainer scripts."""

import os
import subprocess
import sys
import tempfile
import unittest


class Package(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        folder = tempfile.TemporaryDirectory()
        cls.addClassCleanup(folder.cleanup)
        cls.root = folder.name
        subprocess.run(["cmake", "-P", SCRIPT], cwd=cls.root, check=True)

    def path(self, *names):
        return os.path.join(self.root, *names)

    def test_program_folder_holds_nothing_that_people_change(self):
        self.assertEqual(sorted(os.listdir(self.path("opt/quorvex"))),
                         ["Fonts", "Quorvex", "Quorvex.chm", "libquorvex_print.so", "user.ini"])
        self.assertEqual(os.readlink(self.path("opt/quorvex/user.ini")), "List/user.ini")

    def test_originals_are_all_listed(self):
        originals = self.path("usr/share/quorvex")
        self.assertEqual(sorted(os.listdir(originals)), ["Bitmap", "Data", "Sound", "update-folder"])
        there, listed = set(), set()
        for folder, _, names in os.walk(originals):
            for name in names:
                if name == ".shipped":
                    with open(os.path.join(folder, name), encoding="utf-8") as lines:
                        listed |= {os.path.join(folder, line.rstrip("\n")[65:]) for line in lines}
                elif folder != originals:
                    there.add(os.path.join(folder, name))
        self.assertEqual(there, listed)
        self.assertIn(os.path.join(originals, "Data/English/T_Word/Dictionary/TOEFL.ID"), listed)

    def test_desktop_finds_the_program(self):
        self.assertTrue(os.access(os.path.realpath(self.path("usr/bin/quorvex")), os.X_OK))
        for name in ["applications/quorvex.desktop", "metainfo/org.quorvex.Quorvex.metainfo.xml"]:
            self.assertTrue(os.path.isfile(self.path("usr/share", name)), name)
        for side in [16, 22, 24, 32, 48, 64, 128, 256]:
            with open(self.path(f"usr/share/icons/hicolor/{side}x{side}/apps/quorvex.png"), "rb") as icon:
                self.assertEqual(int.from_bytes(icon.read(24)[16:20], "big"), side)

    def test_notices_are_said(self):
        with open(self.path("usr/share/doc/quorvex/copyright"), encoding="utf-8") as file:
            text = file.read()
        for words in ["MIT License", "LIBERATION", "Bitstream Vera", "WenQuanYi", "WordNet 3.0", "Carnegie Mellon"]:
            self.assertIn(words, text)


if __name__ == "__main__":
    SCRIPT = sys.argv.pop(1)
    unittest.main()
