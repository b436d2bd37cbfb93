// Arithmetic on a fixed number of lanes, each rounded as plain 64-bit arithmetic is: N lanes give the bits of one.
//
// Included only by the kernels, each compiled for another processor: nothing here may become a function of its own that
// the linker could share between them. Hence the parameter Target, and everything inline.
#pragma once

#include <cstdint>

#include "core/Types.h"

// Vectors are passed within one inlined function only; how they would cross a call does not matter.
#pragma GCC diagnostic ignored "-Wpsabi"

namespace quilm {

// The vector types: N numbers, and the masks that comparing them gives.
template <int N>
struct VectorOf;

template <>
struct VectorOf<1> {
  using V [[gnu::vector_size(8)]] = f64;
  using M [[gnu::vector_size(8)]] = std::int64_t;
};

template <>
struct VectorOf<8> {
  using V [[gnu::vector_size(64)]] = f64;
  using M [[gnu::vector_size(64)]] = std::int64_t;
};

template <class Target, int N>
struct Lanes {
  using V = typename VectorOf<N>::V;
  using M = typename VectorOf<N>::M;

  // A constant in all lanes.
  [[gnu::always_inline]] static inline V All(f64 x) { return x - V{}; }

  [[gnu::always_inline]] static inline V Abs(V x) {
    const M magnitude = ~(M{} + INT64_MIN);
    return (V)((M)x & magnitude);
  }

  // x with the sign of s.
  [[gnu::always_inline]] static inline V WithSign(V x, V s) {
    const M sign = M{} + INT64_MIN;
    return (V)(((M)x & ~sign) | ((M)s & sign));
  }

  [[gnu::always_inline]] static inline V Sqrt(V x) {
    V root;
    for (int i = 0; i < N; ++i) root[i] = __builtin_sqrt(x[i]);
    return root;
  }

  [[gnu::always_inline]] static inline M IsFinite(V x) {
    const M exponent = M{} + 0x7FF0000000000000;
    return ((M)x & exponent) != exponent;
  }

  [[gnu::always_inline]] static inline bool Any(M mask) {
    std::int64_t bits = 0;
    for (int i = 0; i < N; ++i) bits |= mask[i];
    return bits != 0;
  }

  // Natural logarithm of a positive normal number. With x = 2^k m, m within a factor sqrt(2) of 1 and
  // s = (m - 1) / (m + 1): ln m = 2 artanh s = 2 (s + s^3/3 + s^5/5 + ...). |s| is below 0.1716, so twelve terms leave
  // less than a unit in the last place.
  [[gnu::always_inline]] static inline V Log(V x) {
    const M rootHalf = M{} + 0x3FE6A09E667F3BCD;
    const M mantissa = M{} + 0x000FFFFFFFFFFFFF;
    const M bits = (M)x - rootHalf;
    const M k = bits >> 52;
    const V m = (V)((bits & mantissa) + rootHalf);
    const V s = (m - 1) / (m + 1);
    const V z = s * s;
    V series = All(1.0 / 25);
    for (int odd = 23; odd >= 3; odd -= 2) series = series * z + 1.0 / odd;
    const V power = ToFloat(k);
    // ln 2 in two parts, the first with zeros at its end, so that its multiples are exact.
    constexpr f64 ln2High = 0x1.62e42fefa3800p-1;
    constexpr f64 ln2Low = 0x1.ef35793c76730p-45;
    return power * ln2High + ((s + s) + ((s + s) * z * series + power * ln2Low));
  }

  // Arc tangent of y / x, within -Pi/2..Pi/2; x and y not both 0. The ratio is folded below tan(Pi/8) and the power
  // series taken from there.
  [[gnu::always_inline]] static inline V ArcTangent(V y, V x) {
    constexpr f64 eighth = 0.41421356237309503;  // tan(Pi / 8)
    constexpr f64 quarterPi = 0.78539816339744828;
    constexpr f64 halfPi = 1.5707963267948966;
    constexpr f64 halfPiLow = 6.123233995736766e-17;
    const V n = Abs(y);
    const V d = Abs(x);
    const M steep = n > d;
    const V small = steep ? d : n;
    const V large = steep ? n : d;
    const M folded = small > eighth * large;
    const V top = folded ? small - large : small;
    const V bottom = folded ? small + large : large;
    const V t = top / bottom;
    const V z = t * t;
    V series = All(1.0 / 45);
    for (int odd = 43; odd >= 3; odd -= 2) series = 1.0 / odd - series * z;
    V angle = t - t * z * series;
    angle = folded ? angle + quarterPi : angle;
    angle = steep ? halfPi - (angle - halfPiLow) : angle;
    // The sign of the ratio.
    return WithSign(angle, (V)((M)y ^ (M)x));
  }

 private:
  [[gnu::always_inline]] static inline V ToFloat(M k) {
    V power;
    for (int i = 0; i < N; ++i) power[i] = static_cast<f64>(static_cast<i32>(k[i]));
    return power;
  }
};

}  // namespace quilm
