"""What happens to files behind the program's back: a deleted user, a locked dictionary, ruined pictures."""

import os
import shutil
import sqlite3

from desktop import until
from journey import Journey

JUNIOR = "Typing Course \\ Key Drill (Junior)"
WORD = "Typing Course \\ Word Drill"


class Faults(Journey):
    def test_user_deleted_in_a_drill(self):
        p = self.program
        p.open_menu()
        p.click("English typing", opens=JUNIOR)
        p.type("fx")
        p.described("Correct rate", "50%")
        shutil.rmtree(p.path("Users", "anna"))
        p.go(("alt+F4", "Quorvex"))
        self.assertEqual(os.listdir(p.path("Users")), [])
        p.click("English typing", opens="Login")

    def test_dictionary_locked_for_a_while(self):
        p = self.program
        p.write(b"anna;\r\n", "user.ini")
        p.write(b"[English]\r\nWordTrain_ShowExplanation=1\r\n", "Users", "anna", "Setting.ini")
        p.open_menu()
        with sqlite3.connect(p.path("Data", "English", "T_Word", "Dictionary", "TOEFL.Dat"), isolation_level=None) as dat:
            dat.execute("BEGIN EXCLUSIVE")
            p.click("English typing")
            p.click("Word drill", opens=WORD)
            line = until(lambda: p.screen.find("Line to type").description, "words").split(" ")
            p.described("Explanation", line[0])
            dat.execute("ROLLBACK")
        p.type(line[0] + " ")
        p.holds(lambda: p.screen.find("Explanation").description.startswith(line[1] + " "), "an explanation")

    def test_pictures_ruined_between_two_starts(self):
        p = self.program
        p.open()
        p.kill()
        p.write(b"no pictures" * 500, "Bitmap", "1024_CH.DLL")
        p.process = p.start()
        said = "The pictures are missing or damaged; windows are shown in plain colours:\n"
        p.holds(lambda: said + p.path("Bitmap", "1024_CH.DLL") in [w.description for w in p.screen.windows()], said)
        p.go(("Return", "Login"))
