#include "synthesis/CauerPrototype.h"

#include <cmath>

#include "core/NumericFault.h"

namespace quilm {

namespace {

// Working arrays have room for one position more than the order.
using Series = BoundedArray<f64, 0, orderLimit + 2>;

constexpr int seriesRounds = 1024;
constexpr f64 evenSeriesEnd = 1e-17;
constexpr f64 oddSeriesEnd = 1e-19;
constexpr int meanRounds = 6;

f64 Square(f64 x) { return x * x; }

f64 FromDecibels(f64 x) { return std::exp(std::log(10.0) / 10 * x); }

// Tangent of the sum of the angles with tangents x and y.
f64 TangentSum(f64 x, f64 y) { return (x + y) / (1 - x * y); }

// Moves the transmission zeros into the ladder's branches one after the other (Amstutz 1978). a, b and c hold the
// residues, the remaining shunt arms and the squares of the zeros' reciprocals, 1..limit. The zeros are taken from both
// ports of the ladder, which passes 1 and 2 stand for.
void ShiftZeros(Series& a, Series& b, const Series& c, int limit) {
  for (int pass = 1; pass <= 2; ++pass) {
    for (int i = pass + 2; i <= limit; i += 2) {
      for (int j = pass; j <= i - 2; j += 2) {
        const f64 d = b[j] - b[i];
        const f64 r = 1 / (d / ((c[i] - c[j]) * a[j]) - 1);
        a[i] = (a[i] - a[j]) * r * r - (2 * r + 1) * a[j];
        b[i] = d * r;
      }
    }
  }
}

// ---- even order -----------------------------------------------------------------------------------------------------

struct EvenDesign {
  EvenDesign(int order, CauerVariant type) : n(order), h(order / 2), variant(type) {}

