// The walk: a compiled ladder from the load to the source, for all points of a pack at once.
//
// With the load current 1, the pair (V, I) at the load is (Rload, 1); a series arm adds Z I to V, a shunt arm Y V to I.
// What arrives at the source is V = Rload A + B and I = Rload C + D of the ladder's chain matrix, all that its response
// needs, at a quarter of the matrix product's work.
//
// A pack of one point decides itself whether the point fails. Wider packs only find out which points need that care:
// `doubtful` holds all points that may fail, that come near a tank's resonance, or whose angle is too large.
#pragma once

#include <cmath>

#include "analysis/Ladder.h"
#include "analysis/LaneFunctions.h"

namespace quilm {

// How near a tank comes to resonance before its susceptances are formed one by one, to see whether they cancel exactly.
inline constexpr f64 nearResonance = 1e-12;

template <class Target, int N, int K>
struct Walk {
  using P = Pack<Target, N, K>;
  using M = typename P::M;
  static constexpr bool alone = P::points == 1;

  P w, wAbs, wInverse, wInverseAbs;  // angular frequency and its reciprocal
  P Vr, Vi, Ir, Ii;
  M doubtful;  // alone: failing

  // `angular` and `inverse` hold the angular frequencies (rad/s) and their reciprocals, 1 for the reciprocal of 0: at 0
  // only stages that do not divide by it may go on; what the others form is not used.
  [[gnu::always_inline]] inline void Start(const Ladder& ladder, const f64* angular, const f64* inverse) {
    w = P::Load(angular);
    wInverse = P::Load(inverse);
    wAbs = Abs(w);
    wInverseAbs = Abs(wInverse);
    doubtful = ladder.failsAtZero ? w == 0 : M::None();
    Vr = ladder.Rload;
    Vi = 0;
    Ir = 1;
    Ii = 0;
  }

  [[gnu::always_inline]] inline void Doubt(const M& points) { doubtful = doubtful | points; }

  [[gnu::always_inline]] inline void Series(const P& r, const P& x) {
    Vr += r * Ir - x * Ii;
    Vi += r * Ii + x * Ir;
  }

  [[gnu::always_inline]] inline void Shunt(const P& g, const P& b) {
    Ir += g * Vr - b * Vi;
    Ii += g * Vi + b * Vr;
  }

  // The same with the admittance g - jb.
  [[gnu::always_inline]] inline void ShuntLagging(const P& g, const P& b) {
    Ir += g * Vr + b * Vi;
    Ii += g * Vi - b * Vr;
  }

  [[gnu::always_inline]] inline P ArmResistance(const CompiledStage& s) const { return s.r + s.rc * wInverseAbs; }
  [[gnu::always_inline]] inline P ArmReactance(const CompiledStage& s) const {
    return s.x + s.xl * w + s.xc * wInverse;
  }

  // The reciprocal of R + jX in a shunt arm.
  [[gnu::always_inline]] inline void ShuntReciprocal(const P& r, const P& x) {
    const P inverse = 1 / (r * r + x * x);
    ShuntLagging(r * inverse, x * inverse);
  }

  [[gnu::always_inline]] inline void ShuntSeriesPair(const CompiledStage& s) {
    const P r = ArmResistance(s);
    P x = ArmReactance(s);
    if (s.guardsZeroX) x = Select(x == 0, P(1e-10), x);
    if (!s.lossy) Doubt(r == 0);
    ShuntReciprocal(r, x);
  }

  // A tank's admittance times the square of its inductor's impedance: conductance gD, susceptance -bD.
  struct TankArm {
    P D, gD, bD;
  };

  [[gnu::always_inline]] inline TankArm TankOf(const CompiledStage& s) {
    const P XL = s.L * w;
    TankArm arm;
    arm.D = s.Rs * s.Rs + XL * XL;
    arm.gD = s.Rs + (s.g + s.gc * wAbs) * arm.D;
    arm.bD = XL + (s.capacitiveOffset + s.capacitive * w) * arm.D;
    if (!s.lossy) Doubt(arm.gD == 0);
    const M near = Abs(arm.bD) <= nearResonance * Abs(XL);
    if constexpr (alone) {
      if (near.At(0)) arm.bD = ResonantSusceptance(s, w.At(0), arm.D.At(0));
    } else {
      Doubt(near);
    }
    return arm;
  }

