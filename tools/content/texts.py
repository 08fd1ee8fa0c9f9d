"""Articles and test texts: what can be typed, how long they are, and from easy to hard."""

import itertools
import re

import library
import readability

CHINESE_MARKS = set("，。、；：？！…—―·・～（）《》〈〉「」『』【】〔〕“”‘’％℃￥×÷")

# Spaces and what is left of bytes that are no UTF-8: check_form reports them.
FOUND_BY_FORM = set("\t\u3000\u00a0\ufffd")


def typable(character, kind):
    if kind == "english":
        return " " <= character <= "~"
    if "\u4e00" <= character <= "\u9fff":
        try:
            character.encode("gb2312")
        except UnicodeEncodeError:
            return False
        return True
    return character in CHINESE_MARKS or character in " .%+-" or character.isascii() and character.isalnum()


def check_text(file):
    """One text by itself; fills its amount and grade."""
    body = "\n".join(file.lines)
    if file.kind == "english":
        file.amount, unit = len(readability.english_words(body)), "words"
        file.grade = readability.english_grade(body)
    else:
        file.amount, unit = readability.chinese_characters(body), "characters"
        file.grade = readability.chinese_grade(body)
    least, most = file.place["length"]
    if not least <= file.amount <= most:
        yield f"{file.amount} {unit}, not {least} to {most}"
    for number, line in enumerate(file.lines, 1):
        strange = {character for character in line if not typable(character, file.kind)} - FOUND_BY_FORM
        if strange:
            named = " ".join(f"{character} (U+{ord(character):04X})" for character in sorted(strange))
            yield f"line {number}: not typable: {named}"


def check_doubles(files):
    """Texts that begin alike or share a paragraph."""
    first, paragraphs = {}, {}
    for file in files:
        pieces = [(first, file.lines[0].strip().casefold(), "first line")]
        pieces += [(paragraphs, line, "paragraph") for line in file.lines[1:] if len(line) >= 40]
        for seen, piece, what in pieces:
            twin = seen.setdefault(re.sub(r"\W+", " ", piece), file)
            if twin is not file:
                yield f"{file.path}: the same {what} as {twin.path}: {piece[:40]}"


def check_order(files):
    """The numbered texts of a graded folder never become easier to read."""
    for _, folder in itertools.groupby((f for f in files if f.place["graded"] and f.name[0].isdecimal()),
                                       key=lambda file: file.folder):
        for before, after in itertools.pairwise(sorted(folder, key=lambda file: library.natural(file.name))):
            if after.grade < before.grade:
                yield f"{after.path}: figure {after.grade}, easier than {before.name} with {before.grade}"
