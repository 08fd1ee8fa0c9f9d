"""One copy at a time, and life after a sudden end."""

import os

from desktop import until
from journey import Journey


class Copies(Journey):
    def test_a_second_copy_brings_the_first_to_the_front(self):
        p = self.program
        p.open_menu()
        p.click("English typing")
        p.click("Select a lesson")
        p.see("Lessons", "list")
        p.desktop.xdotool("windowminimize", p.main_window())
        until(lambda: not p.is_on_screen("Quorvex"), "all windows to go down with their owner")

        self.assertEqual(p.start_again(), 0)
        p.wait_active("Quorvex", "dialog")
        p.holds(lambda: p.screen.find("Lessons", "list").has("focused"), "the focus in the list")
        self.assertIsNone(p.process.poll(), "the first copy goes on")

    def test_a_killed_program_starts_again(self):
        p = self.program
        p.open_menu()
        p.click("English typing")
        p.see("Select a lesson")
        p.keys("f")
        p.kill()
        p.open()
        p.click("anna", "list item", times=2)
        p.see("Username:anna")
        self.assertEqual(p.bytes("user.ini"), b"anna;\r\n")
        self.assertFalse(os.path.exists(p.path("tmp.ini")))
