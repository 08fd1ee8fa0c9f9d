#!/usr/bin/env python3
"""Checks the lessons, texts and word lists of a data folder and prints what it holds.

check_content.py assets/data              is what is there right?
check_content.py --complete assets/data   and is all there that belongs to a release?
check_content.py --figures assets/data    also the length and readability of every text, to put them in order by
"""

import argparse
import itertools
import json
import os
import sys

import lessons
import library
import texts
import wordlists


def load(name):
    with open(os.path.join(library.HERE, name), encoding="utf-8") as file:
        return json.load(file)


def check_complete(files, minimum):
    """What a release has and these files have not."""
    for wanted in minimum:
        prefix = wanted["below"] + "/"
        here = [file for file in files if file.path.startswith(prefix)]
        folders = {file.folder for file in here}
        for what, count in (("files", len(here)), ("folders", len(folders))):
            if count < wanted.get(what, 0):
                yield f"{wanted['below']}: {count} {what}, not {wanted[what]} or more"
        paths = {file.path for file in here}
        for name in wanted.get("has", []):
            if prefix + name not in paths:
                yield f"{prefix + name}: missing, but the program opens it by default"
        words = wanted.get("words", {})
        for file in here:
            least = words.get(file.name.removesuffix(".tsv"), words.get("*", 0))
            if file.amount < least:
                yield f"{file.path}: {file.amount} words, not {least} or more"


def check_library(files, courses, stop_words):
    """Everything that can be said about the files without asking whether they are enough."""
    kinds = {kind: [file for file in files if file.kind == kind] for kind in ("lesson", "english", "chinese", "words")}
    for file in files:
        checks = [library.check_form(file)]
        if file.kind == "words":
            checks.append(wordlists.check_list(file, stop_words))
        else:
            checks.append(f"{word} is on the stop list" for word in stop_words.find(file.text))
        if file.kind in ("english", "chinese"):
            checks.append(texts.check_text(file))
        for wrong in itertools.chain.from_iterable(checks):
            yield f"{file.path}: {wrong}"
    yield from lessons.check(kinds["lesson"], courses)
    for kind in ("english", "chinese"):
        yield from texts.check_doubles(kinds[kind])
        yield from texts.check_order(kinds[kind])


def table(files):
    """Folder by folder: files, groups, words or characters, and the figure of the first and the last text."""
    units = {"lesson": "groups", "english": "words", "chinese": "characters", "words": "words"}
    yield f"{'folder':<36}{'files':>6}{'amount':>9} {'':<11}{'figure first / last'}"
    total = 0
    for folder, group in itertools.groupby(files, key=lambda file: file.folder):
        group = list(group)
        total += len(group)
        graded = [file.grade for file in group if file.grade is not None]
        figure = f"{graded[0]:>8.1f} / {graded[-1]:.1f}" if graded else ""
        amount = sum(file.amount for file in group)
        yield f"{folder:<36}{len(group):>6}{amount:>9} {units[group[0].kind]:<11}{figure}"
    yield f"{'all':<36}{total:>6}"


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("folder", help="the data folder")
    parser.add_argument("--complete", action="store_true", help="also ask for the counts of a release")
    parser.add_argument("--figures", action="store_true", help="also print every text's length and readability")
    options = parser.parse_args()

    places = load("library.json")
    files, wrong = library.read(options.folder, places["folders"])
    if not files:
        sys.exit(f"{options.folder}: no lessons, texts or word lists here")
    wrong += check_library(files, load("course.json"), library.StopWords())
    if options.complete:
        wrong += check_complete(files, places["minimum"])
    if options.figures:
        for file in files:
            if file.grade is not None:
                print(f"{file.path:<60}{file.amount:>6}{file.grade:>8.1f}")
    print("\n".join(table(files)))
    if wrong:
        print(f"\n{len(wrong)} found:", *wrong, sep="\n")
    sys.exit(bool(wrong))


if __name__ == "__main__":
    main()
