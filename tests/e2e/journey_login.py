"""Who types: making users, choosing one and leaving."""

import os

from journey import Journey


class Login(Journey):
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

        p.click("Change user", opens="Login")
        p.log_in("ANNA")
        self.assertEqual(p.bytes("user.ini"), b"anna;\r\n", "case makes no other user")

        p.click("Change user", opens="Login")
        p.log_in("b|x")
        self.assertEqual(p.bytes("user.ini"), b"anna;\r\nb|x;\r\n")

        p.click("Change user", opens="Login")
        p.click("anna", "list item", times=2)
        p.refuse_placement_test("anna")
        p.keys("alt+F4")
        self.assertEqual(p.ended(), 0)
