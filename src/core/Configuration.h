// The user's preferred starting values, kept from one run of the program to the next.
#pragma once

#include <istream>
#include <string>

#include "core/BoundedArray.h"
#include "core/RecordFwd.h"
#include "core/Types.h"

namespace quilm {

// The lines of the file, by which ConfigValue is numbered.
enum ConfigLine {
  lineQcap = 1,
  lineUnits,
  lineQind,
  lineRsource,
  lineSweepMode,
  lineNrXints,
  lineNrYints,
  lineNrIntervals,
  lineDelayTop,
  lineImpedanceTop,
  lineLossBottom,
  lineRstandard,
  lineFstart,
  lineFstop,
  lineVSWRTop,
  lineSmithAspect,
  lineLineWidth,
};

inline constexpr int settingCount = lineLineWidth;

// The settings as they were read at start, by their line in the file. They stand by for fields that are empty when the
// file is written.
struct Configuration {
  BoundedArray<f32, 1, settingCount> ConfigValue;
  // The source termination that stands in the record because of a design file that broke off: nobody's preference, and
  // never stored as one. 0 for none.
  f32 sourceOfBrokenFile = 0;
};

// Sets every setting of the record, and ConfigValue, to its default.
void ApplyDefaults(DesignRecord& record, Configuration& configuration);

// Applies the defaults, then takes up to 17 settings in order, lines ended by LF or CR LF. A line that is empty or that
// begins, after blanks, with an exclamation mark, asterisk, apostrophe or either slash is skipped; a setting is the
// entry after the first ":" of its line, 0 without a colon. Settings that a short file lacks keep their defaults.
// The source termination is not taken from the file: only ConfigValue receives it. False when the stream fails or a
// value does not fit its field; then all settings are the defaults.
bool ReadConfiguration(std::istream& in, DesignRecord& record, Configuration& configuration);

// Sets sweep, scales, Q values and reference of the record to ConfigValue.
void TakePreferences(DesignRecord& record, const Configuration& configuration);

// The text of the file, lines ended by CR LF. A field that is 0 takes the value read at start, so that an empty field
// never overwrites a preference; the record takes that value too. `now`, date and time, stands in the head of the file.
// A source termination that is sourceOfBrokenFile stays in the record, and what was read at start is written.
// Throws NumericFault when a ConfigValue that must stand in does not fit its field; none does after reading.
std::string FormatConfiguration(DesignRecord& record, Configuration& configuration, const std::string& now);

}  // namespace quilm
