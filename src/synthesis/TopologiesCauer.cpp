// The Cauer bandpass: each transmission zero of the lowpass becomes one above and one below the band.

#include <cmath>

#include "synthesis/Topologies.h"

namespace quilm {

namespace {

f64 Square(f64 x) { return x * x; }

// ---- normal layout --------------------------------------------------------------------------------------------------

struct NormalLayout {
  explicit NormalLayout(Scales& s) : k(s), W(s.entries.Width), Fc(s.entries.Fcenter) {}

  // The susceptance slope of position j over the bandwidth.
  f64 B(int j) const { return Square(Fc) * k.G(j) / Square(W); }

  // A tuned branch of the lowpass splits in two; `above` and `below` are one plus the squared ratio of the centre to
  // each zero, which scale the parts.
  void PutZeros(int j) {
    const f64 x = W / std::sqrt(k.H(j) * k.G(j));
    const f64 middle = std::sqrt(Square(x / 2) + Square(Fc));
    const f32 upper = k.scope.Store(middle + x / 2);
    const f32 lower = k.scope.Store(middle - x / 2);
    const f32 above = k.scope.Store(Square(Fc) / Square(upper) + 1);
    const f32 below = k.scope.Store(Square(Fc) / Square(lower) + 1);
    const int stage = 3 * j / 2;
    k.Put(stage - 1, SeriesPLC, k.Rs / (B(j) * below * k.OmegaWidth), k.G(j) * above / (k.Rs * 2 * Pi * W));
    k.Put(stage, SeriesPLC, k.Rs / (B(j) * above * k.OmegaWidth), k.G(j) * below / (k.Rs * 2 * Pi * W));
  }

  void PutShunt(int j) { k.Put(3 * j / 2, ShuntPLC, k.Rs / (B(j) * k.OmegaWidth), k.G(j) / (k.OmegaWidth * k.Rs)); }

  void PutSeries(int stage, int j) {
    k.Put(stage, SeriesSLC, k.H(j) * k.Rs / k.OmegaWidth, 1 / (f64{k.QLoaded} * k.OmegaCenter * k.Rs * k.H(j)));
  }

  // A place that the clean-up takes out again.
  void PutEmpty(int stage) { k.Put(stage, SeriesR, 0, 0); }

  Scales& k;
  f64 W;
  f64 Fc;
};

int BuildEvenNormal(Scales& k) {
  NormalLayout layout(k);
  for (int j = 1; j <= k.n - 1; ++j) {
    if (j % 2 == 1) {
      layout.PutShunt(j);
    } else {
      layout.PutZeros(j);
    }
  }
  const int last = 3 * (k.n - 1) / 2 + 1;
  layout.PutSeries(last, k.n);
  k.network.Rload[1] = k.scope.Store(k.prototype.Rratio * k.Rs);
  return last;
}

int BuildOddNormal(Scales& k) {
  NormalLayout layout(k);
  for (int j = 1; j <= k.n; ++j) {
    const bool present = k.G(j) > 0;
    if (j % 2 == 1) {
      present ? layout.PutShunt(j) : layout.PutEmpty(3 * j / 2);
    } else if (present) {
      layout.PutZeros(j);
    } else {
      layout.PutEmpty(3 * j / 2 - 1);
      layout.PutSeries(3 * j / 2, j);
    }
  }
  k.network.Rload[1] = k.scope.Store(k.Rs);
  return 3 * k.n / 2;
}

// ---- zig-zag layout -------------------------------------------------------------------------------------------------

// Normalised parts in the order of the ladder, worked over in place. The bound holds up to order 10; beyond, an access
// faults.
using ZigZagValues = BoundedArray<f32, 0, 31>;

struct ZigZag {
  explicit ZigZag(Scales& s)
      : k(s),
        n(s.n),
        F(static_cast<f64>(s.entries.Fcenter) / static_cast<f64>(s.entries.Width)),
        RR(s.prototype.Rratio) {}

  f64 At(int i) const { return ZZ[i]; }
  void Set(int i, f64 value) { ZZ[i] = k.scope.Store(value); }
  void Times(int i, f64 factor) { Set(i, At(i) * factor); }

  void TakePrototype();
  void Expand();
  void Transform(int K);
  void RescaleFrom(int K, f64 f);
  int Write();

