// The analysis as its formulas stand, point by point with a general complex matrix product: the reference that the
// engine is compared with, in figures and in speed.
#pragma once

#include "core/DesignRecord.h"
#include "core/Responses.h"

namespace quilm::plain {

struct Point {
  f64 TransDB = 0;
  f64 Angle = 0;
  f64 PhaseStep = 0;
  f32 Delay = 0;
  f64 ZinMag = 0;
  f64 ZinAngleRaw = 0;
  f64 ReturnDB = 0;
  f64 VSWR = 0;
};

// Writes the results in the order of their declaration, up to the first that a division by zero, an overflow or a
// logarithm outside its domain prevents.
void AnalyzePoint(const DesignRecord& record, f32 Fq, f32 PrevFreq, f32 PrevAngle, f32 Freq, Point& point);

// All points of a sweep, without extremes, peak and relative mode.
void Sweep(const DesignRecord& record, f32 Fq, Responses& responses);

}  // namespace quilm::plain
