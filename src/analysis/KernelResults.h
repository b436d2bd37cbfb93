// What arrives at the source as figures: transmission, impedance, reflection.
#pragma once

#include "analysis/KernelWalk.h"

namespace quilm {

inline constexpr f64 degreesPerRadian = 57.295779513082323;
inline constexpr f64 ln10 = 2.302585092994046;

// Each figure is formed by a step that may fail for a point, after which that point's later figures are not valid. They
// are formed in another order than they are reached: divisions and roots, which take the processor long, are spread
// over the polynomials, which can be worked on meanwhile.
template <class Target, int N, int K>
struct Results {
  using P = Pack<Target, N, K>;
  using M = typename P::M;

  P transDB, angle, zinMag, zinAngleRaw, returnDB, vswr;
  M gotTransmission, gotImpedance, gotAll;

  [[gnu::always_inline]] inline void Take(const Ladder& ladder, const Walk<Target, N, K>& at) {
    constexpr f64 smallestNormal = 2.2250738585072014e-308;
    constexpr f64 largest64 = 1.7976931348623157e308;
    constexpr f64 largest32 = 3.4028235677973366e38;  // the results rest in 32 bits

    P Hr = (at.Vr + ladder.Rsource * at.Ir) / ladder.Rload;
    P Hi = (at.Vi + ladder.Rsource * at.Ii) / ladder.Rload;
    Hr = Select(Hr == 0, P(1e-10), Hr);
    Hi = Select(Hi == 0, P(1e-10), Hi);
    // The product of the reference power is formed in 32 bits.
    const f64 fourRs = static_cast<f32>(4 * ladder.Rsource);
    const P ratio = (Hi * Hi + Hr * Hr) * ladder.Rload / fourRs;
    const P den = at.Ir * at.Ir + at.Ii * at.Ii;
    const P re = (at.Ir * at.Vr + at.Ii * at.Vi) / den;
    const P im = (at.Ir * at.Vi - at.Vr * at.Ii) / den;

    transDB = Log(ratio) * (-10 / ln10);
    gotTransmission = ~at.doubtful & (ratio >= smallestNormal) & (ratio <= largest64);
    zinMag = Sqrt(re * re + im * im);
    gotImpedance = gotTransmission & (den != 0) & (zinMag < largest32);
    angle = TurnedAngle(Hr, Hi, -90);

    const P less = re - ladder.Rstandard;
    const P more = re + ladder.Rstandard;
    const P bottom = Sqrt(more * more + im * im);
    gotAll = gotImpedance & (bottom != 0);
    P rho = Sqrt(less * less + im * im) / bottom;
    zinAngleRaw = TurnedAngle(re, im, 90);

    rho = Select(rho > 0.9999999, P(0.9999999), rho);
    rho = Select(rho < 1e-7, P(1e-7), rho);
    vswr = (1 + rho) / (1 - rho);
    returnDB = Log(rho) * (20 / ln10);
  }

 private:
  // The angle of re + j im with the sign turned round, within -180..180; a real part of exactly 0 gives `onAxis` with
  // the sign of the imaginary one.
  [[gnu::always_inline]] static inline P TurnedAngle(const P& re, const P& im, f64 onAxis) {
    const P right = ArcTangent(im, re) * -degreesPerRadian;
    const P turned = Select(re < 0, right + Select(im < 0, P(-180), P(180)), right);
    const P within = Select(Abs(turned) > 180, turned - TurnedBySign(P(360), turned), turned);
    return Select(re == 0, Select(im > 0, P(onAxis), P(-onAxis)), within);
  }
};

}  // namespace quilm
