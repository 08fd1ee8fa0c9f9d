"""Where bench/outside types: the windows, the keys that are right there, and the files that make them right."""

import os
import shutil
import struct
import typing

WORDS = ["asdf", "jkl;"]
LINE = " ".join(WORDS * 3)


class Place(typing.NamedTuple):
    steps: list  # keys that lead there from the menu, with the titles of the windows that they open
    text: str  # what to type
    rect: tuple  # what is watched, within the content area
    setting: str = ""


JUNIOR = [("alt+e", "Typing Course \\ Key Drill (Junior)")]
KEYPAD = [*JUNIOR, ("alt+k", "Keyboard Training\\ Number Keyboard")]
SENIOR = [*JUNIOR, ("alt+2", "Typing Course \\ Key Drill (Senior)")]
WORD = [*JUNIOR, ("alt+3", "Typing Course \\ Word Drill")]
TEXT = [*JUNIOR, ("alt+4", "Typing Course \\ Text Drill")]
TEST = [("alt+s", "Speed Test \\ Screen Text")]
PLACES = {
    "junior": Place(JUNIOR, "asdfjkl;", (16, 110, 962, 62)),
    "keypad": Place(KEYPAD, "789", (16, 110, 962, 62)),
    "senior": Place(SENIOR, "asdfjkl; ", (66, 130, 858, 110)),
    "word": Place(WORD, "asdf jkl; ", (70, 120, 850, 90)),
    "text-pairs": Place(TEXT, LINE + "\n", (70, 156, 850, 488), "ArticleTrain_FormType=3"),
    "text-pages": Place(TEXT, LINE + "\n", (70, 170, 850, 425), "ArticleTrain_FormType=4"),
    "text-over": Place(TEXT, LINE + "\n", (70, 170, 850, 440), "ArticleTrain_FormType=5"),
    "test-above": Place(TEST, LINE, (62, 169, 870, 459), "InComp=0"),
    "test-beside": Place(TEST, LINE, (62, 188, 870, 422), "InComp=1"),
    "test-over": Place(TEST, LINE, (62, 168, 870, 462), "InComp=2"),
    "test-alone": Place(TEST, LINE, (62, 168, 870, 462), "InComp=3"),
}

# The tool takes a key by what it types: 7, 8 and 9 are to be on the keypad and nowhere else.
KEY_MAP = """xkb_keymap {
    xkb_keycodes { include "evdev+aliases(qwerty)" };
    xkb_types { include "complete" };
    xkb_compat { include "complete" };
    xkb_symbols { include "pc+us+inet(evdev)" %s };
};""" % "".join(f"replace key <AE0{digit}> {{ [ NoSymbol ] }}; replace key <KP{digit}> {{ [ {digit} ] }}; "
                for digit in (7, 8, 9))


def write(data, *names):
    os.makedirs(os.path.dirname(os.path.join(*names)), exist_ok=True)
    with open(os.path.join(*names), "wb") as file:
        file.write(data if isinstance(data, bytes) else data.encode())


def write_material(folder, times):
    """Puts lessons, a dictionary and texts that the keys fit in the place of those that a new user meets."""
    data = os.path.join(folder, "Data", "English")
    write("Keys\n" + "asdfjkl; " * times, data, "T_Character", "Standard", "00.txt")
    write("Keypad\n" + "789 " * times, data, "T_Character", "Numpad", "00.txt")
    write((LINE + "\n") * times, data, "T_Article", "Adage", "1.txt")
    write((LINE + "\n") * times, data, "E_General", "lunch.txt")
    entry, difficulty = 1, 1
    records = [struct.pack(f"<iH{len(word)}shH", entry, len(word), word.encode(), difficulty, 0) for word in WORDS]
    write(b"".join(records) * times, data, "T_Word", "Dictionary", "TOEFL.ID")


def write_user(folder, setting):
    """Makes anna the only user, with this setting and without any other trace of her."""
    shutil.rmtree(os.path.join(folder, "Users"), ignore_errors=True)
    write("anna;\r\n", folder, "user.ini")
    section = "Exam" if "Comp" in setting else "English"
    write(f"[Main]\nBeginTest=0\n[{section}]\n{setting}\n", folder, "Users", "anna", "Setting.ini")
