// The entries of a filter that is built of lines in a tube. They stay for the run of the program, so that another try
// begins with the tube of the last one.
#pragma once

#include "core/Types.h"

namespace quilm {

// 0 stands for what was never entered.
struct TubeData {
  f32 TubeFreq = 0;           // where the parts are turned into lines, Hz
  f32 TubeVelocity = 0;       // divides the speed of light, so it lies above 1
  f32 TubeDiaInductors = 0;   // of the thin sections, mm
  f32 TubeDiaCapacitors = 0;  // of the thick sections, mm
  f32 TubeDiaInterior = 0;    // of the tube, mm
  f32 TubeZInductors = 0;     // computed, ohms
  f32 TubeZCapacitors = 0;    // computed, ohms
};

}  // namespace quilm
