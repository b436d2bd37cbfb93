// Times of two acts that are compared, taken in short rounds by turns, so that what else runs on the machine weighs on
// both alike.
#pragma once

#include <algorithm>
#include <chrono>

#include "core/Types.h"

namespace quilm {

// An act, how often it is done in a round, and the least time that one took.
template <class Act>
struct Timed {
  Act act;
  int runs;
  f64 seconds = 1e9;

  void Round() {
    for (int i = 0; i < runs; ++i) {
      const auto start = std::chrono::steady_clock::now();
      act();
      seconds = std::min(seconds, std::chrono::duration<f64>(std::chrono::steady_clock::now() - start).count());
    }
  }
};

// Times two acts by turns; the first run of a round finds the caches as the other act left them.
template <class First, class Second>
void ByTurns(int rounds, Timed<First>& first, Timed<Second>& second) {
  for (int round = 0; round < rounds; ++round) {
    first.Round();
    second.Round();
  }
}

}  // namespace quilm
