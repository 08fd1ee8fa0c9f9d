"""One copy at a time, and life after a sudden end."""

import os

from desktop import until
from journey import Journey


class Copies(Journey):
    def is_on_screen(self, title):
        return bool(self.program.desktop.xdotool("search", "--onlyvisible", "--name", f"^{title} *$", check=False))

    def test_a_second_copy_brings_the_first_to_the_front(self):
        p = self.program
        p.open()
        window = p.desktop.xdotool("search", "--onlyvisible", "--name", "^Quorvex$").split()[0]
        p.desktop.xdotool("windowminimize", window)
        until(lambda: not self.is_on_screen("Login"), "the dialog to go down with its owner")

        second = p.start()
        until(lambda: second.poll() is not None, "the second copy's end")
        self.assertEqual(second.returncode, 0)
        until(lambda: self.is_on_screen("Quorvex") and self.is_on_screen("Login"), "the first copy's windows")
        p.wait_active("Login")
        p.type("anna")
        p.keys("Return")
        p.see("Username:anna")
        self.assertIsNone(p.process.poll(), "the first copy goes on")

    def test_a_killed_program_starts_again(self):
        p = self.program
        p.open()
        p.type("anna")
        p.keys("Return")
        p.see("Username:anna")
        p.kill()
        p.open()
        p.click("anna", "list item", times=2)
        p.see("Username:anna")
        self.assertEqual(p.bytes("user.ini"), b"anna;\r\n")
        self.assertFalse(os.path.exists(p.path("tmp.ini")))
