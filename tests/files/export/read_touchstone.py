"""Reads S-parameter files of version 1.0 with scikit-rf and compares them with the sweep that they were written from, and
with the circuit itself: read_touchstone.py FOLDER

The folder holds designs as N.design (terminations, qualities, parts, and the sweep point by point) and the files written
of each as N-UNIT-FORMAT.S1P and .S2P. Says what differs, else how many points were compared.
"""

import cmath
import math
import pathlib
import sys

import skrf

sys.path.append(str(pathlib.Path(__file__).resolve().parents[2] / "support"))
from ladder import Ladder, chain, transmission  # noqa: E402

TOLERANCE = 2e-6  # of frequencies, |S11|, S21 and S12: what seven digits keep of a number below 100
# Of a loss of 100 dB and more seven digits keep four decimals: half of the last is 5.8E-6 of the ratio.
TOLERANCE_BEYOND_100_DB = 1e-5


class Design(Ladder):
    def __init__(self, path):
        super().__init__(path)
        self.points = [Point(line) for line in self.rest]


class Point:
    """What the sweep says of a frequency, forward and end for end."""

    def __init__(self, figures):
        self.frequency = figures[0]
        returns, zin, zin_angle, trans, angle, rev_trans, rev_angle, rev_returns, rev_zin, rev_zin_angle = figures[1:]
        self.s11_magnitude = ratio(returns)
        self.zin = polar(zin, zin_angle)
        self.zin_angle = zin_angle
        self.s21 = polar(ratio(trans), angle)
        self.s12 = polar(ratio(rev_trans), rev_angle)
        self.s22_magnitude = ratio(rev_returns)
        self.rev_zin = polar(rev_zin, rev_zin_angle)


def ratio(decibels):
    return 10 ** (decibels / 20)


def polar(magnitude, degrees):
    return cmath.rect(magnitude, math.radians(degrees))


def reflection(impedance, reference):
    return (impedance - reference) / (impedance + reference)


def of_circuit(design, frequency):
    """S11, S21 and S22 from the chain matrix; the reflections refer to the reference of the design."""
    a, b, c, d = chain(design, frequency)
    zin = (a * design.load + b) / (c * design.load + d)
    zout = (d * design.source + b) / (c * design.source + a)
    return (
        reflection(zin, design.reference),
        transmission(design, frequency),
        reflection(zout, design.reference),
    )


class Comparison:
    def __init__(self, name):
        self.name = name
        self.faults = []

    def close(self, what, found, wanted, tolerance, scale=None):
        scale = abs(wanted) if scale is None else scale
        if not abs(found - wanted) <= tolerance * scale:
            self.faults.append(f"{self.name}: {what} is {found}, not {wanted}")


def tolerance_of(value):
    return TOLERANCE if abs(value) > 1e-5 else TOLERANCE_BEYOND_100_DB


def angle_tolerance(gamma):
    """Of a reflection's phase: seven digits of degrees, and the 32 bits of its parts beside 1."""
    return 2e-6 + 5e-7 / abs(gamma)


def compare_angle(comparison, what, found, wanted):
    comparison.close(what, cmath.phase(found / wanted), 0, angle_tolerance(wanted), 1)


def compare_two_ports(comparison, design, network):
    for point, frequency, s in zip(design.points, network.f, network.s):
        comparison.close("the frequency", frequency, point.frequency, TOLERANCE)
        comparison.close("|S11|", abs(s[0, 0]), point.s11_magnitude, tolerance_of(point.s11_magnitude))
        comparison.close("|S22|", abs(s[1, 1]), point.s22_magnitude, tolerance_of(point.s22_magnitude))
        comparison.close("S21", s[1, 0], point.s21, tolerance_of(point.s21))
        comparison.close("S12", s[0, 1], point.s12, tolerance_of(point.s12))
        compare_angle(comparison, "the angle of S11", s[0, 0], reflection(point.zin, design.reference))
        compare_angle(comparison, "the angle of S22", s[1, 1], reflection(point.rev_zin, design.reference))
        s11, s21, s22 = of_circuit(design, point.frequency)
        for what, found, wanted in (("S11", s[0, 0], s11), ("S21", s[1, 0], s21), ("S12", s[0, 1], s21), ("S22", s[1, 1], s22)):
            # The sweep itself is in 64 bits; what it keeps has 32.
            comparison.close(what + " of the circuit", found, wanted, 5e-6 + 5e-7 / max(abs(wanted), 1e-7))


def compare_one_port(comparison, design, network):
    for point, frequency, s in zip(design.points, network.f, network.s):
        comparison.close("the frequency", frequency, point.frequency, TOLERANCE)
        comparison.close("|S11|", abs(s[0, 0]), point.s11_magnitude, tolerance_of(point.s11_magnitude))
        # The file of one port has the angle of the impedance.
        comparison.close("the angle", cmath.phase(s[0, 0] / polar(1, point.zin_angle)), 0, TOLERANCE, 1)


def main(folder):
    faults, points = [], 0
    for path in sorted(folder.glob("*.design")):
        design = Design(path)
        for file in sorted(folder.glob(path.stem + "-*.S?P")):
            network = skrf.Network(str(file))
            comparison = Comparison(file.name)
            comparison.close("the number of points", len(network.f), len(design.points), 0)
            ports = int(file.suffix[2])
            comparison.close("the reference", network.z0[0, 0], design.source if ports == 2 else 50, TOLERANCE)
            (compare_two_ports if ports == 2 else compare_one_port)(comparison, design, network)
            faults += comparison.faults
            points += len(network.f)
    print("\n".join(faults[:20]) if faults else f"compared {points} points")
    return 1 if faults else 0


if __name__ == "__main__":
    sys.exit(main(pathlib.Path(sys.argv[1])))
