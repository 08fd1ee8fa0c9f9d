"""How hard a text is to read: one figure a text, by which the texts of a folder are ordered."""

import re

ABBREVIATIONS = re.compile(r"\b(Mr|Mrs|Ms|Dr|Prof|St|Sr|Jr|No|vs|etc|e\.g|i\.e|a\.m|p\.m|U\.S|U\.K|[A-Z])\.(?=\s)")


def english_words(text):
    return [word for word in text.split() if re.search(r"[A-Za-z0-9]", word)]


def syllables(word):
    """Good to a few per cent over a text; single words may be one off."""
    word = re.sub(r"[^a-z0-9]", "", word.lower())
    digits = sum(letter.isdigit() for letter in word)
    count = len(re.findall(r"[aeiouy]+", word))
    if re.search(r"[^aeiouy]e$", word) and not re.search(r"[^aeiouyl]le$", word):
        count -= 1
    elif re.search(r"[^aeiouytd]ed$|[^aeiouysxzcgh]es$", word):
        count -= 1
    count += len(re.findall(r"[^ctsgx]i[ao](?!u)|[aeiou]ing|[^qg]ua[lt]|^scien|creat", word))
    return max(1, count + digits)


def sentences(text):
    """Pieces that end with . ! or ?, or with the line."""
    found = []
    for line in ABBREVIATIONS.sub(r"\1", text).split("\n"):
        found += re.split(r"(?<=[.!?])[\"')\]]*\s+(?=[\"'(\[]*[A-Z0-9])", line)
    return [piece for piece in found if english_words(piece)]


def english_grade(text):
    """Flesch-Kincaid grade: school years that a reader needs."""
    words = [part for word in english_words(text) for part in re.split(r"-+", word) if part]
    if not words:
        return 0.0
    length = len(words) / max(1, len(sentences(text)))
    return round(0.39 * length + 11.8 * sum(map(syllables, words)) / len(words) - 15.59, 1)


def chinese_characters(text):
    """Characters and punctuation that are typed, line ends and spaces aside."""
    return len(re.sub(r"\s", "", text))


def chinese_grade(text):
    """Mean length of a sentence in characters, punctuation aside."""
    pieces = [re.sub(r"[^\u4e00-\u9fff0-9A-Za-z]", "", piece) for piece in re.split(r"[。！？!?\n]", text)]
    pieces = [piece for piece in pieces if piece]
    return round(sum(map(len, pieces)) / len(pieces), 1) if pieces else 0.0
