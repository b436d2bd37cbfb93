"""A ladder of lossy inductors and capacitors as a test has written it (support/LadderText.h), and its chain matrix: what
the program's analysis is compared with."""

import math


class Ladder:
    """Terminations, qualities and stages from the first lines of a file; `rest` are the lines after them."""

    def __init__(self, path):
        lines = [[float(word) for word in line.split()] for line in path.read_text(encoding="ascii").splitlines()]
        self.source, self.load, self.reference, self.qind, self.qcap, self.fq, stages = lines[0]
        self.stages = lines[1 : 1 + int(stages)]
        self.rest = lines[1 + int(stages) :]


def times(first, second):
    a, b, c, d = first
    e, f, g, h = second
    return a * e + b * g, a * f + b * h, c * e + d * g, c * f + d * h


def immittance(ladder, stage, omega):
    """The impedance of an inductor with its constant resistance, the admittance of a capacitor with its constant Q."""
    _, inductance, capacitance = stage
    z = 2 * math.pi * ladder.fq * inductance / ladder.qind + 1j * omega * inductance
    y = omega * capacitance / ladder.qcap + 1j * omega * capacitance
    return z, y


def chain(ladder, frequency):
    product = (1, 0, 0, 1)
    for stage in ladder.stages:
        z, y = immittance(ladder, stage, 2 * math.pi * frequency)
        kind = int(stage[0])
        if kind == 1 or kind == 2:
            arm = z
        elif kind == 3 or kind == 4:
            arm = 1 / y
        elif kind == 5 or kind == 6:
            arm = z + 1 / y
        else:
            arm = 1 / (1 / z + y)
        product = times(product, (1, arm, 0, 1) if kind % 2 == 1 else (1, 0, 1 / arm, 1))
    return product


def transmission(ladder, frequency):
    """S21 between the terminations: 1 where all available power reaches the load."""
    a, b, c, d = chain(ladder, frequency)
    denominator = a * ladder.load + b + c * ladder.load * ladder.source + d * ladder.source
    return 2 * math.sqrt(ladder.source * ladder.load) / denominator
