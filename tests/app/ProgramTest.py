"""The program as the system starts and ends it: its command line, its display, signals, a second instance.

Usage: ProgramTest.py BIN SOURCE [UNITTEST ARGUMENTS], where BIN holds quilm and quilm-script. Each test that opens a
window does so on a display of its own (Xvfb).
"""

import os
import pathlib
import re
import shutil
import signal
import subprocess
import sys
import tempfile
import time
import unittest

BIN = pathlib.Path(sys.argv[1]).resolve()
SOURCE = pathlib.Path(sys.argv[2]).resolve()
SECONDS = 60  # a machine may be busy
PAGE = ".+ - Quilm$"  # the title of the window when a design is open
UNREACHABLE = ":4931"  # nothing listens there

DESIGN = """press cmdDesignNew
press optButterworth
press optCapInLowpass
type txtBandwidth {width}
type txtInputTerm 50
press cmdPlot
file {path}
press cmdSave
"""


def wait_until(true, what):
    end = time.monotonic() + SECONDS
    while not true():
        if time.monotonic() > end:
            raise AssertionError("waited in vain: " + what)
        time.sleep(0.05)


class Display:
    """A display of its own, which can go away."""

    def __init__(self):
        read, write = os.pipe()
        self.server = subprocess.Popen(
            ["Xvfb", "-displayfd", str(write), "-screen", "0", "1366x768x24", "-noreset", "-nolisten", "tcp"],
            pass_fds=[write],
            stderr=subprocess.DEVNULL,
        )
        os.close(write)
        with os.fdopen(read) as numbers:
            self.name = ":" + numbers.readline().strip()

    def tool(self, *words):
        environment = {**os.environ, "DISPLAY": self.name}
        return subprocess.run(["xdotool", *words], env=environment, capture_output=True, text=True).stdout.split()

    def windows(self, title):
        return self.tool("search", "--onlyvisible", "--name", title)

    def key(self, window, keys):
        self.tool("windowfocus", "--sync", window, "key", keys)

    def end(self):
        if self.server.poll() is None:
            self.server.terminate()
            self.server.wait()


class ProgramTest(unittest.TestCase):
    def setUp(self):
        self.folder = pathlib.Path(tempfile.mkdtemp(prefix="quilm-program-"))
        self.addCleanup(shutil.rmtree, self.folder)
        self.data = self.folder / "data" / "quilm"
        self.preferences = self.folder / "config" / "quilm"
        self.state = self.folder / "state" / "quilm"
        self.programs = []
        self.locale = {}

    def tearDown(self):
        for program in self.programs:
            if program.poll() is None:
                program.kill()
            program.wait()

    def display(self):
        display = Display()
        self.addCleanup(display.end)
        return display

    def environment(self, display=None):
        kept = {k: v for k, v in os.environ.items() if k not in ("DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM")}
        for name, folder in (("DATA", self.data), ("CONFIG", self.preferences), ("STATE", self.state)):
            kept[f"XDG_{name}_HOME"] = str(folder.parent)
        kept["XDG_RUNTIME_DIR"] = str(self.folder)
        kept.update(self.locale)
        if display is not None:
            kept["DISPLAY"] = display
        return kept

    def call(self, *words, display=None):
        return subprocess.run(
            [BIN / "quilm", *words], env=self.environment(display), capture_output=True, text=True, timeout=SECONDS
        )

    def start(self, display, *words):
        program = subprocess.Popen([BIN / "quilm", *words], env=self.environment(display.name))
        self.programs.append(program)
        return program

    def design(self, name, width):
        path = self.folder / name
        script = DESIGN.format(width=width, path=path)
        subprocess.run(
            [BIN / "quilm-script"], input=script, text=True, check=True, stdout=subprocess.DEVNULL, timeout=SECONDS
        )
        return path

    def open_design(self, display, path):
        """The program with that design, when its page has come up: the opening page's title is the program's name."""
        before = len(display.windows(PAGE))
        program = self.start(display, str(path))
        wait_until(lambda: len(display.windows(PAGE)) > before or program.poll() is not None, "the design's page")
        self.assertIsNone(program.poll())
        return program

    def last_session(self):
        path = self.data / "LASTSESSION.QLM"
        return path.read_text() if path.exists() else ""

    def ends(self, program):
        program.wait(SECONDS)


