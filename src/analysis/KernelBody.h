// The kernel: walks a compiled ladder from the load to the source for N frequencies at once.
//
// With the load current 1, the pair (V, I) at the load is (Rload, 1); a series arm adds Z I to V, a shunt arm Y V to I.
// What arrives at the source is V = Rload A + B and I = Rload C + D of the ladder's chain matrix, all that its response
// needs, at a quarter of the matrix product's work.
//
// Included once by each implementation (see LaneMath.h).
#pragma once

#include <cmath>

#include "analysis/Kernel.h"
#include "analysis/LaneMath.h"

namespace quilm {

// How near a tank comes to resonance before its susceptances are formed one by one, to see whether they cancel exactly.
inline constexpr f64 nearResonance = 1e-12;
inline constexpr f64 twoPi = 6.283185307179586;
inline constexpr f64 degreesPerRadian = 57.295779513082323;
inline constexpr f64 ln10 = 2.302585092994046;

// The stages as plain pointers: even the library's inline functions stay out of the kernels.
struct StageRange {
  const CompiledStage* first;
  const CompiledStage* last;
};

template <class Target, int N>
struct Walk {
  using L = Lanes<Target, N>;
  using V = typename L::V;
  using M = typename L::M;

  V w, wAbs, wInverse;  // angular frequency, its magnitude, its reciprocal
  V Vr, Vi, Ir, Ii;
  M fails;

  [[gnu::always_inline]] inline void Start(const Ladder& ladder, V frequency) {
    w = twoPi * frequency;
    wAbs = L::Abs(w);
    const M zero = w == 0;
    // At w = 0 only stages that do not divide by it may go on; what the others form is not used.
    wInverse = 1 / (zero ? L::All(1) : w);
    fails = ladder.failsAtZero ? zero : M{};
    Vr = L::All(ladder.Rload);
    Vi = V{};
    Ir = L::All(1);
    Ii = V{};
  }

  [[gnu::always_inline]] inline void Series(V r, V x) {
    Vr += r * Ir - x * Ii;
    Vi += r * Ii + x * Ir;
  }

  [[gnu::always_inline]] inline void Shunt(V g, V b) {
    Ir += g * Vr - b * Vi;
    Ii += g * Vi + b * Vr;
  }

  [[gnu::always_inline]] inline void ArmOf(const CompiledStage& s, V& r, V& x) const {
    r = s.r + s.rc * L::Abs(wInverse);
    x = s.x + s.xl * w + s.xc * wInverse;
  }

  // The reciprocal of R + jX in a shunt arm.
  [[gnu::always_inline]] inline void ShuntSeriesPair(const CompiledStage& s) {
    V r, x;
    ArmOf(s, r, x);
    if (s.guardsZeroX) x = x == 0 ? L::All(1e-10) : x;
    fails |= r == 0;
    const V inverse = 1 / (r * r + x * x);
    Shunt(r * inverse, -(x * inverse));
  }

  // A tank's admittance times the square of its inductor's impedance: conductance gD, susceptance -bD.
  struct TankArm {
    V D, gD, bD;
  };

  [[gnu::always_inline]] inline TankArm TankOf(const CompiledStage& s) {
    const V XL = s.L * w;
    TankArm arm;
    arm.D = s.Rs * s.Rs + XL * XL;
    arm.gD = s.Rs + (s.g + s.gc * wAbs) * arm.D;
    arm.bD = XL + (s.capacitiveOffset + s.capacitive * w) * arm.D;
    fails |= (arm.gD == 0) | (XL == 0);
    const M near = L::Abs(arm.bD) <= nearResonance * L::Abs(XL);
    if (L::Any(near)) [[unlikely]] {
      for (int i = 0; i < N; ++i) {
        if (near[i]) arm.bD[i] = ResonantSusceptance(s, w[i], arm.D[i], i);
      }
    }
    return arm;
  }

  // Near resonance: the two reactances one by one. If they cancel exactly the inductor's is moved by a
  // hundred-thousandth, so that the tank's reactance is very large and finite. (Xc + XpL compares in 64 bits.)
  [[gnu::always_inline]] inline f64 ResonantSusceptance(const CompiledStage& s, f64 omega, f64 D, int lane) {
    const f64 XL = s.L * omega;
    const f64 Xc = 1 / (s.capacitiveOffset + s.capacitive * omega);
    f64 XpL = D / XL;
    if (Xc + XpL == 0) XpL *= 1.00001;
    const f64 sum = 1 / Xc + 1 / XpL;
    if (sum == 0) fails[lane] = -1;
    return sum * D;
  }

