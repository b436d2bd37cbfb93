// The current design: every value that the pages and routines of the program share.
//
// Frequencies are in Hz, parts in henries, farads and ohms, attenuations in dB, lengths in degrees, times in seconds.
// All arrays are indexed from 1; element 0, where the bounds have one, is unused. The widths are behaviour: a value
// that passes through the record is rounded to them.
#pragma once

#include <string>

#include "core/BoundedArray.h"
#include "core/Types.h"

namespace quilm {

inline constexpr i16 orderLimit = 21;   // highest order of a prototype
inline constexpr i16 stagesLimit = 43;  // most stages that a network may hold
inline constexpr int stageBound = 46;   // declared bound of the stage list, three spare places above stagesLimit
inline constexpr int plotTypes = 6;     // transmission, return loss, transmission angle, group delay, VSWR, impedance
inline constexpr int limitsPerPlot = 10;
inline constexpr int markerCount = 8;

// Family codes. 9 and 10 are not used.
enum FamilyCode : i16 {
  familyNone = 0,
  familyButterworth = 1,
  familyChebyshev = 2,
  familyCauer = 3,
  familyBessel = 4,
  familyGaussian = 5,
  familyConstantK = 6,
  familyMderived = 7,
  familyGaussian12 = 8,
  familyManual = 11,
};

// Element type codes. "Series" is in line between two stages, "Shunt" from the line to common; SLC is an L and a C in
// series with each other, PLC an L and a C in parallel. 17 and 18 are forms of entry that become plain parts.
enum ElementCode : i16 {
  SeriesL = 1,
  ShuntL = 2,
  SeriesC = 3,
  ShuntC = 4,
  SeriesSLC = 5,
  ShuntSLC = 6,
  SeriesPLC = 7,
  ShuntPLC = 8,
  SeriesR = 9,
  ShuntR = 10,
  TransLine = 11,
  SeriesShortStub = 12,
  SeriesOpenStub = 13,
  ShuntShortStub = 14,
  ShuntOpenStub = 15,
  Transformer = 16,
  SeriesReactance = 17,
  ShuntReactance = 18,
  CoupledInductors = 19,
  ShuntRLC = 20,
  SeriesRLC = 21,
};

// A component value with its tolerance in percent. The tuning, optimiser and Monte Carlo routines keep a part's
// percentage step in the tolerance.
struct PartValue {
  f32 value = 0;
  f32 tolerance = 0;
  bool operator==(const PartValue&) const = default;
};

// A line or stub: electrical length at a frequency, and characteristic impedance.
struct LineValue {
  f32 degrees = 0;
  f32 freq = 0;
  f32 impedance = 0;
  f32 degreesTolerance = 0;
  f32 impedanceTolerance = 0;
  bool operator==(const LineValue&) const = default;
};

// A pair of coupled inductors.
struct CoupledValue {
  f32 primary = 0;
  f32 secondary = 0;
  f32 k = 0;
  f32 primaryTolerance = 0;
  f32 secondaryTolerance = 0;
  f32 kTolerance = 0;
  bool operator==(const CoupledValue&) const = default;
};

// One stage of the ladder. Every value exists in every stage; ElementType says which of them carry meaning.
//
// Where users' scripts and the design file speak of numbered columns, these are the fields in declared order:
// Lval, Cval, Rval, XfmrVal [1..2] = value, tolerance; TLval [1..5] = degrees, freq, impedance and the tolerances of
// length and impedance; CoupledVal [1..6] = primary, secondary, k and their tolerances.
struct Stage {
  i16 ElementType = 0;
  PartValue Lval;
  PartValue Cval;
  PartValue Rval;
  LineValue TLval;
  PartValue XfmrVal;
  CoupledValue CoupledVal;
  bool operator==(const Stage&) const = default;
};

// Element 1 is the value in use; element 2 is a working copy of the tuning and Monte Carlo pages.
using ValueAndCopy = BoundedArray<f32, 1, 2>;

template <class T>
using LimitTable = BoundedArray<BoundedArray<T, 1, plotTypes>, 1, limitsPerPlot>;

struct DesignRecord {
  // Identity.
  i16 Family = familyNone;
  std::string Topology;  // "A" to "L", "M" for a network entered by hand, empty for none chosen yet
  f32 Order = 0;         // number of prototype elements, a whole number kept in a float
  i16 OrderMax = orderLimit;
  i16 Stages = 0;  // 0 means that no network exists
  i16 StagesMax = stagesLimit;
  i16 NetworkEdited = 0;     // 1: the stage list is hand-made and is not recomputed from the entries
  f32 MatchAccepted = 0;     // 1: a matched network must not be overwritten by a recomputation
  i16 ResponsesValid = 0;    // 1 after a complete sweep
  i16 DesignChanged = 0;     // set by entries and by files of older layouts, for the pages that ask
  std::string CircuitTitle;  // at most 80 characters
  std::string AddedInfo;
  std::string DesignDate;
  std::string DesignFileName;