  Scales& k;
  int n;
  f64 F;
  f64 RR;
  ZigZagValues ZZ;
  ZigZagValues ZZproto;
};

void ZigZag::TakePrototype() {
  const int h = n / 2;
  for (int i = 1; i < h; ++i) {
    ZZproto[3 * i - 2] = k.prototype.Gj[2 * i - 1];
    ZZproto[3 * i - 1] = k.prototype.Gj[2 * i];
    ZZproto[3 * i] = k.prototype.Hj[2 * i];
  }
  const int t = h - 1;
  ZZproto[3 * t + 1] = k.prototype.Gj[2 * t + 1];
  ZZproto[3 * t + 2] = k.prototype.Hj[2 * t + 2];
}

// Each lowpass branch becomes its bandpass pair around the centre.
void ZigZag::Expand() {
  const int h = n / 2;
  const int N = 3 * n;
  Set(N - 2, F * ZZproto[3 * h - 1]);
  Set(N - 3, 1 / At(N - 2));
  Set(N - 5, F * ZZproto[3 * h - 2]);
  Set(N - 4, 1 / At(N - 5));
  for (int p = 3 * h - 3; p >= 3; p -= 3) {
    const f64 x = std::sqrt(Square(F) * 4 * ZZproto[p - 1] * ZZproto[p] + 1);
    const f64 d = 2 * F * ZZproto[p - 1] * x;
    Set(2 * p - 2, (x - 1) / d);
    Set(2 * p - 1, 1 / At(2 * p - 2));
    Set(2 * p, (x + 1) / d);
    Set(2 * p - 3, 1 / At(2 * p));
    Set(2 * p - 5, F * ZZproto[p - 2]);
    Set(2 * p - 4, 1 / At(2 * p - 5));
  }
}

// Turns one pair of zeros into the zig-zag arrangement with one inductor less, and carries the impedance change of the
// transformation on to the load.
void ZigZag::Transform(int K) {
  const f64 a = At(K - 4) * At(K - 5);
  const f64 b = At(K - 2) * At(K - 3);
  const f64 c = b - a;
  const f64 d = b - At(K - 1) * At(K);
  const f64 r = c / d;
  const f64 s = At(K - 2) + At(K - 4) + At(K);
  const f64 p = At(K) + At(K - 2);
  const f64 f = Square(s / p) / Square(r);
  const f64 e1 = s * At(K - 4) / p;
  const f64 e2 = a / e1;
  const f64 e3 = p * c / Square(s);
  const f64 e4 = ((At(K - 1) / At(K - 3) + 1) * r - 1) * e3;
  const f64 e5 = e3 * c / (At(K) * At(K - 3));
  const f64 e6 = b / e5;
  const f64 e7 = -d / (f * At(K));
  RescaleFrom(K, f);
  Set(K - 7, a / s + At(K - 7));
  Set(K - 6, s * At(K - 6) / (s + At(K - 6)));
  Set(K - 5, e3);
  Set(K - 4, e2);
  Set(K - 3, e1);
  Set(K - 2, e4);
  Set(K - 1, e5);
  Set(K, e6);
  Set(K + 1, e7 * At(K + 1) / (e7 + At(K + 1)));
}

void ZigZag::RescaleFrom(int K, f64 f) {
  const int N = 3 * n;
  Times(N - 2, f);
  Times(N - 3, 1 / f);
  RR = k.scope.Checked(RR * f);
  for (int m = N - 4; m >= K; m -= 6) {
    for (const int i : {m - 5, m - 4, m - 2, m - 1}) Times(i, 1 / f);
    for (const int i : {m - 3, m}) Times(i, f);
  }
}

int ZigZag::Write() {
  constexpr f64 twoPi = 6.2831853;  // this literal, as the layout has always been scaled
  const f64 Fc = k.entries.Fcenter;
  const f64 Lu = k.Rs / (Fc * twoPi);
  const f64 Cu = 1 / (k.Rs * twoPi * Fc);
  int stage = 0;
  k.Put(++stage, ShuntPLC, Lu * At(2), Cu * At(1));
  for (int i = 3; i <= 3 * n - 9; i += 6) {
    k.Put(++stage, SeriesC, 0, Cu * At(i));
    k.Put(++stage, SeriesPLC, Lu * At(i + 2), Cu * At(i + 1));
    k.Put(++stage, ShuntC, 0, Cu * At(i + 3));
    k.Put(++stage, ShuntSLC, Lu * At(i + 5), Cu * At(i + 4));
  }
  k.Put(++stage, SeriesSLC, Lu * At(3 * n - 2), Cu * At(3 * n - 3));
  k.network.Rload[1] = k.scope.Store(RR * k.Rs);
  return stage;
}

int BuildZigZag(Scales& k) {
  ZigZag layout(k);
  layout.TakePrototype();
  layout.Expand();
  for (int K = 3 * k.n - 4; K >= 8; K -= 6) layout.Transform(K);
  return layout.Write();
}

}  // namespace

int BuildCauerBandpass(Scales& scales) {
  if (scales.n % 2 == 1) return BuildOddNormal(scales);
  return scales.entries.CauerTop == 1 ? BuildZigZag(scales) : BuildEvenNormal(scales);
}

}  // namespace quilm
