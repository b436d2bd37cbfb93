// The random numbers of tolerance and optimising runs: one generator, whose sequence a seed fixes.
#pragma once

#include <cstdint>
#include <random>

#include "core/Types.h"

namespace quilm {

class UniformNumbers {
 public:
  // Starts anywhere, so that each run of the program has a sequence of its own.
  UniformNumbers() : generator_(std::random_device{}()) {}

  // Starts the sequence of this seed.
  void Seed(std::uint32_t seed) { generator_.seed(seed); }

  // The next number, uniform in 0 <= r < 1, a whole multiple of 2^-24: below 1 also when it is kept in 32 bits. The
  // generator is the 32-bit Mersenne Twister (Matsumoto and Nishimura, ACM TOMACS 8 (1998) 3), which the language fixes
  // to the bit; the library's distributions are not fixed, so the upper 24 bits are scaled here. The same seed thus
  // gives the same sequence on every machine.
  f32 Next() {
    constexpr int dropped = 8;
    constexpr f32 step = 0x1p-24F;
    return static_cast<f32>(generator_() >> dropped) * step;
  }

 private:
  std::mt19937 generator_;
};

}  // namespace quilm
