// The key data of a design as text below its schematic.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "core/RecordFwd.h"
#include "core/Types.h"
#include "shell/Canvas.h"

namespace quilm {

// The largest and the smallest value of one kind of part in the ladder, by magnitude.
struct PartRange {
  f32 largest = 0;
  f32 smallest = 0;
};

// Nothing when the ladder has no such part with a value.
std::optional<PartRange> CapacitorRange(const Network& network);
std::optional<PartRange> InductorRange(const Network& network);

// "Capacitors: 2.5": the largest over the smallest, or "(None)".
std::string CapacitorRatioText(const Network& network);
std::string InductorRatioText(const Network& network);

struct DataRow {
  std::string text;
  std::string unit = {};  // where the text has none
};

// A group of lines, the first of which may be a heading.
struct DataGroup {
  std::string heading;
  std::vector<DataRow> rows;
};

// How the stopband is called: its page says that it is that of the lowpass which a Cauer design is made of, its report
// has shorter words.
enum class DataFor { Page, Report };

// Entries, Q values, ratios and extremes; none for a record without entries.
std::vector<DataGroup> DesignData(const DesignRecord& record, DataFor whom = DataFor::Page);

// Prints the groups side by side from (left, top) in user scale, in the canvas' size of text.
void DrawDesignData(const DesignRecord& record, f32 left, f32 top, Canvas& canvas, DataFor whom = DataFor::Page);

// How far below its top the longest group reaches; 0 for none.
f32 DesignDataHeight(const DesignRecord& record);

}  // namespace quilm
