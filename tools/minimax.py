#!/usr/bin/env python3
"""Derives the polynomials of src/analysis/LaneFunctions.h: tools/minimax.py

Each function is a leading part, exact or nearly so, plus a factor times a series f(u). A polynomial takes the place of
the series, found by Remez' exchange (E. Remez, "Sur un procede convergent d'approximations successives", C. R. Acad.
Sci. Paris 198, 1934) so that the largest error relative to the function, weight(u) |p(u) - f(u)|, is as small as can be.
Arithmetic is in 60 decimal digits; the coefficients are then rounded to 64 bits and the error is measured with them.
"""

from decimal import Decimal, getcontext
from math import cos, pi

getcontext().prec = 60
GRID = 3000


def factorial(n):
    product = Decimal(1)
    for i in range(2, n + 1):
        product *= i
    return product


def series(term, count=70):
    terms = [term(k) for k in range(count)]

    def value(u):
        total = Decimal(0)
        for coefficient in reversed(terms):
            total = total * u + coefficient
        return total

    return value


def horner(coefficients, u):
    total = Decimal(0)
    for coefficient in reversed(coefficients):
        total = total * u + coefficient
    return total


def solve(rows):
    """Gauss with pivoting; each row ends with its right side."""
    n = len(rows)
    for i in range(n):
        pivot = max(range(i, n), key=lambda r: abs(rows[r][i]))
        rows[i], rows[pivot] = rows[pivot], rows[i]
        rows[i] = [x / rows[i][i] for x in rows[i]]
        for r in range(n):
            if r != i:
                factor = rows[r][i]
                rows[r] = [x - factor * y for x, y in zip(rows[r], rows[i])]
    return [row[n] for row in rows]


def extremes(points, errors):
    """The largest error of each run of one sign."""
    found = []
    for u, error in zip(points, errors):
        if error == 0:
            continue
        if found and (found[-1][1] > 0) == (error > 0):
            if abs(error) > abs(found[-1][1]):
                found[-1] = (u, error)
        else:
            found.append((u, error))
    return found


def remez(f, weight, low, high, terms):
    middle, half = (low + high) / 2, (high - low) / 2
    nodes = [middle - half * Decimal(cos(pi * (i + 0.5) / (terms + 1))) for i in range(terms + 1)]
    points = [middle - half * Decimal(cos(pi * i / GRID)) for i in range(GRID + 1)]
    for _ in range(12):
        rows = [[u**k for k in range(terms)] + [Decimal((-1) ** i) / weight(u), f(u)] for i, u in enumerate(nodes)]
        coefficients = solve(rows)[:terms]
        found = extremes(points, [weight(u) * (horner(coefficients, u) - f(u)) for u in points])
        while len(found) > terms + 1:
            found.pop(0 if abs(found[0][1]) < abs(found[-1][1]) else -1)
        if len(found) < terms + 1:
            break
        nodes = [u for u, _ in found]
    rounded = [float(c) for c in coefficients]
    worst = max(abs(weight(u) * (horner([Decimal(c) for c in rounded], u) - f(u))) for u in points)
    return rounded, worst


TAN_EIGHTH = Decimal(2).sqrt() - 1
QUARTER_PI = Decimal("0.785398163397448309615660845819875721")
LN2 = Decimal(2).ln()
LOG_SPAN = ((Decimal(2).sqrt() - 1) / (Decimal(2).sqrt() + 1)) ** 2

# name, series, weight, interval, terms
FUNCTIONS = [
    ("ln m = 2 s + 2 s z p(z), z = s^2", series(lambda k: 1 / Decimal(2 * k + 3)), lambda z: z + Decimal("1e-9"),
     Decimal(0), LOG_SPAN, 7),
    ("arctan t = t - t z p(z), z = t^2", series(lambda k: (-1) ** k / Decimal(2 * k + 3), 200),
     lambda z: z + Decimal("1e-9"), Decimal(0), TAN_EIGHTH**2, 11),
    ("sin r = r + r z p(z), z = r^2", series(lambda k: (-1) ** (k + 1) / factorial(2 * k + 3)),
     lambda z: z + Decimal("1e-9"), Decimal(0), QUARTER_PI**2, 6),
    ("cos r = 1 - z / 2 + z^2 p(z), z = r^2", series(lambda k: (-1) ** k / factorial(2 * k + 4)),
     lambda z: z * z + Decimal("1e-9"), Decimal(0), QUARTER_PI**2, 6),
    ("exp r = 1 + r + r^2 p(r)", series(lambda k: 1 / factorial(k + 2)), lambda r: r * r / r.exp() + Decimal("1e-9"),
     -LN2 / 2, LN2 / 2, 11),
]

for name, f, weight, low, high, terms in FUNCTIONS:
    coefficients, worst = remez(f, weight, low, high, terms)
    print(f"{name}: |error| < {worst:.2e}")
    for coefficient in coefficients:
        print(f"  {coefficient.hex()},  // {coefficient!r}")
