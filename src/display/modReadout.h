// The readout under the mouse: every response at one sweep point, and a mark on each trace.
#pragma once

#include <array>
#include <span>
#include <string>

#include "core/RecordFwd.h"
#include "display/PlotSetup.h"
#include "display/ResponseCurves.h"
#include "shell/Canvas.h"

namespace quilm {

inline constexpr std::size_t readoutColumns = 10;
inline constexpr f32 readoutHeadingRow = 7290;
inline constexpr f32 readoutValueRow = readoutHeadingRow + 180;

// The texts of the columns at a point of the responses, and how they are printed: the headings in their row, texts in
// any row, in the canvas' present font.
std::array<std::string, readoutColumns> ReadoutTexts(const ResponseSpans& responses, std::size_t i);
void PrintReadoutHeadings(Canvas& canvas);
void PrintReadoutRow(f32 y, std::span<const std::string> texts, Canvas& canvas);

// Empties the two rows that a readout uses.
void ClearReadoutStrip(Canvas& canvas);

// Whether the pointer, in the plot's scale, calls for a readout.
bool InReadoutFrame(f32 x, f32 y);

// The sweep point under a pointer in the frame, 0 to the last point of the sweep. It is linear in x for both kinds of
// sweep, as their points lie evenly on the frame. Throws a BoundFault for a point that the responses do not hold.
i16 CursorIndex(const SweepSettings& sweep, f32 x);

// A transmission or a return loss in its column: "<-120" or "< -120" below that, dB.
std::string TransmissionText(f32 dB);
std::string ReturnText(f32 dB);

// Marks the places on traces in exclusive or, so that they disturb none.
void DrawReadoutMarks(std::span<const Point> places, Canvas& canvas);

// Draws headings, values and marks of a point of the responses over a plot. The marks are drawn in exclusive or, so
// that they disturb no trace; a mark that has no place, for want of a scale, is left out.
void DrawReadout(const PlotSetup& setup, const ResponseSpans& responses, std::size_t index, Canvas& canvas);

}  // namespace quilm
