// Arithmetic on many points at once, each rounded as plain 64-bit arithmetic is: any number of lanes gives the bits of
// one.
//
// A pack is K vectors of N lanes. N is what the processor's registers hold: wider vectors would be taken apart into
// single lanes for comparisons and selections. With K vectors side by side each step of a long chain of operations has
// K independent ones to work on, so that the chain does not wait for itself.
//
// Included only by the kernels, each compiled for another processor: nothing here may become a function of its own that
// the linker could share between them. Hence the parameter Target, a type of the including source's own.
#pragma once

#include <cstdint>

#include "core/Types.h"

// Vectors are passed within one inlined function only; how they would cross a call does not matter.
#pragma GCC diagnostic ignored "-Wpsabi"

namespace quilm {

// The vector types: N numbers, their bits, the masks that comparing them gives, and N numbers of 32 bits.
template <int N>
struct VectorOf {
  using V [[gnu::vector_size(8 * N)]] = f64;
  using U [[gnu::vector_size(8 * N)]] = std::uint64_t;
  using M [[gnu::vector_size(8 * N)]] = std::int64_t;
  using V32 [[gnu::vector_size(4 * N)]] = f32;
};

// What `act` gives for each vector of a pack, without a loop, so that all of them stay in registers.
template <class Result, class Act>
[[gnu::always_inline]] inline Result EachVector(Act act) {
  Result result;
  result.v[0] = act(0);
  if constexpr (Result::vectors >= 2) result.v[1] = act(1);
  if constexpr (Result::vectors >= 4) {
    result.v[2] = act(2);
    result.v[3] = act(3);
  }
  return result;
}

// True or false for each point.
template <class Target, int N, int K>
struct Mask {
  static constexpr int vectors = K;
  using M = typename VectorOf<N>::M;
  M v[K];

  [[gnu::always_inline]] friend inline Mask operator|(const Mask& a, const Mask& b) {
    return EachVector<Mask>([&](int k) { return a.v[k] | b.v[k]; });
  }
  [[gnu::always_inline]] friend inline Mask operator&(const Mask& a, const Mask& b) {
    return EachVector<Mask>([&](int k) { return a.v[k] & b.v[k]; });
  }
  [[gnu::always_inline]] friend inline Mask operator~(const Mask& a) {
    return EachVector<Mask>([&](int k) { return ~a.v[k]; });
  }
  [[gnu::always_inline]] static inline Mask None() {
    return EachVector<Mask>([](int) { return M{}; });
  }

  [[gnu::always_inline]] inline bool Any() const {
    M any = v[0];
    for (int k = 1; k < K; ++k) any |= v[k];
    std::int64_t bits = 0;
    for (int i = 0; i < N; ++i) bits |= any[i];
    return bits != 0;
  }
  [[gnu::always_inline]] inline bool At(int point) const { return v[point / N][point % N] != 0; }
};

// A 64-bit number for each point.
template <class Target, int N, int K>
struct Pack {
  static_assert(K == 1 || K == 2 || K == 4);
  static constexpr int vectors = K;
  static constexpr int points = N * K;
  using V = typename VectorOf<N>::V;
  using U = typename VectorOf<N>::U;
  using V32 = typename VectorOf<N>::V32;
  using M = Mask<Target, N, K>;
  V v[K];

  Pack() = default;
  // The same number for all.
  [[gnu::always_inline]] inline Pack(f64 x) {
    for (int k = 0; k < K; ++k) v[k] = x - V{};
  }

  [[gnu::always_inline]] friend inline Pack operator+(const Pack& a, const Pack& b) {
    return EachVector<Pack>([&](int k) { return a.v[k] + b.v[k]; });
  }
  [[gnu::always_inline]] friend inline Pack operator-(const Pack& a, const Pack& b) {
    return EachVector<Pack>([&](int k) { return a.v[k] - b.v[k]; });
  }
  [[gnu::always_inline]] friend inline Pack operator*(const Pack& a, const Pack& b) {
    return EachVector<Pack>([&](int k) { return a.v[k] * b.v[k]; });
  }
  [[gnu::always_inline]] friend inline Pack operator/(const Pack& a, const Pack& b) {
    return EachVector<Pack>([&](int k) { return a.v[k] / b.v[k]; });
  }
  [[gnu::always_inline]] friend inline Pack operator-(const Pack& a) {
    return EachVector<Pack>([&](int k) { return -a.v[k]; });
  }
  [[gnu::always_inline]] inline Pack& operator+=(const Pack& a) { return *this = *this + a; }
  [[gnu::always_inline]] inline Pack& operator*=(const Pack& a) { return *this = *this * a; }

  [[gnu::always_inline]] friend inline M operator==(const Pack& a, const Pack& b) {
    return EachVector<M>([&](int k) { return a.v[k] == b.v[k]; });
  }
  [[gnu::always_inline]] friend inline M operator!=(const Pack& a, const Pack& b) {
    return EachVector<M>([&](int k) { return a.v[k] != b.v[k]; });
  }
  [[gnu::always_inline]] friend inline M operator<(const Pack& a, const Pack& b) {
    return EachVector<M>([&](int k) { return a.v[k] < b.v[k]; });
  }
  [[gnu::always_inline]] friend inline M operator<=(const Pack& a, const Pack& b) {
    return EachVector<M>([&](int k) { return a.v[k] <= b.v[k]; });
  }
  [[gnu::always_inline]] friend inline M operator>(const Pack& a, const Pack& b) { return b < a; }
  [[gnu::always_inline]] friend inline M operator>=(const Pack& a, const Pack& b) { return b <= a; }

  // a where the mask is true, b elsewhere.
  [[gnu::always_inline]] friend inline Pack Select(const M& mask, const Pack& a, const Pack& b) {
    return EachVector<Pack>([&](int k) { return mask.v[k] ? a.v[k] : b.v[k]; });
  }
  [[gnu::always_inline]] friend inline Pack Abs(const Pack& a) {
    return EachVector<Pack>([&](int k) { return (V)((U)a.v[k] & ~signBit); });
  }
  // a with its sign turned where b is negative.
  [[gnu::always_inline]] friend inline Pack TurnedBySign(const Pack& a, const Pack& b) {
    return EachVector<Pack>([&](int k) { return (V)((U)a.v[k] ^ ((U)b.v[k] & signBit)); });
  }
  [[gnu::always_inline]] friend inline Pack Sqrt(const Pack& a) {
    return EachVector<Pack>([&](int k) {
      V root;
      for (int i = 0; i < N; ++i) root[i] = __builtin_sqrt(a.v[k][i]);
      return root;
    });
  }
  [[gnu::always_inline]] static inline Pack Load(const f64* from) {
    Pack pack;
    __builtin_memcpy(&pack, from, sizeof pack);
    return pack;
  }
  [[gnu::always_inline]] inline void Store(f64* to) const { __builtin_memcpy(to, this, sizeof *this); }
  // Rounded to 32 bits.
  [[gnu::always_inline]] inline void Store(f32* to) const {
    for (int k = 0; k < K; ++k) {
      const V32 rounded = __builtin_convertvector(v[k], V32);
      __builtin_memcpy(to + k * N, &rounded, sizeof rounded);
    }
  }
  [[gnu::always_inline]] inline f64 At(int point) const { return v[point / N][point % N]; }

 private:
  static constexpr std::uint64_t signBit = 0x8000000000000000;
};

}  // namespace quilm
