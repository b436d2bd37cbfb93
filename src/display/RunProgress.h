// What the runs of the Plot page tell above the frame while they go on.
#pragma once

#include "core/Types.h"
#include "shell/Canvas.h"

namespace quilm {

struct OptimizerProgress {
  i16 TrialCount = 0;
  f32 BetterCount = 0;
  f32 ErrorSum = 0;  // of the last trial
  f32 BestError = 0;
};

// Where the bar of an error ends on the scale of errors: a logarithmic one from 10000 at x = 2000 to 0.01 at 11000. An
// error off the scale ends at its nearer end.
i16 ErrorBarEnd(f32 ErrorSum);

// The bar of the error on its scale, trials, better ones and the best error. Drawn anew it covers what it was before.
// The canvas shows a plot under progress (PlotDress).
void DrawOptimizerProgress(const OptimizerProgress& progress, Canvas& canvas);

// Empties the rows above the titles of a plot, for the count of Monte Carlo's trials, and draws that count.
void ClearTopRows(Canvas& canvas);
void DrawTrialCount(i16 TrialCount, Canvas& canvas);

}  // namespace quilm
