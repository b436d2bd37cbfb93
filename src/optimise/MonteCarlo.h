// Tries a network with its parts spread over their tolerances.
#pragma once

#include <memory>
#include <string>

#include "core/RecordFwd.h"
#include "core/Types.h"
#include "optimise/BestParts.h"
#include "optimise/LimitScore.h"

namespace quilm {

// Begins an envelope: no response lies outside the extremes after the next sweep.
void ResetExtremes(Responses& responses);

// A run of trials. Each gives every inductor, capacitor and resistor a value of its own, evenly spread over its
// tolerance about the nominal one, and sweeps the network, which widens the extremes. The design and the responses are
// those of the last trial until WriteNominal, which leaves the design as it was, to the bit.
class MonteCarlo {
 public:
  static constexpr i16 mostTrials = 2000;

  // Takes the values as the nominal ones. Trials are compared with the limit areas while these are shown (LimitsShown).
  MonteCarlo(DesignRecord& record, Responses& responses, UniformNumbers& random);

  // Returns the line mark of a sweep that failed, empty when all is well; a trial that failed must be the last.
  std::string Trial();

  // Puts values and stepsizes back.
  void WriteNominal();

  i16 TrialCount() const { return TrialCount_; }
  i16 MetCount() const { return MetCount_; }  // trials that met all limit areas
  // Whether there were any limit areas to meet.
  bool HasLimits() const { return score_ && score_->HasPoints(); }

 private:
  void Compare();

  DesignRecord& record_;
  Responses& responses_;
  UniformNumbers& random_;
  BestParts best_;
  std::unique_ptr<LimitScore> score_;  // while limits are shown, from the first sweep on
  i16 TrialCount_ = 0;
  i16 MetCount_ = 0;
};

}  // namespace quilm
