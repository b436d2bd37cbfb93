// Pulls a network towards the limit areas by a random walk about the best values so far.
#pragma once

#include <memory>
#include <string>

#include "core/RecordFwd.h"
#include "core/Types.h"
#include "optimise/BestParts.h"
#include "optimise/LimitScore.h"

namespace quilm {

// A run of trials:
//
//   Optimiser optimiser(record, responses, random);
//   std::string mark = optimiser.Start();
//   while (mark.empty() && optimiser.GoesOn()) mark = optimiser.Trial();
//   optimiser.WriteBest();
//
// Each trial moves every inductor, capacitor and resistor about its best value by a random part of its stepsize, sweeps
// the network, and is kept if its error is less than the best. The design and the responses are those of the last trial
// until WriteBest; the responses stay so.
class Optimiser {
 public:
  static constexpr i16 mostTrials = 2000;

  Optimiser(DesignRecord& record, Responses& responses, UniformNumbers& random);

  // Takes the values as the best ones, sweeps and scores them. Returns the line mark of a sweep that failed, empty when
  // all is well; with a failure there is no error and no trial.
  std::string Start();

  // Whether the goal is not reached and there are trials left. A response that meets all areas needs none.
  bool GoesOn() const;

  // Tries new values. Returns like Start; the trial has not been scored then, and must be the last.
  std::string Trial();

  // Puts the best values back into the network: those of the start as long as none were better.
  void WriteBest();

  f32 ErrorSum() const { return ErrorSum_; }  // of the last trial; 0.0101 for less than 0.01
  f32 BestError() const { return BestError_; }
  f32 StartError() const { return StartError_; }
  f32 BetterCount() const { return BetterCount_; }
  i16 TrialCount() const { return TrialCount_; }

 private:
  DesignRecord& record_;
  Responses& responses_;
  UniformNumbers& random_;
  BestParts best_;
  std::unique_ptr<LimitScore> score_;  // from the first sweep on
  f32 ErrorSum_ = 0;
  f32 BestError_ = 0;
  f32 StartError_ = 0;
  f32 BetterCount_ = 0;
  i16 TrialCount_ = 0;
};

}  // namespace quilm
