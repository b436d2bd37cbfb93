"""Runs two builds of quilm-script over the same scripts and compares what they print and write.

    tools/compare-builds.py COMMAND COMMAND

COMMAND is a quilm-script, with an emulator before it where it is for another processor. The scripts are the examples and
one for each family, topology and order that the program offers. What is printed carries every 32-bit value so that reading
it back gives the same bits; it must be the same, letter for letter, and so must messages and faults. A file that differs is
looked at number by number: two that differ by no more than one unit of their last digit are told and let pass.
"""

import argparse
import collections
import concurrent.futures
import itertools
import os
import pathlib
import re
import shlex
import shutil
import subprocess
import sys
import tempfile
from decimal import Decimal

EXAMPLES = pathlib.Path(__file__).resolve().parents[1] / "examples"
FAMILIES = ["optButterworth", "optChebycheff", "optCauer", "optBessel", "optGaussian", "optGaussian12",
            "optConstantK", "optMderived"]
TOPOLOGIES = ["optCapInLowpass", "optIndInLowpass", "optNodCapBandpass", "optNodIndBandpass", "optShuntInGeoSymm",
              "optSeriesInGeoSymm", "optMeshCapBandpass", "optCauerBandpass", "optCapInHighpass", "optIndInHighpass",
              "optSeriesInBandstop", "optShuntInBandstop"]
STEPS_FROM_3 = [0, 1, 4, 9]  # clicks of the order's spin control
NUMBER = re.compile(r"(?<![\w.])[-+]?\d+(?:\.\d*)?(?:[eE][-+]?\d+)?|(?<![\w.])[-+]?\.\d+(?:[eE][-+]?\d+)?")
SWEEP = re.compile(r'"event":"responses"')


def has_center(topology):
    return topology in TOPOLOGIES[2:8] + TOPOLOGIES[10:]


def offered(family, topology):
    """Whether the program offers the pair: the Cauer bandpass belongs to the Cauer kinds alone, which have few others."""
    of_zeros = topology == "optCauerBandpass"
    if family in ("optCauer", "optMderived"):
        return of_zeros or not has_center(topology)
    return not of_zeros


def entries(family, topology, steps):
    """The lines that enter one design and plot it: 1 MHz wide, those with a band at 10 MHz."""
    high_pass = topology in TOPOLOGIES[8:10]
    lines = [f"spin UpDown1 up {steps}"] if steps else []
    lines += ["type txtBandwidth 1M"]
    lines += ["type txtCenterFrequency 10M"] if has_center(topology) else []
    if family == "optChebycheff" or (family == "optCauer" and steps % 2):
        lines += ["type txtPassbandRipple .1"]
    if family == "optCauer":
        lines += ["type txtStopbandDepth 55", f"type txtStopbandFreq {'700k' if high_pass else '1.4M'}"]
    if family == "optMderived":  # asks for its zeros when it is chosen and when it is plotted
        zero = ".8M" if high_pass else "1.25M"
        lines += ["press optMderived", f"type txtZeroFreq1 {zero}", "press cmdOk", "press cmdPlot", "press cmdOk"]
    else:
        lines += ["press cmdPlot"]
    return lines


def design_script(family, topology, steps):
    """One design: swept linearly without losses and in ratios with them, printed, drawn and written for other programs."""
    first_family = "optCauer" if family == "optMderived" else family  # which lets the same topologies be chosen
    start, stop = ("8M", "12.5M") if has_center(topology) else ("50k", "5M")
    lines = ["date 2026-01-01 12:00:00", "seed 7", "press cmdDesignNew", f"press {first_family}", f"press {topology}",
             *entries(family, topology, steps), "record", "responses", "canvas",
             "press cmdAnalysis", f"type txtFstart {start}", f"type txtFstop {stop}", "type txtNrIntervals 500",
             "press optLog", "type txtQinductor 150", "type txtQcapacitor 900", "press cmdPlot", "responses",
             "press cmd11", "picture smith.svg", "press cmd4", "picture delay.pdf",
             "press cmdSchematic", "picture schematic.svg", "file save design.QLM", "press cmdSave",
             "press cmdAnalysis", "press cmdSpice"]
    for name, press in [("design.DAT", "cmdWriteTabulatedS"), ("readable.DAT", "cmdWriteTabulatedE"),
                        ("design.CIR", "cmdWriteNetlist"), ("design.ASC", "cmdWriteSpiceSchematic")]:
        lines += [f"file save {name}", f"press {press}"]
    lines += ["press optNgspice", "file save verified.CIR", "press cmdWriteVerified", "press cmdWriteSnP",
              "file save design.S2P", "press cmdContinue"]
    return "\n".join(lines) + "\n"


