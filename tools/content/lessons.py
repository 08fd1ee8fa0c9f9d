"""Key lessons: a course in which every key is taught before it is used."""

import string

GROUPS = range(60, 161)
TITLE = range(8, 46)
LONGEST_GROUP = 10
# A new key that is struck less often in its lesson has not been trained.
STROKES_OF_A_NEW_KEY = 8
KEYBOARD = {"Standard": set(string.ascii_letters + string.digits + string.punctuation),
            "Numpad": set(string.digits + "+-*/.")}


def check_course(name, course):
    """Whether the table of a course (lesson number -> its new keys) teaches every key of its keyboard once."""
    if name == "Standard" and "02" in course:
        yield "Standard: 02 is the lesson that the program itself writes"
    taught = "".join(course.values())
    for key in sorted(KEYBOARD[name] - set(taught)):
        yield f"{name}: no lesson teaches {key}"
    for key in sorted(set(taught)):
        if taught.count(key) > 1 or key not in KEYBOARD[name]:
            yield f"{name}: {key} is taught twice or is not on this keyboard"


def check_lesson(lines, known, new):
    """One lesson, given what earlier lessons taught and what this one adds."""
    title, groups = lines[0], [group for line in lines[1:] for group in line.split()]
    if len(title) not in TITLE:
        yield f"the title has {len(title)} characters, not {TITLE.start} to {TITLE.stop - 1}"
    if any(not " " <= character <= "~" for character in title):
        yield "the title is not plain English"
    if len(groups) not in GROUPS:
        yield f"{len(groups)} groups, not {GROUPS.start} to {GROUPS.stop - 1}"
    for group in groups:
        untaught = set(group) - known - set(new)
        if untaught:
            yield f"{group}: no lesson up to here teaches {' '.join(sorted(untaught))}"
        if len(group) > LONGEST_GROUP:
            yield f"{group}: more than {LONGEST_GROUP} characters"
    text = "".join(groups)
    for key in new:
        if text.count(key) < STROKES_OF_A_NEW_KEY:
            yield f"the new key {key} is struck only {text.count(key)} times"


def check(files, courses):
    """All lessons. `courses` is course.json: folder name -> lesson number -> new keys."""
    for name, course in courses.items():
        yield from check_course(name, course)
    found = {name: {} for name in courses}
    titles, contents = {}, {}
    for file in files:
        found[file.folder.rsplit("/", 1)[-1]][file.name] = file
        file.amount = sum(len(line.split()) for line in file.lines[1:])
        for what, seen, value in (("title", titles, file.lines[0].casefold()),
                                  ("content", contents, " ".join(file.lines[1:]))):
            twin = seen.setdefault((file.folder, value), file)
            if twin is not file:
                yield f"{file.path}: the same {what} as {twin.path}"
    for name, course in courses.items():
        for extra in sorted(found[name].keys() - {number + ".txt" for number in course}):
            yield f"{found[name][extra].path}: course.json does not name this lesson"
        known = set()
        for number in sorted(course):
            file = found[name].get(number + ".txt")
            if file is None:
                yield f"{name}/{number}.txt: course.json names this lesson, but it is missing"
            else:
                for wrong in check_lesson(file.lines, known, course[number]):
                    yield f"{file.path}: {wrong}"
            known |= set(course[number])
