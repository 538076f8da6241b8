"""The last line of a test run counts what failed, whatever way it failed."""

import os
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

VERDICT = Path(__file__).resolve().parents[1] / "verdict.py"

# Stands for ctest: writes these results, if there are any, and ends with this status.
CTEST = """#!/bin/bash
while [[ $# -gt 0 && $1 != --output-junit ]]; do shift; done
[[ -z $RESULTS ]] || printf %s "$RESULTS" >"$2"
exit "$STATUS"
"""


def case(name, status="run", output=""):
    return f'<testcase name="{name}" status="{status}"><system-out>{output}</system-out></testcase>'


class Verdict(unittest.TestCase):
    def setUp(self):
        self.folder = Path(self.enterContext(tempfile.TemporaryDirectory(prefix="plotvue-verdict-")))
        (self.folder / "ctest").write_text(CTEST)
        (self.folder / "ctest").chmod(0o700)
        (self.folder / "counts-here").mkdir()
        self.env = {**os.environ, "PLOTVUE_VERDICT": str(self.folder / "counts-here"),
                    "PATH": f"{self.folder}:{os.environ['PATH']}"}

    def run_verdict(self, *words, **env):
        return subprocess.run([VERDICT, *words], env={**self.env, **env}, stdout=subprocess.PIPE, text=True,
                              check=False)

    def ctest(self, *cases, status=0):
        results = f"<testsuite>{''.join(cases)}</testsuite>" if cases else ""
        self.run_verdict("ctest", self.folder, RESULTS=results, STATUS=str(status))

    def must_say(self, passed, failed):
        said = self.run_verdict("sum")
        self.assertEqual(said.stdout.splitlines()[-1], f"{passed} passed, {failed} failed")
        self.assertEqual(said.returncode, 0 if passed and not failed else 1)

    def test_passed_tests_are_added_up(self):
        self.ctest(case("one"), case("two"))
        self.ctest(case("three"))
        self.must_say(3, 0)

    def test_a_failed_test_and_one_that_was_not_run(self):
        self.ctest(case("one"), case("two", "fail"), case("three", "notrun"), case("four", "disabled"), status=8)
        self.must_say(1, 3)

    def test_no_results(self):
        self.ctest()
        self.must_say(0, 1)

    def test_no_tests(self):
        self.ctest("<properties/>")
        self.must_say(0, 1)

    def test_results_of_an_earlier_run_do_not_count(self):
        self.ctest(case("one"))
        self.ctest()
        self.must_say(1, 1)

    def test_ctest_fails_though_every_test_passed(self):
        self.ctest(case("one"), status=1)
        self.must_say(1, 1)

    def test_tests_that_skip_or_test_nothing(self):
        self.ctest(case("python", output="Ran 3 tests in 0.1s\n\nOK (skipped=1)"),
                   case("nothing", output="Ran 0 tests in 0.0s\n\nOK"),
                   case("google", output="[  SKIPPED ] Any.Test (0 ms)"),
                   case("filter", output="[==========] 0 tests from 0 test suites ran. (0 ms total)"),
                   case("good", output="[==========] 10 tests from 2 test suites ran. (0 ms total)"))
        self.must_say(1, 4)

    def test_nothing_at_all(self):
        self.must_say(0, 0)

    def test_a_part_that_counts_nothing(self):
        self.run_verdict("part", "silent", "true")
        self.must_say(0, 1)

    def test_a_part_that_breaks_off_after_good_tests(self):
        self.run_verdict("part", "broken", "bash", "-c", f"{VERDICT} test one true; exit 1")
        self.must_say(1, 1)

    def test_a_part_whose_failure_is_counted_already(self):
        self.run_verdict("part", "bad", "bash", "-c", f"{VERDICT} test one true; {VERDICT} test two false; exit 1")
        self.must_say(1, 1)

    def test_a_step_that_fails(self):
        subprocess.run(["bash", "-c", ". tests/counting; step packages true; step build false"], env=self.env,
                       cwd=VERDICT.parents[1], stdout=subprocess.PIPE, check=False)
        self.must_say(0, 1)

    def test_a_second_try_is_told(self):
        self.run_verdict("test", "one", sys.executable, "-c",
                         "from tests.verdict import remark; remark('Tried twice.')")
        self.assertEqual(self.run_verdict("sum").stdout.splitlines()[-2:], ["Tried twice.", "1 passed, 0 failed"])


if __name__ == "__main__":
    unittest.main()
