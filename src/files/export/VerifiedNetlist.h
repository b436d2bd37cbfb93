// A design as a netlist of our own layout, which gives the figures of the analysis at every frequency.
#pragma once

#include <string_view>

#include "core/RecordFwd.h"
#include "files/export/ExportText.h"

namespace quilm {

enum class SpiceDialect { Ngspice, LTspice };

// The deck; `date` is today's date in the system's short form. V(out) in dB is the transmission, its phase the
// transmission angle. Every node and every name is there once, both bearing the number of their stage, and values
// stand in as many digits as 64 bits have.
//
// The losses are those of the analysis at every frequency: an inductor's constant resistance, a capacitor's constant
// Q, which is a conductance proportional to frequency. ngspice takes it as a source behind `hertz`, LTspice as one
// behind |s| = sqrt(-s*s); neither has a meaning in time, so the decks serve ac analyses alone. What is lossless in
// the analysis is lossless here: lines, stubs, transformers and coupled coils. Transformers are ideal, by controlled
// sources.
//
// An ac analysis begins with one of direct current, which cannot be solved for loops of lossless coils and shorted
// stubs, nor for nodes between capacitors. There each such part has a resistor: in ngspice for direct current alone, in
// LTspice, which has no such resistor, of 1e-12 ohms in series or 1e15 ohms in parallel. A sweep that starts at 0 Hz is
// written from its second frequency on: the analysis has no figure there.
//
// Deviations from exact values are those of the analysis: a line of exactly 90 degrees is 90.0001 degrees long, an L
// and C side by side have 1e11 ohms across them; a capacitor of exactly 0, for which the analysis takes a reactance of
// 1e11 ohms, is a resistor of 1e11 ohms.
//
// Fails, with the text as far as it got, where the analysis divides by a value of 0 at every frequency, where it has no
// frequency for Q, and at a line whose delay or impedance is not above 0, which simulators refuse.
ExportText VerifiedNetlist(const DesignRecord& record, SpiceDialect dialect, std::string_view date);

}  // namespace quilm
