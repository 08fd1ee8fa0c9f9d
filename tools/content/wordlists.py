"""Word lists: word, difficulty, part of speech, sense numbers, IPA and gloss, separated by tabs."""

import re

WORD = re.compile(r"[a-z]+(?:['-][a-z]+)*")
# The signs that docs/dictionaries.md lists.
IPA = set("abdefhijklmnoprstuvwzæðŋθɑɔəɚɛɝɡɪʃʊʌʒˈˌ")
IPA_COLUMN = 4


def rows(lines):
    """The lines that are words, as (line number, columns)."""
    for number, line in enumerate(lines, 1):
        if line.strip() and not line.startswith("#"):
            yield number, line.split("\t")


def check_row(columns, needs_ipa):
    if not WORD.fullmatch(columns[0]):
        yield "is no lower-case word that can be typed"
    if len(columns) < 2 or not re.fullmatch(r"[1-9]", columns[1]):
        yield "the difficulty is not 1 to 9"
    if any(column != column.strip() for column in columns):
        yield "a column starts or ends with a space"
    ipa = columns[IPA_COLUMN] if len(columns) > IPA_COLUMN else ""
    if needs_ipa and not ipa:
        yield "has no IPA"
    strange = set(ipa) - IPA
    if strange:
        yield f"unknown IPA signs {' '.join(sorted(strange))}"


def check_list(file, stop_words):
    """One list; fills its amount."""
    seen = {}
    for number, columns in rows(file.lines):
        word = columns[0]
        if word in seen:
            yield f"line {number}: {word} stands in line {seen[word]} already"
        seen.setdefault(word, number)
        for wrong in check_row(columns, file.place["ipa"]):
            yield f"line {number}: {word}: {wrong}"
    file.amount = len(seen)
    for word in stop_words.find("\n".join(seen)):
        yield f"{word} is on the stop list"
