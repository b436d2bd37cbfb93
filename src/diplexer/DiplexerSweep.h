// The response of a diplexer over the sweep of the Analysis page: both arms, each analysed as a ladder by itself, and
// what the pair returns to the common port.
#pragma once

#include <span>

#include "core/Diplexer.h"
#include "core/RecordFwd.h"
#include "core/Responses.h"

namespace quilm {

struct DiplexerResponses {
  Responses first, second;     // of the arms by themselves, behind the small resistance that stands for their source
  ResponseArray DipArm1Trans;  // dB, 0 = the power that a source matched to the port would give its load
  ResponseArray DipArm2Trans;
  ResponseArray DipReturn;  // return loss of the pair, dB, -140 to 0

  // The frequencies of the points, Hz.
  std::span<const f32> Frequencies() const;
};

// Sweeps both arms as the record says, with its Q of parts and its frequency for the Q of inductors, always in absolute
// decibels. A point at which an arm fails repeats the figures of the one before it. Neither the record's network nor
// its responses are looked at. Throws NumericFault when the sweep or the frequency of the Q does not exist, BoundFault
// when there are more points than the responses hold.
void SweepDiplexer(const Diplexer& diplexer, const DesignRecord& record, DiplexerResponses& responses);

// The same figures at one frequency (Hz).
struct DiplexerFigures {
  f32 arm1Trans = 0;
  f32 arm2Trans = 0;
  f32 returnLoss = 0;
};
DiplexerFigures DiplexerAt(const Diplexer& diplexer, const DesignRecord& record, f32 frequency);

// An impedance as the analysis tells it: ohms, degrees.
struct PolarImpedance {
  f64 magnitude = 0;
  f64 degrees = 0;
};

// The return loss in dB, -140 to 0, of two branches in parallel at a port of `DipZ` ohms. Where the two have no
// impedance to speak of, being both shorted, all is reflected.
f64 CombineDiplexer(const PolarImpedance& one, const PolarImpedance& other, f32 DipZ);

}  // namespace quilm
