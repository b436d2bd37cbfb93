"""Studies of ladders by their circuit alone: study_reference.py linearity|noise FILE...

The files hold a ladder (support/ladder.py) and, in the line after it, the sweep: start, stop and steps. Prints a line for
each file: of linearity the slope in degrees per hertz, the phase of the line at the middle of the sweep and the largest
deviation, all in degrees, by numpy's least squares in 64 bits over the same frequencies; of noise the bandwidth by scipy's
adaptive quadrature from start to stop, over the largest power in the middle of a step.
"""

import pathlib
import sys

import numpy
import scipy.integrate

sys.path.append(str(pathlib.Path(__file__).resolve().parents[1] / "support"))
from ladder import Ladder, transmission  # noqa: E402


def linearity(ladder, start, stop, steps):
    frequency = numpy.linspace(start, stop, int(steps) + 1).astype(numpy.float32).astype(float)
    phase = numpy.degrees(numpy.unwrap(numpy.angle([transmission(ladder, f) for f in frequency])))
    middle = (start + stop) / 2
    unit = (stop - start) / 2  # so that the equations are well conditioned
    design = numpy.column_stack(((frequency - middle) / unit, numpy.ones_like(frequency)))
    (slope, at_middle), *_ = numpy.linalg.lstsq(design, phase, rcond=None)
    deviation = numpy.abs(phase - design @ (slope, at_middle)).max()
    return slope / unit, at_middle, deviation


def noise(ladder, start, stop, steps):
    def power(frequency):
        return abs(transmission(ladder, frequency)) ** 2

    width = (stop - start) / steps
    peak = max(power(start + (i + 0.5) * width) for i in range(int(steps)))
    # In pieces, so that the quadrature sees every ripple.
    pieces = numpy.linspace(start, stop, 41)
    area = sum(scipy.integrate.quad(power, a, b, epsabs=0, epsrel=1e-11, limit=200)[0] for a, b in zip(pieces, pieces[1:]))
    return (area / peak,)


def main(study, names):
    for name in names:
        ladder = Ladder(pathlib.Path(name))
        print(*(f"{figure:.17g}" for figure in study(ladder, *ladder.rest[0])))


if __name__ == "__main__":
    main({"linearity": linearity, "noise": noise}[sys.argv[1]], sys.argv[2:])
