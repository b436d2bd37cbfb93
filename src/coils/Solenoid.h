// Single-layer air-core coils: what one of them needs, by its inductance, and what becomes of one that is given.
//
// All lengths are in inches. The diameter is the median one, between the middles of opposite wires.
#pragma once

#include <optional>
#include <string>

#include "core/Fault.h"
#include "core/Types.h"

namespace quilm {

struct Coil {
  f32 inductance = 0;  // henries
  f32 diameter = 0;
  f32 length = 0;
  f32 turns = 0;

  bool operator==(const Coil&) const = default;
};

// The most that the routine is asked to wind, in henries and turns.
inline constexpr f32 mostCoilInductance = 0.1F;
inline constexpr f32 mostCoilTurns = 1000;

// Turns for the eye: five digits of a winding, and those of a thousand turns and more in full with one decimal, for
// turns are counted and not scaled by k.
std::string TurnsText(f32 turns);

// Such a coil is not wound. what() tells the user why, lines joined by CR LF.
class CoilRefused : public Fault {
 public:
  using Fault::Fault;
};

// Computes the one of diameter, length and turns that the others and the inductance ask for, by Wheeler's formula
//
//   L / uH = D^2 N^2 / (18 D + 40 l)
//
// (H. A. Wheeler, "Simple Inductance Formulas for Radio Coils", Proc. IRE 16, 1928), good to 1 % where the length is
// above 0.4 of the diameter. With all three above 0, or without turns, the turns are computed, at most mostCoilTurns;
// else the diameter, else the length.
//
// Throws CoilRefused for an inductance that is not above 0 or above mostCoilInductance, for too many turns, a length
// that is not above 0, and fewer than two dimensions above 0; NumericFault where the result leaves the range of
// numbers.
Coil CompleteCoil(Coil asked);

// The inductance of a coil whose dimensions are all above 0, in henries, by the same formula; any number of turns.
// Throws NumericFault where it leaves the range of numbers.
f32 CoilInductance(const Coil& coil);

// How a coil is wound.
struct Winding {
  Coil coil;
  f32 TurnsPerInch = 0;
  f32 WireInches = 0;
  f32 WireFeet = 0;
  f32 QuarterWaveKHz = 0;    // where the wire is a quarter wavelength long: the coil is of no use near it
  f32 CriticalGauge = 0;     // a whole number: the thickest wire of which one turn has room beside the next
  f32 CriticalDiameter = 0;  // of that wire; 0 below the gauges that are reckoned with, from -100 down
  f32 DcResistance = 0;      // of the winding with that wire, ohms; 0 likewise
};

// The winding of a coil whose values are all above 0. Throws NumericFault where one leaves the range of numbers.
Winding Wind(const Coil& coil);

// The whole part of sqrt(F / (5.4 / l + 13.8 / D)) for a coil of l by D inches at F Hz: a figure for coils that are
// about as long as wide. The root goes over the whole quotient. Nothing for F at or below 0.
std::optional<f32> ApproximateQ(const Coil& coil, f32 F);

}  // namespace quilm
