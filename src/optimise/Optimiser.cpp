#include "optimise/Optimiser.h"

#include "analysis/modAnalysis.h"
#include "core/DesignRecord.h"
#include "core/Responses.h"

namespace quilm {

namespace {

constexpr f64 goal = 0.0102;
// A smaller error is taken as one between the two, so that the scale of errors, which ends at 0.01, can show it. It
// lies below the goal, so it ends the run all the same.
constexpr f64 smallestError = 0.01;
constexpr f32 shownForSmaller = 0.0101F;

}  // namespace

Optimiser::Optimiser(DesignRecord& record, Responses& responses, UniformNumbers& random)
    : record_(record), responses_(responses), random_(random) {
  TakeParts(record, best_);
}

std::string Optimiser::Start() {
  std::string mark = SweepLadder(record_, responses_);
  if (!mark.empty()) return mark;
  score_ = std::make_unique<LimitScore>(record_, record_.DelayTop, SweptFrequencies(responses_));
  ErrorSum_ = BestError_ = StartError_ = score_->GetError(responses_);
  return {};
}

bool Optimiser::GoesOn() const { return !(static_cast<f64>(ErrorSum_) < goal) && TrialCount_ < mostTrials; }

std::string Optimiser::Trial() {
  ++TrialCount_;
  TryValues(best_, walkTravel, random_, record_);
  std::string mark = SweepLadder(record_, responses_);
  if (!mark.empty()) return mark;
  ErrorSum_ = score_->GetError(responses_);
  if (ErrorSum_ < BestError_) {
    ++BetterCount_;
    BestError_ = ErrorSum_;
    TakeValues(record_, best_);
  }
  if (static_cast<f64>(ErrorSum_) < smallestError) ErrorSum_ = shownForSmaller;
  return {};
}

void Optimiser::WriteBest() { WriteValues(best_, record_); }

}  // namespace quilm