  // Near resonance: the two reactances one by one. If they cancel exactly the inductor's is moved by a
  // hundred-thousandth, so that the tank's reactance is very large and finite. (Xc + XpL compares in 64 bits.)
  [[gnu::always_inline]] inline f64 ResonantSusceptance(const CompiledStage& s, f64 omega, f64 D) {
    const f64 XL = s.L * omega;
    const f64 Xc = 1 / (s.capacitiveOffset + s.capacitive * omega);
    f64 XpL = D / XL;
    if (Xc + XpL == 0) XpL *= 1.00001;
    const f64 sum = 1 / Xc + 1 / XpL;
    Doubt(P(sum) == 0);
    return sum * D;
  }

  [[gnu::always_inline]] inline void SeriesTank(const CompiledStage& s) {
    const TankArm arm = TankOf(s);
    const P inverse = arm.D / (arm.gD * arm.gD + arm.bD * arm.bD);
    if (s.lossy) {
      Series(arm.gD * inverse, arm.bD * inverse);
      return;
    }
    // The resistance is taken positive, the reactance keeps the sign that the conductance gives it.
    const P x = arm.bD * inverse;
    Series(Abs(arm.gD) * inverse, Select(arm.gD < 0, -x, x));
  }

  [[gnu::always_inline]] inline void ShuntTank(const CompiledStage& s) {
    const TankArm arm = TankOf(s);
    const P inverse = 1 / arm.D;
    ShuntLagging(arm.gD * inverse, arm.bD * inverse);
  }

  // Angles beyond what the polynomials take are left to the library, one by one.
  [[gnu::always_inline]] inline bool IsLarge(const P& angle) {
    const M large = Abs(angle) > largestAngle;
    if constexpr (alone) return large.At(0);
    Doubt(large);
    return false;
  }

  [[gnu::always_inline]] inline P TangentOf(const CompiledStage& s) {
    const P angle = s.t * w;
    if (IsLarge(angle)) return std::tan(angle.At(0));
    return Tangent(angle);
  }

  [[gnu::always_inline]] inline void SeriesStub(const CompiledStage& s) {
    const P tangent = TangentOf(s);
    if (s.open) {
      Doubt(tangent == 0);
      Series(0, -(s.z / tangent));
    } else {
      Series(0, s.z * tangent);
    }
  }

  [[gnu::always_inline]] inline void ShuntStub(const CompiledStage& s) {
    const P tangent = TangentOf(s);
    if (s.open) {
      Shunt(0, tangent / s.z);
    } else {
      const P x = s.z * tangent;
      Doubt(x == 0);
      ShuntLagging(0, 1 / x);
    }
  }

  // The chain matrix with real a, d and imaginary b, c.
  [[gnu::always_inline]] inline void Cascade(const P& a, const P& b, const P& c, const P& d) {
    const P vr = a * Vr - b * Ii;
    const P vi = a * Vi + b * Ir;
    const P ir = d * Ir - c * Vi;
    const P ii = d * Ii + c * Vr;
    Vr = vr;
    Vi = vi;
    Ir = ir;
    Ii = ii;
  }

  [[gnu::always_inline]] inline void LineStage(const CompiledStage& s) {
    const P angle = s.t * w;
    P sine, cosine;
    if (IsLarge(angle)) {
      sine = std::sin(angle.At(0));
      cosine = std::cos(angle.At(0));
    } else {
      SineAndCosine(angle, sine, cosine);
    }
    Cascade(cosine, s.z * sine, sine / s.z, cosine);
  }

  [[gnu::always_inline]] inline void TransformerStage(const CompiledStage& s) {
    Vr *= s.n;
    Vi *= s.n;
    Ir *= s.reciprocal;
    Ii *= s.reciprocal;
  }

  [[gnu::always_inline]] inline void CoupledStage(const CompiledStage& s) {
    Cascade(s.l1M, w * s.leakage, -1 / (w * s.M), s.l2M);
  }

  [[gnu::always_inline]] inline void Pass(const CompiledStage& s) {
    switch (s.form) {
      case StageForm::SeriesArm:
        Series(ArmResistance(s), ArmReactance(s));
        break;
      case StageForm::SeriesInductor:
        Series(s.r, s.xl * w);
        break;
      case StageForm::SeriesCapacitor:
        Series(s.rc * wInverseAbs, s.xc * wInverse);
        break;
      case StageForm::ShuntCapacitor:
        Shunt(s.gc * wAbs, s.bc * w);
        break;
      case StageForm::ShuntInductor:
        ShuntReciprocal(s.r, s.xl * w);
        break;
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

}  // namespace quilm
