#!/usr/bin/python3 -B
"""Runs the journeys: tests/e2e/journey.py --build build/release [--keep] [journey_login ...]

Each journey is a method test_* of a class derived from Journey in a file journey_*.py. It gets the program in a fresh
copy of the install folder. When one fails, the screen of that moment (<name>.png), what accessibility saw (<name>.txt)
and the program's own words (<name>.log) are in the folder e2e of the build folder. With --keep a failed journey leaves
its display and program alive until Enter is pressed, to be looked at by hand.
"""

import argparse
import glob
import os
import signal
import shutil
import subprocess
import sys
import unittest

HERE = os.path.dirname(os.path.abspath(__file__))
sys.path.insert(0, HERE)

from desktop import Desktop  # noqa: E402
from input_method import PinyinInput  # noqa: E402
from program import Program  # noqa: E402
from screen import Screen  # noqa: E402


class Stage:
    """What all journeys of a run share."""

    desktop = screen = shipped = evidence = input_method = None
    keep = False

    @classmethod
    def set_up(cls, build, keep):
        cls.keep = keep
        cls.evidence = os.path.join(build, "e2e")
        os.makedirs(cls.evidence, exist_ok=True)
        cls.desktop = Desktop()
        # What people get, not what lies in the build folder: somebody may have used the program there.
        cls.shipped = os.path.join(cls.desktop.folder, "shipped")
        subprocess.run(["cmake", "--install", build, "--prefix", cls.shipped], check=True, stdout=subprocess.DEVNULL)
        cls.screen = Screen(cls.desktop)


class Journey(unittest.TestCase):
    maxDiff = None
    longMessage = True

    def setUp(self):
        self.program = Program(Stage.desktop, Stage.screen, Stage.shipped,
                               os.path.join(Stage.desktop.folder, "install"))

    def start_pinyin(self):
        """Starts a Pinyin input method, off at first, for this journey. To be called before the program starts."""
        pinyin = PinyinInput(Stage.desktop, Stage.input_method)
        self.addCleanup(pinyin.close)
        return pinyin

    def tearDown(self):
        self.program.kill()
        shutil.rmtree(self.program.folder)

    def keep_evidence(self):
        base = os.path.join(Stage.evidence, self.id().split(".", 1)[-1])
        Stage.desktop.screenshot(base + ".png")
        with open(base + ".txt", "w", encoding="utf-8") as file:
            file.write(Stage.screen.tree())
        with open(base + ".log", "w", encoding="utf-8") as file:
            file.write(Stage.desktop.log("program"))
            file.write(f"Exit codes: {[copy.poll() for copy in self.program.copies]}\n")
        print(f"\nThe failing moment: {base}.png, .txt and .log", file=sys.stderr)
        if Stage.keep:
            input(f"Kept: DISPLAY={Stage.desktop.environment['DISPLAY']} and {self.program.folder}. Enter ends it. ")


class Result(unittest.TextTestResult):
    """Keeps the evidence at the moment of a failure, before anything is cleared away."""

    def addFailure(self, test, err):
        test.keep_evidence()
        super().addFailure(test, err)

    def addError(self, test, err):
        if isinstance(test, Journey):
            test.keep_evidence()
        super().addError(test, err)


def main():
    arguments = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawTextHelpFormatter)
    arguments.add_argument("--build", default=os.path.join(HERE, "../../build/release"))
    arguments.add_argument("--keep", action="store_true")
    arguments.add_argument("--input-method", choices=["ibus", "fcitx"], default="ibus", help="for Chinese text")
    arguments.add_argument("names", nargs="*", help="journey files, or journey_file.Class.test_method")
    given = arguments.parse_args()
    Stage.input_method = given.input_method
    names = given.names or sorted(os.path.basename(path)[:-3] for path in glob.glob(HERE + "/journey_*.py"))

    # An interrupted run cleans up like a finished one.
    signal.signal(signal.SIGTERM, lambda *_: sys.exit(143))
    sys.modules.setdefault("journey", sys.modules["__main__"])
    try:
        Stage.set_up(os.path.abspath(given.build), given.keep)
        suite = unittest.defaultTestLoader.loadTestsFromNames(names)
        result = unittest.TextTestRunner(verbosity=2, resultclass=Result).run(suite)
    finally:
        if Stage.desktop:
            Stage.desktop.close()
    return 0 if result.wasSuccessful() and result.testsRun else 1


if __name__ == "__main__":
    sys.exit(main())
