// The families beside one another: each one's own prototype made into parts and swept, on copies of a design.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "core/Configuration.h"
#include "core/DesignRecord.h"
#include "core/Responses.h"
#include "pages/guidance/FamilyTexts.h"

namespace quilm {

struct FamilySweep {
  const GuidedFamily* family = nullptr;
  f32 order = 0;  // that the prototype came to: some families have a limit or a rule of their own
  std::unique_ptr<Responses> responses;  // null where there is no such filter
  std::string reason;                    // then why, for the user
};

struct Comparison {
  DesignRecord design;  // what all of them have in common, with the sweep and the scales of their plot
  std::vector<FamilySweep> families;
  std::string assumed;  // what the entries did not say and was chosen, "order 5, ripple 0.5 dB"; empty for nothing
};

// A lowpass that shows what is typical of each family: order 5, 1 MHz, 50 ohms, 0.5 dB of ripple where the family has
// one, a stopband of 50 dB from 1.5 MHz, and parts without loss. Only the family of this place in the guide is swept.
Comparison ExampleOf(i16 place, const Configuration& configuration);

// All families with the entries of a design: its topology, order, band, terminations, ripple, stopband and Q, as far as
// they are there; where a Cauer design of odd order has no stopband yet, one with which it comes to the ripple of the
// others. The sweep fits the band, logarithmic for a lowpass or highpass. The top of the delay scale holds all
// delays in the passbands. Neither the design nor its responses change, and nothing is a fault.
Comparison CompareFamilies(const DesignRecord& present, const Configuration& configuration);

}  // namespace quilm
