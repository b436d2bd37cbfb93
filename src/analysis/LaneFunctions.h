// Logarithm, arc tangent, sine, cosine and exponential of packs (see LaneMath.h, whose rules hold here too).
//
// The polynomials are minimax ones from tools/minimax.py, whose largest relative error before rounding stands beside
// them. The errors of the results, in units of the last place (ulp), are measured by the tests of these functions.
#pragma once

#include <cstddef>

#include "analysis/LaneMath.h"

namespace quilm {

// coefficients[0] + coefficients[1] z + ... by Horner's rule.
template <class P, std::size_t terms>
[[gnu::always_inline]] inline P Polynomial(const f64 (&coefficients)[terms], const P& z) {
  P sum = coefficients[terms - 1];
  for (std::size_t i = terms - 1; i-- > 0;) sum = sum * z + coefficients[i];
  return sum;
}

// The bits of a pack's numbers, by vector.
template <class P>
using BitsOf = typename P::U;

// Natural logarithm of positive normal numbers, within 1 ulp, 2 near 1. With x = 2^k m, m within a factor sqrt(2) of 1
// and s = (m - 1) / (m + 1): ln m = 2 artanh s = 2 (s + s^3/3 + s^5/5 + ...).
template <class P>
[[gnu::always_inline]] inline P Log(const P& x) {
  static constexpr f64 series[] = {
      0x1.5555555555592p-2, 0x1.999999997fdb8p-3, 0x1.24924941f1235p-3, 0x1.c71c52095df0bp-4,
      0x1.74663ee852db8p-4, 0x1.39a1bab8d2e0cp-4, 0x1.2f05637f5d83bp-4,
  };  // 1.8e-18
  using U = BitsOf<P>;
  using V = typename P::V;
  constexpr std::uint64_t rootHalf = 0x3FE6A09E667F3BCD;
  constexpr std::uint64_t one = 0x3FF0000000000000;
  constexpr std::uint64_t mantissa = 0x000FFFFFFFFFFFFF;
  // A whole number below 2^52, put into the last bits of 2^52, makes the number 2^52 larger.
  constexpr std::uint64_t wholeBits = 0x4330000000000000;
  constexpr f64 whole = 0x1p52 + 1023;
  const auto shifted = [&](int k) { return (U)x.v[k] + (one - rootHalf); };
  const P m = EachVector<P>([&](int k) { return (V)((shifted(k) & mantissa) + rootHalf); });
  const P power = EachVector<P>([&](int k) { return (V)((shifted(k) >> 52) | wholeBits); }) - whole;
  const P s = (m - 1) / (m + 1);
  const P z = s * s;
  // ln 2 in two parts, the first with zeros at its end, so that its multiples are exact.
  constexpr f64 ln2High = 0x1.62e42fefa3800p-1;
  constexpr f64 ln2Low = 0x1.ef35793c76730p-45;
  return power * ln2High + ((s + s) + ((s + s) * z * Polynomial(series, z) + power * ln2Low));
}

// Arc tangent of y / x, within -Pi/2..Pi/2; x and y not both 0. The ratio is folded below tan(Pi / 8).
template <class P>
[[gnu::always_inline]] inline P ArcTangent(const P& y, const P& x) {
  static constexpr f64 series[] = {
      0x1.555555555553dp-2, -0x1.99999999958fap-3, 0x1.24924922b1837p-3, -0x1.c71c70e7cac03p-4,
      0x1.745cf90fd50c2p-4, -0x1.3b111cbb8d697p-4, 0x1.10ebe199532b0p-4, -0x1.df11a2f85e6ffp-5,
      0x1.9cdd3944312cep-5, -0x1.37f0089c5cbe9p-5, 0x1.25a3807f11084p-6,
  };                                              // 2.7e-18
  constexpr f64 tanEighth = 0.41421356237309503;  // tan(Pi / 8)
  constexpr f64 quarterPi = 0.78539816339744828;
  constexpr f64 halfPi = 1.5707963267948966;
  constexpr f64 halfPiLow = 6.123233995736766e-17;
  const P n = Abs(y);
  const P d = Abs(x);
  const auto steep = n > d;
  const P small = Select(steep, d, n);
  const P large = Select(steep, n, d);
  const auto folded = small > tanEighth * large;
  const P t = Select(folded, small - large, small) / Select(folded, small + large, large);
  const P z = t * t;
  P angle = t - t * z * Polynomial(series, z);
  angle = Select(folded, angle + quarterPi, angle);
  angle = Select(steep, halfPi - (angle - halfPiLow), angle);
  // The sign of the ratio.
  return TurnedBySign(TurnedBySign(angle, y), x);
}

// An angle less the nearest multiple of Pi / 2, in two parts whose sum is more precise than one number, and that
// multiple's last two bits.
template <class P>
struct Reduced {
  P high, low;
  typename P::M odd;       // sine and cosine change places
  P sineSign, cosineSign;  // negative where the sign turns
};

// The largest angle (radians, either sign) that Reduce takes: above, a multiple of Pi / 2 has too many bits.
inline constexpr f64 largestAngle = 1e6;

// Pi / 2 is taken in three parts (W. J. Cody, W. Waite, Software Manual for the Elementary Functions, 1980), the first
// two of 33 bits, so that their products with the multiple are exact.
template <class P>
[[gnu::always_inline]] inline Reduced<P> Reduce(const P& x) {
  using U = BitsOf<P>;
  using V = typename P::V;
  constexpr f64 twoOverPi = 0x1.45f306dc9c883p-1;
  constexpr f64 first = 0x1.921fb544p+0;
  constexpr f64 second = 0x1.0b4611a6p-34;
  constexpr f64 third = 0x1.3198a2e037073p-69;
  constexpr f64 whole = 0x1.8p52;  // added and taken away it rounds to whole numbers, which then stand in the last bits
  const P shifted = x * twoOverPi + whole;
  const P n = shifted - whole;
  const P rest = x - n * first;
  const P b = n * second;
  // rest - b, and what its rounding lost (D. E. Knuth, The Art of Computer Programming 2, 4.2.2).
  const P difference = rest - b;
  const P part = difference - rest;
  const P lost = (rest - (difference - part)) - (b + part);
  const P tail = lost - n * third;
  Reduced<P> reduced;
  reduced.high = difference + tail;
  reduced.low = (difference - reduced.high) + tail;
  const auto bit = [&](int k, std::uint64_t add, int mask, int shift) {
    return (V)((((U)shifted.v[k] + add) & static_cast<std::uint64_t>(mask)) << shift);
  };
  reduced.odd = EachVector<typename P::M>([&](int k) { return ((U)shifted.v[k] & 1) != 0; });
  reduced.sineSign = EachVector<P>([&](int k) { return bit(k, 0, 2, 62); });
  reduced.cosineSign = EachVector<P>([&](int k) { return bit(k, 1, 2, 62); });
  return reduced;
}

// Sine and cosine of high + low, |high| within Pi / 4.
template <class P>
[[gnu::always_inline]] inline P SineNearZero(const P& high, const P& low) {
  static constexpr f64 series[] = {
      -0x1.5555555555549p-3, 0x1.111111110f881p-7,   -0x1.a01a019c126c1p-13,
      0x1.71de3578753c1p-19, -0x1.ae5e66d58c79ep-26, 0x1.5d932f79142b0p-33,
  };  // 5.3e-18
  const P z = high * high;
  return high + (high * z * Polynomial(series, z) + low * (1 - 0.5 * z));
}

template <class P>
[[gnu::always_inline]] inline P CosineNearZero(const P& high, const P& low) {
  static constexpr f64 series[] = {
      0x1.555555555554cp-5,   -0x1.6c16c16c15184p-10, 0x1.a01a019cb26fdp-16,
      -0x1.27e4f80a76f5bp-22, 0x1.1ee9ec482029ep-29,  -0x1.8faecf69d6c48p-37,
  };  // 9.1e-19
  const P z = high * high;
  const P half = 0.5 * z;
  const P leading = 1 - half;
  return leading + (((1 - leading) - half) + (z * z * Polynomial(series, z) - high * low));
}

// Within 1 ulp, up to largestAngle.
template <class P>
[[gnu::always_inline]] inline void SineAndCosine(const P& x, P& sine, P& cosine) {
  const Reduced<P> angle = Reduce(x);
  const P s = SineNearZero(angle.high, angle.low);
  const P c = CosineNearZero(angle.high, angle.low);
  sine = TurnedBySign(Select(angle.odd, c, s), angle.sineSign);
  cosine = TurnedBySign(Select(angle.odd, s, c), angle.cosineSign);
}

// Within 2 ulp, up to largestAngle.
template <class P>
[[gnu::always_inline]] inline P Tangent(const P& x) {
  P sine, cosine;
  SineAndCosine(x, sine, cosine);
  return sine / cosine;
}

// e to the x, within 1 ulp; x within -700..700, beyond it the value there. With x = k ln 2 + r it is 2^k e^r.
template <class P>
[[gnu::always_inline]] inline P Exp(const P& x) {
  static constexpr f64 series[] = {
      0x1.0000000000000p-1,  0x1.555555555555bp-3,  0x1.5555555555503p-5,  0x1.111111110ec65p-7,
      0x1.6c16c16c3043ap-10, 0x1.a01a01b37b42ap-13, 0x1.a01a01369f64ep-16, 0x1.71ddf0285b545p-19,
      0x1.27e5b4340292ap-22, 0x1.af6bda781eeacp-26, 0x1.1e3d35127efa4p-29,
  };  // 7.2e-19
  using U = BitsOf<P>;
  using V = typename P::V;
  constexpr f64 furthest = 700;
  constexpr f64 perLn2 = 0x1.71547652b82fep+0;
  constexpr f64 ln2High = 0x1.62e42fefa3800p-1;
  constexpr f64 ln2Low = 0x1.ef35793c76730p-45;
  constexpr f64 whole = 0x1.8p52;
  P held = Select(x > furthest, P(furthest), x);
  held = Select(held < -furthest, P(-furthest), held);
  const P shifted = held * perLn2 + whole;
  const P k = shifted - whole;
  const P rest = held - k * ln2High;
  const P low = k * ln2Low;
  const P r = rest - low;
  const P power = r * r * Polynomial(series, r);
  // What r lost in rounding comes back here.
  const P near = 1 + (((rest - r) - low) + power + r);
  return EachVector<P>([&](int i) { return (V)((U)near.v[i] + ((U)shifted.v[i] << 52)); });
}

}  // namespace quilm
