// What arrives at the source as figures: transmission, impedance, reflection.
#pragma once

#include "analysis/KernelWalk.h"

namespace quilm {

inline constexpr f64 degreesPerRadian = 57.295779513082323;
inline constexpr f64 ln10 = 2.302585092994046;

// A step a member; after a step that fails for a point, that point's later figures are not valid.
template <class Target, int N, int K>
struct Results {
  using P = Pack<Target, N, K>;
  using M = typename P::M;

  P transDB, angle, zinMag, zinAngleRaw, returnDB, vswr;
  M gotTransmission, gotImpedance, gotAll;

  [[gnu::always_inline]] inline void Take(const Ladder& ladder, const Walk<Target, N, K>& at) {
    Transmission(ladder, at);
    Impedance(ladder, at);
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

  [[gnu::always_inline]] inline void Transmission(const Ladder& ladder, const Walk<Target, N, K>& at) {
    P Hr = (at.Vr + ladder.Rsource * at.Ir) / ladder.Rload;
    P Hi = (at.Vi + ladder.Rsource * at.Ii) / ladder.Rload;
    Hr = Select(Hr == 0, P(1e-10), Hr);
    Hi = Select(Hi == 0, P(1e-10), Hi);
    // The product of the reference power is formed in 32 bits.
    const f64 fourRs = static_cast<f32>(4 * ladder.Rsource);
    const P ratio = (Hi * Hi + Hr * Hr) * ladder.Rload / fourRs;
    constexpr f64 smallestNormal = 2.2250738585072014e-308;
    constexpr f64 largest = 1.7976931348623157e308;
    gotTransmission = ~at.doubtful & (ratio >= smallestNormal) & (ratio <= largest);
    transDB = Log(ratio) * (-10 / ln10);
    angle = TurnedAngle(Hr, Hi, -90);
  }

  [[gnu::always_inline]] inline void Impedance(const Ladder& ladder, const Walk<Target, N, K>& at) {
    const P den = at.Ir * at.Ir + at.Ii * at.Ii;
    const P re = (at.Ir * at.Vr + at.Ii * at.Vi) / den;
    const P im = (at.Ir * at.Vi - at.Vr * at.Ii) / den;
    zinMag = Sqrt(re * re + im * im);
    // The results rest in 32 bits.
    constexpr f64 largest = 3.4028235677973366e38;
    gotImpedance = gotTransmission & (den != 0) & (zinMag < largest);
    zinAngleRaw = TurnedAngle(re, im, 90);
    Reflection(ladder, re, im);
  }

  [[gnu::always_inline]] inline void Reflection(const Ladder& ladder, const P& re, const P& im) {
    const P less = re - ladder.Rstandard;
    const P more = re + ladder.Rstandard;
    const P bottom = Sqrt(more * more + im * im);
    gotAll = gotImpedance & (bottom != 0);
    P rho = Sqrt(less * less + im * im) / bottom;
    rho = Select(rho > 0.9999999, P(0.9999999), rho);
    rho = Select(rho < 1e-7, P(1e-7), rho);
    returnDB = Log(rho) * (20 / ln10);
    vswr = (1 + rho) / (1 - rho);
  }
};

}  // namespace quilm
