#include "display/RunProgress.h"

#include <algorithm>
#include <cmath>
#include <string>

#include "core/NumberText.h"
#include "core/NumericFault.h"
#include "core/modGeneral.h"
#include "display/PlotFrame.h"
#include "display/PlotText.h"
#include "shell/PenScope.h"

namespace quilm {

namespace {

constexpr f64 largestError = 10000;
constexpr f64 smallestError = 0.01;
constexpr Color barColor = 0x11DD11;
constexpr Color countsColor = 0xDDFFDD;
constexpr PlotBox bar{plotFrame.left, 645, plotFrame.width, 133};
constexpr PlotBox counts{50, 600, 1450, 900};
constexpr f32 ticksTop = 615;
constexpr f32 ticksBottom = 805;
constexpr f32 labelGap = 10;  // between the labels and their ticks

// The labels stand above their ticks in black on the paper.
void DrawErrorScale(Canvas& canvas) {
  const PenScope pen(canvas);
  canvas.FontSize = labelSize;
  canvas.ForeColor = colorBlack;
  canvas.DrawWidth = 1;
  f32 x = bar.left;
  for (const char* label : {"10000", "1000", "100", "10", "1", "0.1", "0.01"}) {
    constexpr f32 pitch = 1500;
    canvas.Line(x, ticksTop, x, ticksBottom, colorBlack);
    canvas.PrintAt(x - canvas.TextWidth(label) / 2, ticksTop - labelGap - canvas.TextHeight(label), label);
    x += pitch;
  }
}

void DrawCounts(const OptimizerProgress& progress, Canvas& canvas) {
  constexpr f32 left = 100;
  const PenScope pen(canvas);
  canvas.FontSize = labelSize;
  canvas.ForeColor = colorBlack;
  canvas.Fit = {0, counts.Right()};
  canvas.Rectangle(counts.left, counts.top, counts.Right(), counts.Bottom(), countsColor, true);
  canvas.PrintAt(left, 645, "Trial: " + std::to_string(progress.TrialCount));
  canvas.PrintAt(left, 845, "Better: " + ShortText(progress.BetterCount, LeadingZero::Keep));
  canvas.PrintAt(left, 1245, "Error: " + FormatValue(progress.BestError));
}

}  // namespace

i16 ErrorBarEnd(f32 ErrorSum) {
  const f64 held = std::clamp(static_cast<f64>(ErrorSum), smallestError, largestError);
  const f64 part = (std::log(held) - std::log(largestError)) / (std::log(smallestError) - std::log(largestError));
  return ToI16(part * static_cast<f64>(bar.width) + static_cast<f64>(bar.left));
}

void DrawOptimizerProgress(const OptimizerProgress& progress, Canvas& canvas) {
  canvas.Rectangle(bar.left, bar.top, ErrorBarEnd(progress.ErrorSum), bar.Bottom(), barColor, true);
  DrawErrorScale(canvas);
  DrawCounts(progress, canvas);
}

void ClearTopRows(Canvas& canvas) { canvas.Rectangle(1, 1, 12000, 660, colorWhite, true); }

void DrawTrialCount(i16 TrialCount, Canvas& canvas) {
  const PenScope pen(canvas);
  canvas.FontSize = labelSize;
  canvas.ForeColor = colorBlack;
  canvas.Fit.anchor = 0;
  canvas.Rectangle(1000, 100, 3000, 600, colorWhite, true);
  canvas.PrintAt(1000, 360, "Trial: " + std::to_string(TrialCount));
}

}  // namespace quilm
