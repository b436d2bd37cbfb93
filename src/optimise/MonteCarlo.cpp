#include "optimise/MonteCarlo.h"

#include "analysis/modAnalysis.h"
#include "core/DesignRecord.h"
#include "core/Responses.h"

namespace quilm {

void ResetExtremes(Responses& r) {
  constexpr f32 beyond = 1e10F;
  for (ResponseArray* highest : {&r.MaxTrans, &r.MaxAngle, &r.MaxDelay, &r.MaxReturn, &r.MaxZin, &r.MaxZinAngle}) {
    highest->Fill(-beyond);
  }
  r.MaxVSWR.Fill(0);
  for (ResponseArray* lowest :
       {&r.MinTrans, &r.MinAngle, &r.MinDelay, &r.MinReturn, &r.MinVSWR, &r.MinZin, &r.MinZinAngle}) {
    lowest->Fill(beyond);
  }
}

MonteCarlo::MonteCarlo(DesignRecord& record, Responses& responses, UniformNumbers& random)
    : record_(record), responses_(responses), random_(random) {
  TakeParts(record, best_);
}

std::string MonteCarlo::Trial() {
  ++TrialCount_;
  TryValues(best_, toleranceTravel, random_, record_);
  std::string mark = SweepLadder(record_, responses_);
  if (mark.empty() && record_.LimitsShown != 0) Compare();
  return mark;
}

void MonteCarlo::Compare() {
  if (!score_) score_ = std::make_unique<LimitScore>(record_, record_.DelayTop, SweptFrequencies(responses_));
  if (score_->IsMet(responses_)) ++MetCount_;
}

void MonteCarlo::WriteNominal() { WriteParts(best_, record_); }

}  // namespace quilm