class CommandLineOfTheProgram(ProgramTest):
    def test_help_and_version_need_no_display(self):
        version = self.call("--version")
        self.assertEqual(version.returncode, 0)
        self.assertRegex(version.stdout, r"^Quilm \d+\.\d+\.\d+\n$")
        self.assertIn("FILE", self.call("--help").stdout)

    def test_a_usage_error_is_told(self):
        wrong = self.call("--colour")
        self.assertEqual(wrong.returncode, 2)
        self.assertIn("--colour", wrong.stderr)

    def test_without_a_display_it_says_so(self):
        told = self.call()
        self.assertEqual(told.returncode, 1)
        self.assertIn("there is no display", told.stderr)

    def test_a_display_that_cannot_be_reached_is_named(self):
        for words in ([], ["--has-display"]):
            told = self.call(*words, display=UNREACHABLE)
            self.assertEqual(told.returncode, 1)
            self.assertIn("no window can be opened on the display " + UNREACHABLE, told.stderr)

    def test_it_only_looks_for_a_display_where_asked(self):
        found = self.call("--has-display", display=self.display().name)
        self.assertEqual((found.returncode, found.stderr), (0, ""))
        self.assertFalse(self.data.exists())

    def test_a_design_is_opened_at_once(self):
        display = self.display()
        path = self.design("lowpass.QLM", "1M")
        program = self.open_design(display, path)
        program.terminate()
        self.ends(program)
        self.assertEqual(program.returncode, 0)
        self.assertIn("3.183099E-09", self.last_session())  # 1 / (2 Pi 1e6 50)

    def test_a_desktop_finds_the_menu_entry_of_the_window(self):
        display = self.display()
        self.open_design(display, self.design("lowpass.QLM", "1M"))
        entry = (SOURCE / "packaging" / "linux" / "org.quilm.Quilm.desktop").read_text()
        name = re.search("^StartupWMClass=(.*)$", entry, re.MULTILINE)[1]
        of_name = display.tool("search", "--onlyvisible", "--class", f"^{name}$")
        self.assertEqual(of_name, display.windows(PAGE))

    def test_a_design_that_is_not_there_is_told(self):
        display = self.display()
        program = self.start(display, str(self.folder / "none.QLM"))
        wait_until(lambda: display.windows("Get Quilm File"), "the message")
        program.terminate()
        self.ends(program)


class RunScript(ProgramTest):
    """./run, with what it builds put in its place."""

    def tree(self):
        tree = self.folder / "tree"
        (tree / "tools").mkdir(parents=True)
        shutil.copy(SOURCE / "run", tree / "run")
        shutil.copytree(SOURCE / "examples", tree / "examples")
        bin_folder = tree / "build" / "release" / "bin"
        bin_folder.mkdir(parents=True)
        for name in ("quilm", "quilm-script"):
            (bin_folder / name).symlink_to(BIN / name)
        for name in (tree / "tools" / "install-packages", tree / "cmake"):
            name.write_text("#!/bin/sh\n")
            name.chmod(0o755)
        return tree

    def run_tree(self, display=None, words=()):
        tree = self.tree()
        environment = self.environment(display)
        environment["PATH"] = str(tree) + ":" + environment["PATH"]
        told = subprocess.run(
            [tree / "run", *words], env=environment, capture_output=True, text=True, timeout=SECONDS
        )
        return tree, told

    def test_an_unreachable_display_is_told_and_the_example_runs(self):
        tree, told = self.run_tree(UNREACHABLE)
        self.assertEqual(told.returncode, 0, told.stderr)
        self.assertIn("the display " + UNREACHABLE, told.stderr)
        self.assertIn("No window can be opened here", told.stdout)
        self.assertTrue(list((tree / "out").glob("*.svg")))

    def test_without_a_display_the_example_runs(self):
        tree, told = self.run_tree()
        self.assertEqual(told.returncode, 0, told.stderr)
        self.assertTrue(list((tree / "out").glob("*.svg")))

    def test_what_the_program_is_asked_it_answers(self):
        tree, told = self.run_tree(words=["--version"])
        self.assertTrue(told.stdout.startswith("Quilm "))
        self.assertFalse((tree / "out").exists())


