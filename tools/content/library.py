"""The files of a library of lessons, texts and word lists, and what each must keep to, whatever it is."""

import fnmatch
import hashlib
import os
import re

HERE = os.path.dirname(os.path.abspath(__file__))


class File:
    """One file: `path` below the library with slashes, `text` with line feeds only, `place` its entry in library.json.

    `figures` is filled by the checks: `amount` (groups, words or characters) and `grade` (readability).
    """

    def __init__(self, path, data, place):
        self.path = path
        self.data = data
        self.place = place
        self.folder, self.name = os.path.split(path)
        self.text = data.decode("utf-8-sig", "replace").replace("\r\n", "\n")
        self.lines = self.text.removesuffix("\n").split("\n")
        self.amount = 0
        self.grade = None

    @property
    def kind(self):
        return self.place["kind"]


def natural(name):
    """The order in which the program lists files: numbers by value, letters without regard to case."""
    return [(0, int(part), "") if part.isdecimal() else (1, 0, part.casefold())
            for part in re.split(r"(\d+)", name) if part]


def place_of(path, places):
    """The place that a dialog of the program lists this file from, or None. `*` stands for one folder."""
    folder, name = os.path.split(path)
    for place in places:
        if folder.count("/") == place["path"].count("/") and fnmatch.fnmatchcase(folder, place["path"]):
            extension = ".tsv" if place["kind"] == "words" else ".txt"
            return place if name.endswith(extension) and name in place.get("only", [name]) else None
    return None


def read(root, places):
    """All files below `root` in the program's order, and what is wrong with where they lie."""
    files, wrong = [], []
    for folder, folders, names in os.walk(root):
        folders.sort(key=natural)
        for name in sorted(names, key=natural):
            path = os.path.relpath(os.path.join(folder, name), root).replace(os.sep, "/")
            place = place_of(path, places)
            if place is None:
                wrong.append(f"{path}: no dialog of the program lists this file")
                continue
            if place["kind"] == "notice":
                continue
            with open(os.path.join(folder, name), "rb") as file:
                files.append(File(path, file.read(), place))
    seen = {}
    for file in files:
        twin = seen.setdefault(file.path.casefold(), file.path)
        if twin != file.path:
            wrong.append(f"{file.path}: differs from {twin} only in letter case")
    return files, wrong


def check_form(file):
    """Encoding, line ends and spaces."""
    if file.data.startswith(b"\xef\xbb\xbf"):
        yield "starts with a byte order mark"
    try:
        file.data.decode("utf-8")
    except UnicodeDecodeError as error:
        yield f"is no UTF-8 at byte {error.start}"
    ends = set(re.findall(rb"\r\n|\r|\n", file.data))
    if file.kind == "words":
        if len(ends) > 1:
            yield "mixes line ends"
    elif ends - {b"\r\n"}:
        yield "has line ends other than CR LF"
    if not file.text.endswith("\n") or file.text.endswith("\n\n"):
        yield "does not end with exactly one line end"
    if file.kind == "words":
        return
    for number, line in enumerate(file.lines, 1):
        if re.search(r"[\t\u3000\u00a0]", line):
            yield f"line {number}: holds a tab or a space that is none"
        if line != line.strip():
            yield f"line {number}: starts or ends with a space"
        if "  " in line:
            yield f"line {number}: holds two spaces in a row"
        if not line and (number == 1 or not file.lines[number - 2] or file.kind == "lesson"):
            yield f"line {number}: is empty"


class StopWords:
    """Words that no pupil should be made to type, kept as hashes so that nobody has to read them."""

    def __init__(self, path=os.path.join(HERE, "stop-words.txt")):
        with open(path, encoding="ascii") as file:
            self.hashes = {line.strip() for line in file if line.strip() and not line.startswith("#")}

    @staticmethod
    def hash(word):
        return hashlib.sha256(word.encode()).hexdigest()[:16]

    def find(self, text):
        """The forbidden words of a text, each once. A compound is a word of its own: roosters may crow."""
        words = set(re.findall(r"[a-z]+(?:-[a-z]+)*", text.lower()))
        return sorted(word for word in words if self.hash(word) in self.hashes)
