// The texts of values in netlists and schematics of circuit simulators, and the reference frequency at which the finite
// Q of parts is written as resistors.
#pragma once

#include <string>

#include "core/RecordFwd.h"
#include "core/Types.h"

namespace quilm {

// Each text is that of the value's magnitude in 32 bits, with a multiplier or unit behind it, before SpiceFix.

// Henries: "22.5uH"; empty for 0.
std::string SpiceInductance(f32 henries);
// Farads: "47pF"; empty for 0, and "0  " below 1 pF. From 1 F up the unit is "F", which simulators take for femto.
std::string SpiceCapacitance(f32 farads);
// The same in nine digits and for any value above 0, for resonators of narrow bands: on the flank of a notch values
// tell that agree in six digits.
std::string SpiceFineInductance(f32 henries);
std::string SpiceFineCapacitance(f32 farads);
// Ohms, and plain numbers: "50  ", "1.2Meg"; "0  " for 0.
std::string SpiceResistance(f32 ohms);
// Ohms of a loss: "0.12345 ", "31.831k"; " 0.0000  " for 0.
std::string SpiceQResistor(f32 ohms);
// Hz, in comments: "1.2M ", "50Hz"; "0.0 " for 0. Below 1 Hz the unit is "mH".
std::string SpiceFrequency(f32 hertz);

// A text with a point for each comma, and a blank behind it.
std::string SpiceFix(std::string text);

// The frequency, Hz, at which Q is written as resistors: Fcenter if above 0, else Width if above 0, else the geometric
// mean of the sweep's limits. Throws NumericFault where that does not exist.
f32 SpiceReferenceFrequency(const DesignRecord& record);

// The series resistance, ohms, of an inductor (H) of quality Qind[1] at Fq (Hz). `turn` stands for 2 Pi; the netlist
// takes it in eight digits. Throws NumericFault for a Qind of 0.
f32 SpiceSeriesLoss(const DesignRecord& record, f32 Fq, f32 henries, f64 turn = 2 * Pi);

// The parallel resistance, ohms, of a capacitor (F) of quality Qcap[1] at Fq (Hz). Throws NumericFault for a
// capacitance or a frequency of 0.
f32 SpiceParallelLoss(const DesignRecord& record, f32 Fq, f32 farads);

// Points a decade that sweep Fstart to Fstop in NrIntervals: whole, at most 1000. Throws NumericFault where the
// logarithms do not exist.
i16 SpicePointsPerDecade(const DesignRecord& record);

// A count that files show as a whole number: what a sweep that was read from a file misses by rounding is taken off
// where it is less than 0.001.
f32 SpiceCount(f32 count);

}  // namespace quilm
