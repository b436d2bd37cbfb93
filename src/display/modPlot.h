// Draws the rectangular plots of the responses.
#pragma once

#include "core/DesignRecord.h"
#include "core/Responses.h"
#include "shell/Canvas.h"

namespace quilm {

struct TraceColors {
  Color TraceColor1 = colorBlue;
  Color TraceColor2 = colorRed;
};

// Draws the whole plot of a code 1..7, 9, 10 or 13 into an emptied canvas: grid, scales, labels, traces and footers.
// Throws NumericFault when a scale has no height or the sweep no width.
void DrawPlot(const DesignRecord& record, const Responses& responses, i16 plotCode, const TraceColors& colors,
              Canvas& canvas);

// Empties the canvas for a plot and sets its scale and pen.
void BeginPlot(Canvas& canvas);

// Draws the traces alone, over what the canvas holds.
void DrawTraces(const DesignRecord& record, const Responses& responses, i16 plotCode, const TraceColors& colors,
                Canvas& canvas);

// Holds LossBottom at -0.3 or below before a plot with a transmission or return scale.
void HoldLossBottom(DesignRecord& record, i16 plotCode);

// Sets the scales from the responses: LossBottom from the lowest transmission, the tops from the highest delay, VSWR (7
// at most) and impedance. A response that never falls below 0 dB leaves LossBottom at 0.
void AutoScale(DesignRecord& record, const Responses& responses);

}  // namespace quilm
