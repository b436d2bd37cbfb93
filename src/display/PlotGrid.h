// The grid of the plots: which frequencies have a line, and which lines a label.
#pragma once

#include <string>
#include <vector>

#include "core/BoundedArray.h"
#include "core/DesignRecord.h"
#include "shell/Canvas.h"

namespace quilm {

inline constexpr int gridBound = 120;
inline constexpr Color gridColor = 0x666666;

// The vertical lines from left to right.
struct FrequencyGrid {
  BoundedArray<f32, 0, gridBound> GridFreq;      // Hz
  BoundedArray<f32, 0, gridBound> GridFraction;  // of the frame's width
  i16 GridLast = -1;                             // index of the last line
};

// A linear sweep has NrXints equal steps; a logarithmic one the values 1, 1.5, 2, 3, ... 9 of each decade within it.
FrequencyGrid MakeFrequencyGrid(const DesignRecord& record);

struct GridLabel {
  f32 fraction;
  std::string text;
};

// The labels that leave one another room, at most 21. In a logarithmic sweep the more decades there are the fewer of a
// decade's lines are named.
std::vector<GridLabel> LabelsOf(const DesignRecord& record, const FrequencyGrid& grid);

// The distance between horizontal lines: one less than an even division, so that rounding never loses the bottom line.
f32 HorizontalStep(const DesignRecord& record);

}  // namespace quilm
