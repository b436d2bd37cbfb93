// The grid of the plots: which frequencies have a line, which lines a label, and how they are drawn.
#pragma once

#include <string>
#include <vector>

#include "core/BoundedArray.h"
#include "display/HorizontalAxis.h"
#include "display/PlotFrame.h"
#include "shell/Canvas.h"

namespace quilm {

inline constexpr int gridBound = 120;
inline constexpr Color gridColor = 0x666666;
inline constexpr Color frameColor = 0x333333;

// The vertical lines from left to right.
struct FrequencyGrid {
  BoundedArray<f32, 0, gridBound> GridFreq;      // Hz
  BoundedArray<f32, 0, gridBound> GridFraction;  // of the frame's width
  i16 GridLast = -1;                             // index of the last line
};

// A linear axis has `intervals` equal steps; a logarithmic one the values 1, 1.5, 2, 3, ... 9 of each decade within it.
FrequencyGrid MakeFrequencyGrid(const HorizontalAxis& axis, i16 intervals);

struct GridLabel {
  f32 fraction;
  std::string text;
};

// The labels that leave one another room, at most 21. On a logarithmic axis the more decades there are the fewer of a
// decade's lines are named. Where that leaves fewer than two, start and stop of the axis are labelled, with the one
// between them if it has room.
std::vector<GridLabel> LabelsOf(const HorizontalAxis& axis, const FrequencyGrid& grid);

// The distance between `intervals` + 1 horizontal lines in the frame: one less than an even division, so that rounding
// never loses the bottom line. Throws NumericFault for no interval.
f32 HorizontalStep(f32 intervals);

// The four edges of a frame. They are drawn whatever lines the grid has: those of a logarithmic axis need not begin and
// end with it, and the lowest horizontal one lies a little above the edge.
void DrawFrame(Canvas& canvas, const PlotBox& box = plotFrame);

// The vertical lines in any frame.
void DrawFrequencyLines(const FrequencyGrid& grid, Canvas& canvas, const PlotBox& box = plotFrame);

// Texts below the plots' frame, in the places of the labels of its axis.
void PrintGridLabels(const std::vector<GridLabel>& labels, Canvas& canvas);

// The vertical lines of the plots' frame with their labels below it.
void DrawVerticalGrid(const HorizontalAxis& axis, i16 intervals, Canvas& canvas);

// The horizontal lines that divide any frame evenly, without its edges; none for fewer than two intervals.
void DrawLevelLines(f32 intervals, Canvas& canvas, const PlotBox& box = plotFrame);

// The horizontal lines of the plots' frame. Throws NumericFault when they have no distance.
void DrawHorizontalGrid(f32 intervals, Canvas& canvas);

}  // namespace quilm
