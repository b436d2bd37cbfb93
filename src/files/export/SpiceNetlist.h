// A design as a generic SPICE netlist: a whole deck for an analysis, or a subcircuit.
#pragma once

#include <string_view>

#include "core/RecordFwd.h"
#include "files/export/ExportText.h"

namespace quilm {

enum class SpiceFileKind {
  CIR,  // a deck with source, terminations and analysis
  SUB,  // the network between node 2 and its last node, common at node 1000
};

// The file; `date` is today's date in the system's short form. The finite Q of parts stands as a resistor beside each,
// worked out at SpiceReferenceFrequency: the deck has the losses of the analysis at that frequency alone.
//
// The layout is an interface that other programs read, with its limits: inner nodes are ten times the number of their
// stage and meet the nodes of the line in ladders of eight advances and more, resistors of stubs may share their name
// with one of a loss, a capacitor below 1 pF is written as 0 and one of a farad as a femtofarad, a transformer is a
// pair of coils coupled by .999999, the inner nodes of a shunt L, R and C may meet those of the next stages, and an L,
// C and R side by side are left out. VerifiedNetlist has none of them.
//
// Fails where a division has no result: a capacitance, a line's frequency, the load or Qind of exactly 0, a logarithmic
// sweep from 0 Hz, or no reference frequency. The text then ends at that card.
ExportText SpiceNetlist(const DesignRecord& record, SpiceFileKind kind, std::string_view date);

}  // namespace quilm
