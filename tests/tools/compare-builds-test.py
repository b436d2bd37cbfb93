"""The comparison of two builds: what it lets pass, and what it must not."""

import importlib.util
import pathlib
import unittest

ROOT = pathlib.Path(__file__).resolve().parents[2]
SPEC = importlib.util.spec_from_file_location("compare_builds", ROOT / "tools" / "compare-builds.py")
compare_builds = importlib.util.module_from_spec(SPEC)
SPEC.loader.exec_module(compare_builds)


def run(status=0, printed=("{}",), err="", files=None):
    return status, list(printed), err, files or {}


class Comparison(unittest.TestCase):
    def test_runs_that_are_alike_pass(self):
        one = run(files={"a.CIR": b"R1 1 2 50"})
        self.assertEqual(compare_builds.differences(one, one), ([], []))

    def test_what_is_printed_must_be_the_same_to_the_last_digit(self):
        fails, _ = compare_builds.differences(run(printed=['{"x":0.1}']), run(printed=['{"x":0.10000001}']))
        self.assertEqual(len(fails), 1)

    def test_a_missing_event_status_message_or_file_is_a_difference(self):
        for other in (run(printed=[]), run(status=1), run(err="no"), run(files={"a": b""})):
            self.assertEqual(len(compare_builds.differences(run(), other)[0]), 1)

    def test_a_file_may_differ_in_the_last_digit_of_a_number(self):
        for a, b in ((b"L1 1.2345E-06", b"L1 1.2346E-06"), (b"x=10", b"x=9"), (b"-.5 2", b"-.4 2")):
            fails, told = compare_builds.differences(run(files={"a": a}), run(files={"a": b}))
            self.assertEqual((len(fails), len(told)), (0, 1), (a, b))

    def test_and_in_nothing_else(self):
        for a, b in ((b"L1 1.2345E-06", b"L1 1.2347E-06"), (b"1.5 Hz", b"1.5 kHz"), (b"1 2", b"1"), (b"1E-06", b"1E-07")):
            fails, told = compare_builds.differences(run(files={"a": a}), run(files={"a": b}))
            self.assertEqual((len(fails), len(told)), (1, 0), (a, b))


class Scripts(unittest.TestCase):
    def test_every_family_and_topology_is_there(self):
        text = "\n".join(compare_builds.scripts())
        for name in compare_builds.FAMILIES + compare_builds.TOPOLOGIES + ["first-design"]:
            self.assertIn(name, text)


if __name__ == "__main__":
    unittest.main()
