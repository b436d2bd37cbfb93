// The colours of traces that pile up on one plot: each next one takes the next colour, and the first again after the
// last.
#pragma once

#include <span>

#include "shell/PlotSheet.h"

namespace quilm {

// Of trials and of the steps of a part, dark to light: 8. Runs that need fewer take the first ones.
std::span<const TraceColors> TrialColors();

// Of the steps of a design's entries: 6.
std::span<const TraceColors> EntryStepColors();

class TraceCycle {
 public:
  explicit TraceCycle(std::span<const TraceColors> colors) : colors_(colors) {}

  // Counts one trace and tells its colours. `colors` must not be empty.
  const TraceColors& Next();

 private:
  std::span<const TraceColors> colors_;
  std::size_t drawn_ = 0;  // number of the trace drawn last, 0 before the first
};

}  // namespace quilm
