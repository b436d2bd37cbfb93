// What a sweep leaves behind: the response of the ladder at up to 2050 frequencies, and the extremes over successive
// sweeps. All arrays are indexed 0..2049.
#pragma once

#include <array>

#include "core/ResponseArray.h"
#include "core/Sweep.h"
#include "core/Types.h"

namespace quilm {

// What of a sweep depends on its settings alone, kept while they stand.
struct SweepTable {
  static constexpr int room = (responseBound / sweepPadding + 1) * sweepPadding;

  SweepSettings settings;
  int points = 0;                                       // 0: nothing is kept
  std::array<f32, room> frequency{};                    // Hz
  alignas(64) std::array<f64, room> w{};                // rad/s
  alignas(64) std::array<f64, room> wInverse{};         // s/rad, 1 where w is 0
  alignas(64) std::array<f64, room> degreesPerDelay{};  // 360 times the step to each frequency, degrees per second
};

struct Responses {
  ResponseArray RespFreq;      // Hz
  ResponseArray RespTrans;     // dB, 0 = all available power reaches the load
  ResponseArray RespAngle;     // degrees, -180..180
  ResponseArray RespDelay;     // seconds
  ResponseArray RespPhase;     // degrees, running sum of the wrapped phase steps
  ResponseArray RespReturn;    // dB, negative
  ResponseArray RespVSWR;      // ratio, at least 1
  ResponseArray RespZin;       // ohms, magnitude
  ResponseArray RespZinAngle;  // degrees

  ResponseArray MaxTrans, MinTrans;
  ResponseArray MaxAngle, MinAngle;
  ResponseArray MaxDelay, MinDelay;
  ResponseArray MaxReturn, MinReturn;
  ResponseArray MaxVSWR, MinVSWR;
  ResponseArray MaxZin, MinZin;
  ResponseArray MaxZinAngle, MinZinAngle;

  f64 TransPeak = -300;   // dB, absolute
  f64 TransPeakFreq = 0;  // Hz
  f32 Fq = 0;             // Hz, the frequency at which inductor Q is quoted

  SweepTable table;
};

}  // namespace quilm