  // Entries.
  f32 Width = 0;    // cutoff of a lowpass or highpass, bandwidth of a bandpass or bandstop
  f32 Fcenter = 0;  // 0 for the topologies "A", "B", "I", "J"
  f32 Fstopband = 0;
  f32 FstopNorm = 0;  // stopband edge over passband edge; 0 unless the family is Cauer
  f32 Apass = 0;
  f32 Astop = 0;
  i16 CauerFlag = 0;      // 1: the prototype has transmission zeros
  std::string CauerType;  // "A" odd order, "B" even order best selectivity, "C" even order equal terminations
  i16 CauerTop = 0;       // 0 normal, 1 zig-zag
  ValueAndCopy Rsource;
  ValueAndCopy Rload;
  f32 Rratio = 0;     // load over source that the prototype requires
  f32 Rstandard = 0;  // reference of return loss, VSWR and the Smith chart
  ValueAndCopy Qind;
  ValueAndCopy Qcap;
  BoundedArray<f32, 0, 41> MderivedZero;

  // Normalised prototype, for 1 ohm and 1 radian per second, 1..Order.
  BoundedArray<f32, 0, orderLimit> Gj;
  BoundedArray<f32, 0, orderLimit> Hj;

  // The ladder: stage 1 is next to the source, stage `Stages` next to the load.
  BoundedArray<Stage, 0, stageBound> stage;

  // Sweep and scales.
  i16 SweepMode = 0;  // 1 linear, 2 logarithmic
  f32 Fstart = 0;
  f32 Fstop = 0;
  f32 NrIntervals = 0;  // N intervals give N + 1 points
  i16 NrXints = 0;
  f32 NrYints = 0;
  f32 LossBottom = 0;  // kept negative
  f32 DelayTop = 0;
  f32 DelayBottom = 0;
  f32 VSWRTop = 0;
  f32 ImpedanceTop = 0;
  i16 RelativeMode = 0;
  i16 AbsoluteMode = 1;
  i16 MagnifyMode = 0;
  i16 PlotLineWidth = 1;     // pixels
  f32 SmithAspect = 0.75F;   // width over height of the round charts, 0.5..1.5
  i16 Units = 1;             // 1 English, 2 metric
  i16 PlotCode = 0;          // the plot on display: 1..7, 9..13
  i16 TopologyHelpCode = 0;  // 1..12

  // Limit areas by plot type, and markers. A shape above 0 means that the area exists.
  BoundedArray<i16, 1, plotTypes> LimitCount;
  LimitTable<f32> LimitShape;
  LimitTable<f32> LimitStart;
  LimitTable<f32> LimitStop;
  LimitTable<f32> LimitTop;
  LimitTable<f32> LimitBottom;
  BoundedArray<f32, 1, markerCount> MarkerFreq;  // 0: not set
  i16 LimitsShown = 0;
  i16 MarkersShown = 0;

  bool operator==(const DesignRecord&) const = default;
};

// 4 arctan(1), computed and never typed in.
extern const f64 Pi;

// "Butterworth", ..., "Manual entry"; empty for a code that is no family.
std::string FamilyName(i16 family);

// The topologies without a centre frequency: lowpass and highpass.
inline bool IsLowOrHighpass(const std::string& topology) {
  return topology == "A" || topology == "B" || topology == "I" || topology == "J";
}

}  // namespace quilm
