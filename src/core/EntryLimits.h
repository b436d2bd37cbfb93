// The limits of entries. Every place that holds an entry, or judges it, reads its row here: the boxes of the pages, the
// checks before a plot, the readers of files. Where places differ on purpose the row says so.
#pragma once

#include "core/Types.h"

namespace quilm {

struct EntryLimits {
  f32 lowest;
  f32 highest;
  // As boxes and messages write them.
  const char* lowestText;
  const char* highestText;

  // Both ends belong to the range. Not a number lies outside, and is held at the lower end.
  constexpr bool Contain(f32 value) const { return value >= lowest && value <= highest; }
  constexpr f32 Held(f32 value) const { return value > highest ? highest : value >= lowest ? value : lowest; }
};

namespace limitsOf {

// ---- sweep ----------------------------------------------------------------------------------------------------------

// The responses have room for 2050 points. Every place holds this one.
inline constexpr EntryLimits NrIntervals = {4, 2049, "4", "2049"};
// The studies' own sweeps: a line is fitted to no fewer points, and a bandwidth is a sum over as many as it takes.
inline constexpr EntryLimits PhaseNrInts = {50, 2049, "50", "2049"};
inline constexpr EntryLimits NoiseSteps = {100, 10000, "100", "10000"};
// Hz. The stopping frequency may lie a step further out at both ends, so that limits that are both held still span a
// sweep. A box takes anything: a frequency is typed digit by digit, and 0 asks the check for one that suits the band.
inline constexpr EntryLimits Fstart = {0.01F, 9e9F, "0.01", "9G"};
inline constexpr EntryLimits Fstop = {0.02F, 1e10F, "0.02", "10G"};

// ---- scales of the graphs -------------------------------------------------------------------------------------------

inline constexpr EntryLimits NrXints = {1, 30, "1", "30"};
// What a plot has room for. The spin control goes further, because the labels beside it are a means to find how much of
// a scale one interval should be worth; the check before a plot wins.
inline constexpr EntryLimits NrYints = {4, 30, "4", "30"};
inline constexpr EntryLimits NrYintsAtSpin = {1, 30000, "1", "30000"};
inline constexpr EntryLimits LossBottom = {-120, -0.6F, "-120", "-0.6"};  // dB
// Seconds. 0 and below stand for none; a default comes in their place before this row is read.
inline constexpr EntryLimits DelayTop = {0, 6, "0", "6"};
// Ohms. Below the source's resistance the check before a plot takes twice that resistance, so that a match lies in the
// middle of the scale; the check before other pages only sees to it that a match is on the scale.
inline constexpr EntryLimits ImpedanceTop = {0, 600000, "0", "600k"};
inline constexpr EntryLimits VSWRTop = {1.05F, 7, "1.05", "7"};
inline constexpr EntryLimits PlotLineWidth = {1, 6, "1", "6"};  // pixels
// Width over height of the round charts.
inline constexpr EntryLimits SmithAspect = {0.5F, 1.5F, "0.5", "1.5"};
inline constexpr EntryLimits VSWRCircle = {1, 20, "1", "20"};

// ---- design ---------------------------------------------------------------------------------------------------------

// A bandwidth or centre frequency in Hz, or a termination in ohms, counts as entered above this. A network made by hand
// may have exactly this as its source, from which a singly terminated design is driven.
inline constexpr f32 leastEntered = 0.01F;
// dB. The box of the Design page holds the upper end alone, for a depth of two digits passes through one of one digit
// while it is typed. Before a network is made a depth of 10 or less becomes 10, and the user is told; the check that
// follows takes 10 and 180 as they are.
inline constexpr EntryLimits Astop = {10, 180, "10", "180"};
inline constexpr EntryLimits Apass = {0.0001F, 10, ".0001", "10"};  // dB
inline constexpr EntryLimits Q = {2, 1e7F, "2", "10000000"};
// The prototype with transmission zeros begins at order 3.
inline constexpr EntryLimits CauerOrder = {3, 21, "3", "21"};
// The Bessel prototype itself ends at order 10: a design of order 11 to 17 is cut there, when it is computed, while a
// network of such an order that came from a file can be analysed as it stands.
inline constexpr EntryLimits BesselOrder = {1, 17, "1", "17"};
inline constexpr EntryLimits GaussianOrder = {1, 10, "1", "10"};

// Percent, by which tuning moves a value; of a line's length degrees.
inline constexpr EntryLimits TuneStep = {0.01F, 100, "0.01", "100"};

// The singly terminated design makes its network at once, with no check behind it: what it takes must do as it is.
// Order 1 has nothing to terminate singly, and the upper end is the program's.
inline constexpr f32 leastSinglyTerminatedOrder = 2;
inline constexpr EntryLimits OutputTermination = {0.01F, 1e6F, ".01", "1M"};              // ohms
inline constexpr EntryLimits SinglyTerminatedWidth = {0.1F, 1e10F, ".1", "10000000000"};  // Hz

// ---- diplexers ------------------------------------------------------------------------------------------------------

inline constexpr EntryLimits DipOrder = {1, 10, "1", "10"};
// dB. Above 3.01 dB a response has no frequency at which it is down by 3 dB.
inline constexpr EntryLimits DipRipple = {0.0001F, 3, ".0001", "3"};
inline constexpr EntryLimits DipZ = {1, 10000, "1", "10k"};             // ohms
inline constexpr EntryLimits DipCrossover = {10, 1e10F, "10", "10G"};   // Hz
inline constexpr EntryLimits DipBandEdge = {0.1F, 1e10F, ".1", "10G"};  // Hz
// The upper edge over the lower one, at least.
inline constexpr f32 leastDipEdges = 1.01F;

}  // namespace limitsOf

}  // namespace quilm