  int n;
  int h;
  CauerVariant variant;
  Series E, A, B, Z, W, P, S, a, b;
  f64 v = 0;
  f64 x1 = 0;  // where the frequency transformation takes its two fixed points
  f64 x2 = 0;
  f64 u1 = 0;
  f64 u2 = 0;
  f64 t1 = 0;  // tangents of the summed pole angles
  f64 t2 = 0;
  f64 f = 1;  // source over load
};

// Elliptic sines at the poles and zeros, by products in the nome.
void EvenSeries(EvenDesign& d, f64 Apass, f64 Astop) {
  for (int i = 1; i <= d.n; ++i) d.E[i] = 1;
  const f64 EA = FromDecibels(Astop) - 1;
  const f64 EP = FromDecibels(Apass) - 1;
  const f64 s = std::sqrt(EA / EP) + std::sqrt(EA / EP - 1);
  const f64 K = Square(Pi) / (2 * std::log(2 * s));
  const f64 q0 = std::exp(-K);
  const f64 sp = s / (std::sqrt(EA + 1) + std::sqrt(EA));
  const f64 y = std::log(std::sqrt(Square(sp) + 1) + sp) * K / Pi;
  d.v = std::sin(y) / std::cos(y);
  const f64 T = Square(d.v);

  f64 q = q0;
  int index = d.h - 1;
  for (int round = 0; round < seriesRounds; ++round) {
    const f64 factor = (1 - q) / (1 + q);
    if (index == d.h) {
      const f64 X = Square(factor);
      d.v = (X + T) * d.v / (X * T + 1);
    }
    d.E[index] *= factor;
    q *= q0;
    if (q < evenSeriesEnd) break;
    if (--index == 0) index = d.n;
  }

  d.E[d.h] = 0;
  d.E[d.n] = Square(d.E[d.n]);
  for (int i = 1; i < d.h; ++i) {
    d.E[i] = -d.E[i] * d.E[d.n - i];
    d.E[d.n - i] = -d.E[i];
  }
}

// The natural modes before the frequency transformation: A the real, B the imaginary measure.
void EvenModes(EvenDesign& d) {
  const f64 end = d.E[d.n];
  const f64 R = std::sqrt(1 / Square(d.v) + Square(d.v) + Square(end) + 1 / Square(end));
  int k = 0;
  for (int i = 1; i < d.h; i += 2) {
    k = (i + 1) / 2;
    f64 w = d.v * d.E[i];
    w = 1 / w + w;
    const f64 c = d.E[i] * end;
    d.A[k] = (1 / c - c) * d.E[d.h - i] / w;
    d.B[k] = -R / w;
    d.A[d.h - k + 1] = d.A[k];
    d.B[d.h - k + 1] = -d.B[k];
  }
  if (2 * k != d.h) {
    d.A[k + 1] = -d.v;
    d.B[k + 1] = 0;
  }
}

// Moves the highest zero to infinity and, for equal terminations, the lowest passband maximum to zero.
void EvenTransformation(EvenDesign& d) {
  const f64 end = d.E[d.n];
  d.x1 = -d.E[1];
  d.x2 = d.variant == CauerVariant::EqualTerminations ? -d.E[1] : end;
  d.u1 = std::sqrt((d.x2 + end) / (d.x1 * end + 1));
  d.u2 = std::sqrt((d.x2 * end + 1) / (d.x1 + end));
  for (int i = 2; i <= d.h; ++i) {
    d.Z[i] = (d.x1 + d.E[2 * i - 1]) / (d.x2 * d.E[2 * i - 1] + 1);
    d.W[i] = std::sqrt(1 / d.Z[i]);
  }
}

void EvenPoles(EvenDesign& d) {
  f64 sign = 1;
  for (int i = 1; i <= d.h; ++i) {
    const f64 e = d.E[2 * i - 1];
    const f64 y = (Square(e) + Square(d.v)) / (Square(d.v * e) + 1);
    const f64 d1 = ((d.x2 * d.x1 + 1) * d.B[i] + d.x2) + y * d.x1;
    const f64 d2 = (Square(d.x2) + 2 * d.x2 * d.B[i]) + y;
    const f64 d3 = Square(d.x1) * y + (2 * d.x1 * d.B[i] + 1);
    const f64 p = std::sqrt(d2 / d3);
    const f64 r = d1 / d3;
    d.A[i] = std::sqrt((p - r) / 2);
    d.B[i] = std::sqrt((r + p) / 2);
    sign = -sign;
    d.t1 = TangentSum(sign * d.A[i] / d.B[i], d.t1);
    if (d.variant != CauerVariant::Natural) {
      const f64 e1 = (d.W[2] - d.B[i]) / d.A[i];
      const f64 e2 = (d.B[i] + d.W[2]) / d.A[i];
      d.t2 = TangentSum((e2 - e1) * sign / (e2 * e1 + 1), d.t2);
    }
    d.a[1] += d.A[i];
  }
  if (d.variant == CauerVariant::Natural) d.t2 = d.t2 / (std::sqrt(Square(d.t2) + 1) + 1);
}

// Phase slope P and phase tangent S at each transmission zero, and from them the residues a and arms b.
void EvenResidues(EvenDesign& d) {
  const int h = d.h;
  for (int o = 2; o <= h; ++o) {
    d.S[o] = d.t2;
    f64 sign = 1;
    for (int i = 1; i <= h; ++i) {
      d.P[o] += 1 / (Square(d.W[o] - d.B[i]) / d.A[i] + d.A[i]) + 1 / (Square(d.B[i] + d.W[o]) / d.A[i] + d.A[i]);
      sign = -sign;
      d.S[o] = TangentSum((d.W[o] - sign * d.B[i]) / d.A[i], d.S[o]);
    }
  }
  for (Series* s : {&d.Z, &d.W, &d.P, &d.S}) (*s)[h + 1] = (*s)[h];
  for (int i = 1; i < h; i += 2) d.S[h + 1 - i] = -1 / d.S[h + 1 - i];
  for (int i = 2; i <= h + 1; ++i) {
    d.a[i] = (Square(d.S[i]) + 1) * d.P[i] / (4 * d.Z[i]) - d.S[i] * d.W[i] / 2;
    d.b[i] = d.S[i] / d.W[i];
  }
}

void EvenTerminations(EvenDesign& d, NumericFaultScope& scope) {
  if (d.variant == CauerVariant::EqualTerminations) return;
  d.f = scope.Store(Square((1 - d.t1 * d.t2) / (d.t1 + d.t2)));
  for (int i = 1; i <= d.h + 1; i += 2) {
    d.a[i] *= d.f;
    d.b[i] *= d.f;
  }
}

// The ladder's arms by position, from the source end: C at odd, D and M at even positions.
struct EvenLadder {
  Series C, D, M;
};

EvenLadder Unfold(const EvenDesign& d) {
  EvenLadder ladder;
  const int h = d.h;
  const bool evenHalf = h % 2 == 0;

  int p = 1;
  const auto nextC = [&](int i) {
    ladder.C[p] = d.u1 * d.b[i];
    p += 2;
  };
  for (int i = 1; i <= h; i += 2) nextC(i);
  if (evenHalf) nextC(h + 1);
  for (int i = evenHalf ? h : h + 1; i >= 2; i -= 2) nextC(i);

  p = 2;
  const auto nextBranch = [&](int i) {
    ladder.D[p] = d.u1 / d.a[i];
    const f64 L = d.W[i] / d.u1;
    ladder.M[p] = L == 0 ? 0 : 1 / (Square(L) * ladder.D[p]);
    p += 2;
  };
  for (int i = 1; i <= (evenHalf ? h - 1 : h); i += 2) nextBranch(i);
  for (int i = evenHalf ? h : h - 1; i >= 2; i -= 2) nextBranch(i);
  return ladder;
}

CauerPrototype Written(const EvenDesign& d, const EvenLadder& ladder, NumericFaultScope& scope) {
  CauerPrototype result;
  const int n = d.n;
  // The ladder was unfolded from the load: position i of the result is position n - i + 2 of it.
  for (int i = 1; i <= n; ++i) {
    const int mirrored = n - i + 2;
    if (i % 2 == 0) {
      result.Hj[i] = scope.Store(ladder.D[mirrored]);
      result.Gj[i] = scope.Store(ladder.M[mirrored]);
    } else {
      result.Gj[i] = scope.Store(ladder.C[mirrored]);
    }
  }
  result.Gj[n] = 0;
  result.Rratio = scope.Store(1 / d.f);
  result.FstopNorm = scope.Store(d.u2 / d.u1);
  return result;
}

// ---- odd order ------------------------------------------------------------------------------------------------------

// The arithmetic-geometric mean from the pair (x, y). The complete elliptic integral of a modulus k is Pi / 2 over the
// mean of 1 and sqrt(1 - k^2). (M. Abramowitz, I. A. Stegun, Handbook of Mathematical Functions, 1964, 17.6.)
f64 Mean(f64 x, f64 y) {
  for (int round = 0; round < meanRounds; ++round) {
    const f64 g = std::sqrt(x * y);
    y = (x + y) / 2;
    if ((y - g) * 1e8 < y) break;
    x = g;
  }
  return y;
}

// The order times the ratio of the complete elliptic integrals of the stopband ratio's modulus.
f64 OddPeriodRatio(int order, f64 FstopNorm) {
  const f64 u = order / Mean(2 * std::sqrt(FstopNorm), FstopNorm + 1);
  return u * Mean(std::fabs(FstopNorm - 1), FstopNorm + 1);
}

f64 OddDepth(f64 Astop) { return std::exp(std::log(10.0) * std::fabs(Astop) / 20); }

struct OddDesign {
  int n;
  int m;
  f64 sq;  // root of the stopband ratio
  f64 u;   // period ratio
  Series E, v, a, b, c;
};

void OddSeries(OddDesign& d, f64 Astop) {
  const int n = d.n;
  const int m = d.m;
  const f64 q0 = std::exp(-Pi / d.u);
  const f64 Ea = OddDepth(Astop);
  const f64 Q = std::exp(d.u * Pi);
  const f64 t = std::sqrt(Square(Ea) - 1);
  f64 y = Q / (2 * (t + Ea));
  y = std::log(std::sqrt(Square(y) + 1) + y) / (2 * d.u);
  d.v[m] = std::sin(y) / std::cos(y);
  const f64 T = Square(d.v[m]);

  for (int i = 1; i <= n; ++i) d.E[i] = 1;
  f64 q = q0;
  int index = 1;
  for (int round = 0; round < seriesRounds; ++round) {
    d.E[index] = (1 - q) * d.E[index] / (1 + q);
    if (index >= n - 1) {
      q *= q0;
      const f64 X = Square((1 - q) / (1 + q));
      d.v[m] = (X + T) * d.v[m] / (X * T + 1);
      index = 0;
    }
    q *= q0;
    if (q < oddSeriesEnd) break;
    ++index;
  }
  for (int i = 1; i <= m; ++i) {
    d.E[i] = d.E[n - i] * d.E[i];
    d.E[n - i] = d.E[i];
  }
}

void OddResidues(OddDesign& d) {
  const int m = d.m;
  for (int i = 1; i <= m; ++i) {
    d.c[i] = (1 - Square(Square(d.E[i]))) * d.E[2 * i] / d.E[i];
    d.a[i] = d.E[i] * d.v[m];
  }
  d.b[1] = 1 / d.a[m];
  for (int i = 1; i < m; ++i) {
    d.b[i + 1] = (d.b[i] - d.a[m - i]) / (d.b[i] * d.a[m - i] + 1);
    d.v[m - i] = d.c[i] * d.v[m] / (Square(d.a[i]) + 1) + d.v[m + 1 - i];
  }
  for (int i = 1; i <= m; ++i) {
    d.a[i] = ((Square(d.b[i]) + 1) * d.v[i] / d.c[i] - d.b[i] / d.E[i]) / 2;
    d.b[i] = d.b[i] * d.E[i];
    d.c[i] = Square(d.E[i]);
  }
  for (Series* s : {&d.a, &d.b, &d.c}) (*s)[m + 1] = (*s)[m];
}

void OddScaling(OddDesign& d) {
  for (int i = 1; i <= d.m; ++i) {
    d.b[i] = d.b[i] / d.sq;
    d.c[i] = d.a[i] * d.c[i] / d.sq;
    d.a[i] = 1 / (d.sq * d.a[i]);
  }
  d.b[d.m + 1] = d.b[d.m + 1] / d.sq;
}

CauerPrototype Written(const OddDesign& d, NumericFaultScope& scope) {
  CauerPrototype result;
  int p = 0;
  int r = 0;
  const auto shunt = [&](int i) { result.Gj[++p] = scope.Store(d.b[i]); };
  const auto branch = [&](int i) {
    result.Gj[++p] = scope.Store(d.c[i]);
    result.Hj[r += 2] = scope.Store(d.a[i]);
  };
  for (int i = 1; i <= d.m; i += 2) {
    shunt(i);
    branch(i);
  }
  shunt(d.m + 1);
  const int first = 2 * ((d.m + 1) / 2);
  int j = d.n - 1 - first;
  for (int I = first + 2; I <= d.n - 1; I += 2) {
    branch(j);
    shunt(j);
    j -= 2;
  }
  return result;
}

}  // namespace

CauerPrototype EvenCauerPrototype(int order, f64 Apass, f64 Astop, CauerVariant variant) {
  NumericFaultScope scope;
  EvenDesign d(order, variant);
  EvenSeries(d, Apass, Astop);
  EvenModes(d);
  EvenTransformation(d);
  EvenPoles(d);
  EvenResidues(d);
  ShiftZeros(d.a, d.b, d.Z, d.h + 1);
  EvenTerminations(d, scope);
  return Written(d, Unfold(d), scope);
}

f32 OddCauerRipple(int order, f64 FstopNorm, f64 Astop) {
  const f64 u = OddPeriodRatio(order, FstopNorm);
  // From here on the ripple vanishes against 1 in 64 bits.
  constexpr f64 largest = 1e18;
  if (!(u * Pi < std::log(largest))) return 0;
  NumericFaultScope scope;
  const f64 Q = std::exp(u * Pi);
  const f64 ripple = std::log((Square(OddDepth(Astop)) - 1) / Square(Q / 4 + 0.25) + 1) / (std::log(10.0) * 0.1);
  return scope.Store(std::fabs(ripple));
}

CauerPrototype OddCauerPrototype(int order, f64 FstopNorm, f64 Astop) {
  NumericFaultScope scope;
  OddDesign d{order, (order - 1) / 2, std::sqrt(FstopNorm), OddPeriodRatio(order, FstopNorm), {}, {}, {}, {}, {}};
  OddSeries(d, Astop);
  OddResidues(d);
  // With a single zero there is nothing to move.
  if (d.m > 1) ShiftZeros(d.a, d.b, d.c, d.m + 1);
  OddScaling(d);
  CauerPrototype result = Written(d, scope);
  result.FstopNorm = scope.Store(FstopNorm);
  return result;
}

}  // namespace quilm