  [[gnu::always_inline]] inline void SeriesTank(const CompiledStage& s) {
    const TankArm arm = TankOf(s);
    const V inverse = arm.D / (arm.gD * arm.gD + arm.bD * arm.bD);
    // The resistance is taken positive, the reactance keeps the sign that the conductance gives it.
    const V x = arm.bD * inverse;
    Series(L::Abs(arm.gD) * inverse, arm.gD < 0 ? -x : x);
  }

  [[gnu::always_inline]] inline void ShuntTank(const CompiledStage& s) {
    const TankArm arm = TankOf(s);
    const V inverse = 1 / arm.D;
    Shunt(arm.gD * inverse, -(arm.bD * inverse));
  }

  [[gnu::always_inline]] inline V TangentOf(const CompiledStage& s) const {
    V tangent;
    for (int i = 0; i < N; ++i) tangent[i] = std::tan(s.t * w[i]);
    return tangent;
  }

  [[gnu::always_inline]] inline void SeriesStub(const CompiledStage& s) {
    const V tangent = TangentOf(s);
    if (s.open) {
      fails |= tangent == 0;
      Series(V{}, -(s.z / tangent));
    } else {
      Series(V{}, s.z * tangent);
    }
  }

  [[gnu::always_inline]] inline void ShuntStub(const CompiledStage& s) {
    const V tangent = TangentOf(s);
    if (s.open) {
      Shunt(V{}, tangent / s.z);
    } else {
      const V x = s.z * tangent;
      fails |= x == 0;
      Shunt(V{}, -1 / x);
    }
  }

  [[gnu::always_inline]] inline void LineStage(const CompiledStage& s) {
    V sine, cosine;
    for (int i = 0; i < N; ++i) {
      sine[i] = std::sin(s.t * w[i]);
      cosine[i] = std::cos(s.t * w[i]);
    }
    const V x = s.z * sine;
    const V b = sine / s.z;
    const V vr = cosine * Vr - x * Ii;
    const V vi = cosine * Vi + x * Ir;
    const V ir = cosine * Ir - b * Vi;
    const V ii = cosine * Ii + b * Vr;
    Vr = vr;
    Vi = vi;
    Ir = ir;
    Ii = ii;
  }

  [[gnu::always_inline]] inline void TransformerStage(const CompiledStage& s) {
    Vr *= s.n;
    Vi *= s.n;
    Ir *= s.reciprocal;
    Ii *= s.reciprocal;
  }

  [[gnu::always_inline]] inline void CoupledStage(const CompiledStage& s) {
    const V x = w * s.leakage;
    const V b = -1 / (w * s.M);
    const V vr = s.l1M * Vr - x * Ii;
    const V vi = s.l1M * Vi + x * Ir;
    const V ir = s.l2M * Ir - b * Vi;
    const V ii = s.l2M * Ii + b * Vr;
    Vr = vr;
    Vi = vi;
    Ir = ir;
    Ii = ii;
  }

  [[gnu::always_inline]] inline void Pass(const CompiledStage& s) {
    switch (s.form) {
      case StageForm::SeriesArm: {
        V r, x;
        ArmOf(s, r, x);
        Series(r, x);
        break;
      }
      case StageForm::ShuntArm:
        Shunt(s.g + s.gc * wAbs, s.b + s.bc * w);
        break;
      case StageForm::ShuntSeries:
        ShuntSeriesPair(s);
        break;
      case StageForm::SeriesTank:
        SeriesTank(s);
        break;
      case StageForm::ShuntTank:
        ShuntTank(s);
        break;
      case StageForm::Line:
        LineStage(s);
        break;
      case StageForm::SeriesStub:
        SeriesStub(s);
        break;
      case StageForm::ShuntStub:
        ShuntStub(s);
        break;
      case StageForm::Transformer:
        TransformerStage(s);
        break;
      case StageForm::Coupled:
        CoupledStage(s);
        break;
    }
  }
};

// The figures of N points, a step a member.
template <class Target, int N>
struct Results {
  using L = Lanes<Target, N>;
  using V = typename L::V;
  using M = typename L::M;

  V transDB, angle, zinMag, zinAngleRaw, returnDB, vswr;
  M gotTransmission, gotImpedance, gotAll;

