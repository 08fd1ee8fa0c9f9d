"""An installation that is brought up to date keeps what people put or changed in it, as ./run makes it and as the Debian
package does."""

import os
import shutil
import subprocess
import sys
import tempfile
import unittest


class UpdateFolder(unittest.TestCase):
    def setUp(self):
        self.folder = tempfile.TemporaryDirectory()
        self.addCleanup(self.folder.cleanup)
        self.write("from", "Lessons/00 é.txt", "one")
        self.write("from", "Lessons/02.txt", "two")
        self.update()

    def path(self, *names):
        return os.path.join(self.folder.name, *names)

    def write(self, side, name, text):
        os.makedirs(os.path.dirname(self.path(side, name)), exist_ok=True)
        with open(self.path(side, name), "w", encoding="utf-8") as file:
            file.write(text)

    def update(self, source="from", target="to"):
        subprocess.run(["cmake", "-DFROM=" + self.path(source), "-DTO=" + self.path(target), "-P", SCRIPT], check=True)

    def installed(self):
        found = {}
        for folder, _, names in os.walk(self.path("to")):
            for name in names:
                with open(os.path.join(folder, name), encoding="utf-8") as file:
                    found[os.path.relpath(os.path.join(folder, name), self.path("to"))] = file.read()
        found.pop(".shipped")
        return found

    def test_follows_changes(self):
        self.write("from", "Lessons/00 é.txt", "one, better")
        self.write("from", "Lessons/03.txt", "three")
        os.remove(self.path("from", "Lessons/02.txt"))
        self.update()
        os.remove(self.path("to", "Lessons/03.txt"))  # what is missing comes back
        self.update()
        self.assertEqual(self.installed(), {"Lessons/00 é.txt": "one, better", "Lessons/03.txt": "three"})

    def test_keeps_what_people_changed(self):
        self.write("to", "Lessons/02.txt", "mine")
        self.write("to", "Lessons/mine.txt", "my own")
        self.write("from", "Lessons/02.txt", "two, better")
        self.update()
        self.update()
        kept = {"Lessons/00 é.txt": "one", "Lessons/02.txt": "mine", "Lessons/mine.txt": "my own"}
        self.assertEqual(self.installed(), kept)
        os.remove(self.path("from", "Lessons/02.txt"))
        self.update()
        self.assertEqual(self.installed(), kept)


class UpdatePackage(UpdateFolder):
    """The package ships what ./run would have installed into an empty folder."""

    def update(self):
        shutil.rmtree(self.path("originals"), ignore_errors=True)
        super().update("from", "originals")
        subprocess.run([PACKAGE_SCRIPT, self.path("originals"), self.path("to")], check=True)

    def test_links_of_people_stay(self):
        self.write("elsewhere", "mine", "mine")
        os.remove(self.path("to", "Lessons/02.txt"))
        os.symlink(self.path("elsewhere", "mine"), self.path("to", "Lessons/02.txt"))
        self.write("from", "Lessons/02.txt", "two, better")
        self.update()
        self.assertEqual(self.installed(), {"Lessons/00 é.txt": "one", "Lessons/02.txt": "mine"})

    def test_removal_leaves_what_people_made(self):
        self.write("to", "Lessons/02.txt", "mine")
        self.write("to", "More/mine.txt", "my own")
        subprocess.run([PACKAGE_SCRIPT, "--remove", self.path("to")], check=True)
        self.write("to", ".shipped", "")
        self.assertEqual(self.installed(), {"Lessons/02.txt": "mine", "More/mine.txt": "my own"})


if __name__ == "__main__":
    PACKAGE_SCRIPT = sys.argv.pop(2)
    SCRIPT = sys.argv.pop(1)
    unittest.main()
