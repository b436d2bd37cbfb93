// What is entered of a filter, and the prototype that follows from it.
#pragma once

#include <string>

#include "core/BoundedArray.h"
#include "core/OrderLimit.h"
#include "core/Types.h"

namespace quilm {

struct Entries {
  f32 Width = 0;    // cutoff of a lowpass or highpass, bandwidth of a bandpass or bandstop
  f32 Fcenter = 0;  // 0 for the topologies "A", "B", "I", "J"
  f32 Fstopband = 0;
  f32 Apass = 0;
  f32 Astop = 0;
  std::string CauerType;  // "A" odd order, "B" even order best selectivity, "C" even order equal terminations
  i16 CauerTop = 0;       // 0 normal, 1 zig-zag
  BoundedArray<f32, 0, 41> MderivedZero;

  bool operator==(const Entries&) const = default;
};

// The normalised lowpass, for 1 ohm and 1 radian per second, 1..Order.
struct Prototype {
  f32 FstopNorm = 0;  // stopband edge over passband edge; 0 unless the family is Cauer
  i16 CauerFlag = 0;  // 1: the prototype has transmission zeros
  f32 Rratio = 0;     // load over source that the prototype requires
  BoundedArray<f32, 0, orderLimit> Gj;
  BoundedArray<f32, 0, orderLimit> Hj;

  bool operator==(const Prototype&) const = default;
};

}  // namespace quilm
