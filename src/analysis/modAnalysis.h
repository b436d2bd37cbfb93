// The analysis of the ladder: its response at one frequency, and over a sweep.
#pragma once

#include <span>
#include <string>

#include "analysis/Kernel.h"
#include "analysis/Ladder.h"
#include "core/RecordFwd.h"
#include "core/Types.h"

namespace quilm {

class Session;

// What the evaluation at a frequency gives. Between points the previous frequency and angle rest in 32 bits.
struct FrequencyResult {
  f64 TransDB = 0;      // dB, 0 = all available power reaches the load
  f64 Angle = 0;        // degrees, -180..180
  f64 PhaseStep = 0;    // degrees, the angle's wrapped difference from the previous one
  f32 Delay = 0;        // seconds, from that difference
  f64 ZinMag = 0;       // ohms
  f64 ZinAngleRaw = 0;  // degrees, with the opposite sign of the true angle
  f64 ReturnDB = 0;     // dB, negative
  f64 VSWR = 0;
};

// Evaluates the ladder at Freq (Hz); PrevFreq and PrevAngle serve the delay alone. The results are written in the order
// of their declaration; a failure on the way (a division by zero, say) leaves those not yet written as they were, and
// tells nobody. Without stages nothing is written.
void AnalyzeFrequency(const Network& network, const Ladder& ladder, f32 PrevFreq, f32 PrevAngle, f32 Freq,
                      FrequencyResult& result);

// The sweep itself: fills the responses over Fstart..Fstop, widens the extremes, sets TransPeak and TransPeakFreq and
// Fq, and ResponsesValid. A line of exactly 90.0001 degrees reads 90 afterwards. A point that fails repeats the figures
// of the one before it. Returns the line mark of the step that failed, empty when the sweep is complete;
// ResponsesValid then stays as it was.
std::string SweepLadder(DesignRecord& record, Responses& responses, VectorWidth width = DefaultWidth());

// The frequencies of the last sweep, Hz.
std::span<const f32> SweptFrequencies(const Responses& responses);

// SweepLadder, with the message of a failure; the Schematic page then shows what the network is.
void AnalyzeSweep(Session& session);

// Sweeps only when the responses are not valid. True when they are afterwards.
bool HaveResponses(Session& session);

// Tells of a sweep that failed, by its line mark, as AnalyzeSweep does.
void TellOfFailedSweep(Session& session, const std::string& mark);

}  // namespace quilm
