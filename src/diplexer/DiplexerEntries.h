// The entries of a diplexer: where they begin, and the limits that they are held to.
#pragma once

#include <string>

#include "core/Diplexer.h"
#include "core/RecordFwd.h"

namespace quilm {

// What stands in the boxes before it is accepted.
struct DiplexerEntered {
  f32 order = 0;
  f32 ripple = 0;     // dB
  f32 Z = 0;          // ohms
  f32 crossover = 0;  // Hz
  f32 lower = 0;      // Hz
  f32 upper = 0;      // Hz
  bool exact3dB = false;
};

// What was accepted last, as the boxes show it.
DiplexerEntered EntriesOf(const Diplexer& diplexer);

// The entries as they stand; those that nobody has set up yet come from the design, which may be no more than its
// defaults. A diplexer of no mode yet becomes one at the cutoff or about the band of the design. The parts stay.
// True when a band on display had its upper edge give way to the lower one.
bool StartDiplexer(Diplexer& diplexer, const DesignRecord& record);

// Takes the entries as their limits hold them; of crossover and edges those of the mode. A crossover that is not
// positive becomes the bandwidth of the design, if there is one. True when the upper edge had to give way to the lower
// one. The parts stay until they are designed anew; DipFrozen becomes 0.
bool AcceptDiplexer(Diplexer& diplexer, const DiplexerEntered& entered, const DesignRecord& record);

// Holds the edges to their limits, and the upper one to 1.01 times the lower one or more. True when the upper edge had
// to give way. Where that would lead beyond the highest frequency the lower edge gives way too.
bool HoldDiplexerEdges(Diplexer& diplexer);

// "Crossover=1M   Passband ripple=0.1   Order=3   System Z=50", or the two edges of a pair of bands.
std::string DiplexerSummary(const Diplexer& diplexer);

}  // namespace quilm