  // The angle of re + j im with the sign turned round, within -180..180; a real part of exactly 0 gives `onAxis` with
  // the sign of the imaginary one.
  [[gnu::always_inline]] static inline V TurnedAngle(V re, V im, f64 onAxis) {
    V turned = L::ArcTangent(im, re) * -degreesPerRadian;
    turned = re < 0 ? (im < 0 ? turned - 180 : turned + 180) : turned;
    turned = turned > 180 ? turned - 360 : turned;
    turned = turned < -180 ? turned + 360 : turned;
    const V axis = im > 0 ? L::All(onAxis) : L::All(-onAxis);
    return re == 0 ? axis : turned;
  }

  [[gnu::always_inline]] inline void Transmission(const Ladder& ladder, const Walk<Target, N>& at) {
    V Hr = (at.Vr + ladder.Rsource * at.Ir) / ladder.Rload;
    V Hi = (at.Vi + ladder.Rsource * at.Ii) / ladder.Rload;
    Hr = Hr == 0 ? L::All(1e-10) : Hr;
    Hi = Hi == 0 ? L::All(1e-10) : Hi;
    // The product of the reference power is formed in 32 bits.
    const f64 fourRs = static_cast<f32>(4 * ladder.Rsource);
    const V ratio = (Hi * Hi + Hr * Hr) * ladder.Rload / fourRs;
    constexpr f64 smallestNormal = 2.2250738585072014e-308;
    gotTransmission = ~at.fails & (ratio >= smallestNormal) & L::IsFinite(ratio);
    transDB = L::Log(gotTransmission ? ratio : L::All(1)) * (-10 / ln10);
    angle = TurnedAngle(Hr, Hi, -90);
  }

  [[gnu::always_inline]] inline void Impedance(const Ladder& ladder, const Walk<Target, N>& at) {
    const V den = at.Ir * at.Ir + at.Ii * at.Ii;
    const V re = (at.Ir * at.Vr + at.Ii * at.Vi) / den;
    const V im = (at.Ir * at.Vi - at.Vr * at.Ii) / den;
    zinMag = L::Sqrt(re * re + im * im);
    // The results rest in 32 bits.
    constexpr f64 largest = 3.4028235677973366e38;
    gotImpedance = gotTransmission & (den != 0) & (zinMag < largest);
    zinAngleRaw = TurnedAngle(re, im, 90);
    Reflection(ladder, re, im);
  }

  [[gnu::always_inline]] inline void Reflection(const Ladder& ladder, V re, V im) {
    const V less = re - ladder.Rstandard;
    const V more = re + ladder.Rstandard;
    const V bottom = L::Sqrt(more * more + im * im);
    gotAll = gotImpedance & (bottom != 0);
    V rho = L::Sqrt(less * less + im * im) / bottom;
    rho = rho > 0.9999999 ? L::All(0.9999999) : rho;
    rho = rho < 1e-7 ? L::All(1e-7) : rho;
    returnDB = L::Log(gotAll ? rho : L::All(0.5)) * (20 / ln10);
    vswr = (1 + rho) / (1 - rho);
  }
};

template <class Target, int N>
[[gnu::always_inline]] inline void EvaluateLanes(const Ladder& ladder, const StageRange& stages, const f32* frequencies,
                                                 int count, Figures* figures) {
  using L = Lanes<Target, N>;
  typename L::V frequency;
  // Lanes beyond the last point repeat it.
  for (int i = 0; i < N; ++i) frequency[i] = frequencies[i < count ? i : count - 1];
  Walk<Target, N> walk;
  walk.Start(ladder, frequency);
  for (const CompiledStage* stage = stages.first; stage != stages.last; ++stage) walk.Pass(*stage);
  Results<Target, N> results;
  results.Transmission(ladder, walk);
  results.Impedance(ladder, walk);
  for (int i = 0; i < count; ++i) {
    Figures& f = figures[i];
    f.transDB = results.transDB[i];
    f.angle = results.angle[i];
    f.zinMag = results.zinMag[i];
    f.zinAngleRaw = results.zinAngleRaw[i];
    f.returnDB = results.returnDB[i];
    f.vswr = results.vswr[i];
    f.reached = results.gotAll[i]            ? reachedAll
                : results.gotImpedance[i]    ? reachedImpedance
                : results.gotTransmission[i] ? reachedTransmission
                                             : reachedNothing;
  }
}

template <class Target, int N>
[[gnu::always_inline]] inline void EvaluateAll(const Ladder& ladder, const StageRange& stages, const f32* frequencies,
                                               std::size_t count, Figures* figures) {
  for (std::size_t first = 0; first < count; first += N) {
    const std::size_t left = count - first;
    EvaluateLanes<Target, N>(ladder, stages, frequencies + first, left < N ? static_cast<int>(left) : N,
                             figures + first);
  }
}

}  // namespace quilm
