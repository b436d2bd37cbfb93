// What a sweep leaves behind: the response of the ladder at up to 2050 frequencies, and the extremes over successive
// sweeps. All arrays are indexed 0..2049.
#pragma once

#include "core/BoundedArray.h"
#include "core/Types.h"

namespace quilm {

inline constexpr int responseBound = 2049;

using ResponseArray = BoundedArray<f32, 0, responseBound>;

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
};

}  // namespace quilm
