"""Who types: making, choosing and deleting users, and the menu behind."""

import os

from journey import Journey


class Login(Journey):
    def users(self):
        return [item.name for item in self.program.see("Users", "list").find_all(role="list item")]

    def log_out(self):
        self.program.click("Change user")
        self.program.wait_active("Login")

    def test_a_typed_name_makes_a_user(self):
        p = self.program
        p.open()
        p.type("an na")
        self.assertEqual(p.see("User name", "text").text, "anna", "spaces never get into a name")
        p.keys("Return")
        p.refuse_placement_test("anna")
        self.assertEqual(p.bytes("user.ini"), b"anna;\r\n")
        self.assertTrue(os.path.isdir(p.path("Users", "anna")))
        self.assertFalse(os.path.exists(p.path("tmp.ini")))

        self.log_out()
        self.assertEqual(self.users(), ["anna"])
        p.log_in("ANNA")
        self.assertEqual(p.bytes("user.ini"), b"anna;\r\n", "case makes no other user")

        self.log_out()
        p.log_in("b|x")
        self.assertEqual(p.bytes("user.ini"), b"anna;\r\nb|x;\r\n")

        self.log_out()
        p.click("anna", "list item", times=2)
        p.refuse_placement_test("anna")
        p.keys("alt+F4")
        self.assertEqual(p.ended(), 0)

    def test_a_forbidden_sign_is_refused(self):
        p = self.program
        p.open()
        p.type("wh?")
        p.keys("Return")
        p.wait_active("Create account")
        p.see("The user name is unavailable.", "label")
        p.keys("Return")
        p.wait_active("Login")
        p.holds(lambda: p.screen.find("User name", "text").has("focused"), "the focus back in the name box")
        p.keys("BackSpace")
        p.click("Log in")
        p.refuse_placement_test("wh")
        self.assertEqual(p.bytes("user.ini"), b"wh;\r\n")

    def test_deleting_asks_and_takes_the_files_along(self):
        p = self.program
        os.makedirs(p.path("Users", "anna"))
        with open(p.path("user.ini"), "wb") as file:
            file.write("anna;\r\nno user\r\n\r\n李;\r\n".encode())
        with open(p.path("Users", "anna", "Setting.ini"), "wb") as file:
            file.write(b"[Main]\r\nEnSound=2\r\n")
        p.open()
        self.assertEqual(self.users(), ["anna", "李"])
        self.assertFalse(p.see("Delete").has("enabled"), "nobody is chosen yet")

        p.click("anna", "list item")
        p.holds(lambda: p.screen.find("User name", "text").text == "anna", "the chosen name in the box")
        p.click("Delete")
        p.wait_active("Confirm")
        p.see("Are you sure you want to delete this user?", "label")
        p.keys("Escape")
        p.wait_active("Login")
        self.assertTrue(os.path.exists(p.path("Users", "anna", "Setting.ini")))

        p.click("anna", "list item")
        p.click("Delete")
        p.wait_active("Confirm")
        p.click("Yes")
        p.wait_gone("anna", "list item")
        self.assertEqual(p.bytes("user.ini"), "李;\r\n".encode())
        self.assertFalse(os.path.exists(p.path("Users", "anna")))

        p.click("李", "list item")
        p.keys("Delete")
        p.wait_active("Confirm")
        p.keys("Return")
        p.wait_gone("李", "list item")
        self.assertEqual(p.bytes("user.ini"), b"")

    def test_a_drill_wants_a_user(self):
        p = self.program
        p.open()
        p.keys("Escape")
        p.wait_active("Quorvex")
        p.see("Username:")
        p.click("English typing")
        p.wait_active("Login")
        p.keys("Escape")
        p.wait_active("Quorvex")
        p.click("Close")
        self.assertEqual(p.ended(), 0)
        self.assertFalse(os.path.exists(p.path("user.ini")))