def scripts():
    """All scripts by name."""
    found = {path.stem: "date 2026-01-01 12:00:00\n" + path.read_text() for path in sorted(EXAMPLES.glob("*.qsc"))}
    for family, topology, steps in itertools.product(FAMILIES, TOPOLOGIES, STEPS_FROM_3):
        if offered(family, topology):
            found[f"{family} {topology} {3 + steps}"] = design_script(family, topology, steps)
    return found


def run(command, script, folder):
    """The exit status, what was printed on both outputs and the files that were written."""
    (folder / "out").mkdir()
    (folder / "home").mkdir()
    ended = subprocess.run([*command, "--folder", "home", "-"], input=script, text=True, capture_output=True, cwd=folder, timeout=600,
                           env={**os.environ, "QUILM_VECTORS": "128"}, check=False)
    files = {str(path.relative_to(folder)): path.read_bytes() for path in folder.rglob("*") if path.is_file()}
    return ended.returncode, ended.stdout.splitlines(), ended.stderr, files


def last_digit(number):
    """The size of a unit of the last digit of a number as it is written."""
    return Decimal(1).scaleb(Decimal(number).as_tuple().exponent)


def within_last_digit(one, other):
    unit = min(last_digit(one), last_digit(other))
    return abs(Decimal(one) - Decimal(other)) <= unit


def beyond_last_digit(one, other):
    """What differs between two texts by more than a unit of a number's last digit, or None."""
    if NUMBER.split(one) != NUMBER.split(other):
        return "the text around the numbers differs"
    for a, b in zip(NUMBER.findall(one), NUMBER.findall(other)):
        if a != b and not within_last_digit(a, b):
            return f"{a} against {b}"
    return None


def differences(one, other):
    """What differs between two runs: texts that fail, texts that are told."""
    fails, told = [], []
    if one[0] != other[0] or one[2] != other[2]:
        fails.append(f"ended otherwise: {one[0]} {one[2].strip()} against {other[0]} {other[2].strip()}")
    if len(one[1]) != len(other[1]):
        fails.append(f"{len(one[1])} events against {len(other[1])}")
    for number, (a, b) in enumerate(zip(one[1], other[1]), 1):
        if a != b:
            fails.append(f"event {number} differs: {first_difference(a, b)}")
    if one[3].keys() != other[3].keys():
        fails.append(f"other files: {sorted(one[3].keys() ^ other[3].keys())}")
    for name in sorted(one[3].keys() & other[3].keys()):
        a, b = one[3][name].decode("latin-1"), other[3][name].decode("latin-1")
        if a != b:
            why = beyond_last_digit(a, b)
            (fails if why else told).append(f"{name}: {why or 'within the last digit'}: {first_difference(a, b)}")
    return fails, told


def first_difference(a, b):
    at = next((i for i, pair in enumerate(zip(a, b)) if pair[0] != pair[1]), min(len(a), len(b)))
    return f"...{a[max(0, at - 40):at + 40]!r} against ...{b[max(0, at - 40):at + 40]!r}"


def compare(commands, name, script):
    """Both run in folders of one name, which what they print tells."""
    with tempfile.TemporaryDirectory() as folder:
        runs = []
        for command in commands:
            place = pathlib.Path(folder, "run")
            place.mkdir()
            runs.append(run(command, script, place))
            shutil.rmtree(place)
    return name, runs[0], differences(*runs)


def command_words(text):
    """The words of a command, files by their whole path: it runs in a folder of its own."""
    return [str(pathlib.Path(word).resolve()) if pathlib.Path(word).is_file() else word for word in shlex.split(text)]


def main():
    parser = argparse.ArgumentParser(description=__doc__.split("\n", maxsplit=1)[0])
    parser.add_argument("commands", nargs=2, metavar="COMMAND", type=command_words)
    commands = parser.parse_args().commands
    count = collections.Counter()
    with concurrent.futures.ThreadPoolExecutor(os.cpu_count()) as pool:
        for name, one, (fails, told) in pool.map(lambda item: compare(commands, *item), scripts().items()):
            count["scripts"] += 1
            if one[0] != 0:
                fails.append(f"ended in a fault: {one[2].strip()}")
            count["sweeps"] += sum(bool(SWEEP.search(line)) for line in one[1])
            count["events"] += len(one[1])
            count["files"] += len(one[3])
            count["files that differ within the last digit"] += len(told)
            count["differences"] += len(fails)
            for line in fails:
                print(f"{name}: {line}", file=sys.stderr)
            for line in told:
                print(f"{name}: {line}")
    for what, number in count.items():
        print(f"{number} {what}")
    return 1 if count["differences"] or not count["sweeps"] else 0


if __name__ == "__main__":
    sys.exit(main())