class FoldersOfTheProgram(ProgramTest):
    def closed_with(self, *words):
        display = self.display()
        program = self.start(display, *words, str(self.design("lowpass.QLM", "1M")))
        wait_until(lambda: display.windows(PAGE) or program.poll() is not None, "the design's page")
        program.terminate()
        self.ends(program)

    def test_each_kind_of_file_has_its_folder(self):
        self.closed_with()
        self.assertEqual([path.name for path in self.data.iterdir()], ["LASTSESSION.QLM"])
        self.assertEqual([path.name for path in self.preferences.iterdir()], ["QuilmConfiguration.CFG"])
        self.assertEqual([path.name for path in self.state.iterdir()], ["window.ini"])

    def test_a_folder_of_its_own_holds_everything(self):
        bench = self.folder / "bench"
        self.closed_with("--folder", str(bench))
        kept = {"LASTSESSION.QLM", "QuilmConfiguration.CFG", "window.ini"}
        self.assertEqual({path.name for path in bench.iterdir()}, kept)
        for folder in (self.data, self.preferences, self.state):
            self.assertFalse(folder.exists())


class DesktopsOfOtherCountries(ProgramTest):
    """The toolkit makes the desktop's locale that of the whole program: a comma in Turkish, digits of its own in Arabic."""

    def files_of(self, locale):
        self.locale = {"LC_ALL": locale, "LOCPATH": str(BIN.parent / "locales")}
        for folder in (self.data, self.preferences, self.state):
            shutil.rmtree(folder, ignore_errors=True)
        design = self.design("lowpass.QLM", "1.25M")
        display = self.display()
        program = self.open_design(display, design)
        display.key(display.windows(PAGE)[0], "ctrl+5")  # to the plot, for which it is swept
        program.terminate()
        self.ends(program)
        files = [design, self.data / "LASTSESSION.QLM", self.preferences / "QuilmConfiguration.CFG"]
        return [re.sub(rb"\d{4}-\d\d-\d\d( \d\d:\d\d:\d\d)?", b"then", path.read_bytes()) for path in files]

    def test_files_are_the_same_byte_for_byte(self):
        expected = self.files_of("C")
        for locale in ("tr_TR.UTF-8", "ar_EG.UTF-8", "fa_IR.UTF-8"):
            with self.subTest(locale):
                self.assertEqual(self.files_of(locale), expected)


class EndOfTheProgram(ProgramTest):
    def test_a_message_that_stands_does_not_keep_it(self):
        """The configuration cannot be written; the message that says so waits for nobody."""
        display = self.display()
        program = self.open_design(display, self.design("lowpass.QLM", "1M"))
        configuration = self.preferences / "QuilmConfiguration.CFG"
        configuration.unlink(missing_ok=True)
        configuration.mkdir()
        display.key(display.windows(PAGE)[0], "ctrl+q")
        wait_until(lambda: display.windows("Exit"), "the exit page")
        display.key(display.windows("Exit")[0], "Return")
        wait_until(lambda: display.windows("^Quilm$"), "the message")
        self.assertEqual(self.last_session(), "")
        program.send_signal(signal.SIGTERM)
        self.ends(program)
        self.assertIn("3.183099E-09", self.last_session())

    def test_the_message_of_a_failed_read_does_not_keep_it(self):
        display = self.display()
        bad = self.folder / "bad.QLM"
        bad.write_text("header\r\ntitle\r\ndate\r\n")
        program = self.start(display, str(bad))
        wait_until(lambda: len(display.windows("Quilm")) > 1, "the message")
        program.send_signal(signal.SIGTERM)
        self.ends(program)
        self.assertEqual(program.returncode, 0)

    def test_the_displays_end_keeps_the_design(self):
        display = self.display()
        program = self.open_design(display, self.design("lowpass.QLM", "1M"))
        display.end()
        self.ends(program)
        self.assertIn("3.183099E-09", self.last_session())
        self.assertTrue((self.preferences / "QuilmConfiguration.CFG").exists())


class TwoInstances(ProgramTest):
    def test_the_later_to_close_wins(self):
        display = self.display()
        first = self.open_design(display, self.design("one.QLM", "1M"))
        second = self.open_design(display, self.design("two.QLM", "2M"))
        second.terminate()
        self.ends(second)
        self.assertIn("1.591549E-09", self.last_session())  # 1 / (2 Pi 2e6 50)
        first.terminate()
        self.ends(first)
        self.assertIn("3.183099E-09", self.last_session())
        self.assertEqual(list(self.data.glob("*.tmp")) + list(self.data.glob(".*.tmp")), [])


if __name__ == "__main__":
    unittest.main(argv=[sys.argv[0], *sys.argv[3:]])
