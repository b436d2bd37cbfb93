#include "core/Configuration.h"

#include <array>
#include <string_view>

#include "core/DesignRecord.h"
#include "core/EntryLimits.h"
#include "core/NumberText.h"
#include "core/NumericFault.h"
#include "core/modGeneral.h"

namespace quilm {

namespace {

using Read = f32 (*)(const DesignRecord&);
using Write = void (*)(DesignRecord&, f32);

struct Setting {
  const char* label;
  f32 byDefault;
  Read read;
  Write write;
};

template <auto field>
constexpr Setting Float(const char* label, f32 byDefault) {
  return {label, byDefault, [](const DesignRecord& r) { return r.*field; },
          [](DesignRecord& r, f32 x) { r.*field = x; }};
}

template <auto field>
constexpr Setting Count(const char* label, f32 byDefault) {
  return {label, byDefault, [](const DesignRecord& r) { return static_cast<f32>(r.*field); },
          [](DesignRecord& r, f32 x) { r.*field = ToI16(static_cast<f64>(x)); }};
}

template <auto field>
constexpr Setting First(const char* label, f32 byDefault) {
  return {label, byDefault, [](const DesignRecord& r) { return (r.*field)[1]; },
          [](DesignRecord& r, f32 x) { (r.*field)[1] = x; }};
}

// In the order of ConfigLine.
const std::array<Setting, settingCount> settings = {{
    First<&DesignRecord::Qcap>("Capacitor Q values:", 2000),
    Count<&DesignRecord::Units>("EnglishMetric:", 1),
    First<&DesignRecord::Qind>("Inductor Q values:", 200),
    First<&DesignRecord::Rsource>("Input termination:", 50),
    Count<&DesignRecord::SweepMode>("Linear or log:", 2),
    Count<&DesignRecord::NrXints>("Number of plot X steps:", 10),
    Float<&DesignRecord::NrYints>("Number of plot Y steps:", 6),
    Float<&DesignRecord::NrIntervals>("Number of test freq steps:", 1000),
    Float<&DesignRecord::DelayTop>("Plot delay top:", 0.0001F),
    Float<&DesignRecord::ImpedanceTop>("Plot impedance top:", 1200),
    Float<&DesignRecord::LossBottom>("Plot loss bottom:", -60),
    Float<&DesignRecord::Rstandard>("Rstandard:", 50),
    Float<&DesignRecord::Fstart>("Starting test freq:", 1000),
    Float<&DesignRecord::Fstop>("Stopping test freq:", 1e7F),
    Float<&DesignRecord::VSWRTop>("Plot VSWR top:", 2.2F),
    Float<&DesignRecord::SmithAspect>("Smith aspect ratio:", 0.75F),
    Count<&DesignRecord::PlotLineWidth>("Plot data line width:", 1),
}};

const Setting& SettingOf(int line) { return settings[static_cast<std::size_t>(line - 1)]; }

constexpr std::string_view blanks = " \t\r";

bool IsComment(const std::string& line) {
  return line.empty() || std::string("!*'/\\").find(line[0]) != std::string::npos;
}

f32 ValueIn(const std::string& line) {
  const std::size_t colon = line.find(':');
  if (colon == std::string::npos) return 0;
  std::string entry = line.substr(colon + 1);
  f32 value = 0;
  ParseEntry(entry, value);
  return value;
}

void ReadSettings(std::istream& in, Configuration& configuration) {
  int line = 0;
  std::string text;
  while (line < settingCount && std::getline(in, text)) {
    const std::string setting = Trimmed(text, blanks);
    if (!IsComment(setting)) configuration.ConfigValue[++line] = ValueIn(setting);
  }
}

// False when a value does not fit its field; the fields before it have changed then.
bool TakeSettings(DesignRecord& record, const Configuration& configuration) {
  try {
    for (int line = 1; line <= settingCount; ++line) {
      // The termination of a design is the design's own.
      if (line != lineRsource) SettingOf(line).write(record, configuration.ConfigValue[line]);
    }
  } catch (const NumericFault&) {
    return false;
  }
  record.SmithAspect = limitsOf::SmithAspect.Held(record.SmithAspect);
  record.PlotLineWidth = static_cast<i16>(limitsOf::PlotLineWidth.Held(record.PlotLineWidth));
  return true;
}

// What is written for a line, by the rules that keep an empty field from overwriting a preference.
f32 WrittenValue(int line, f32 value, Configuration& configuration) {
  f32& configured = configuration.ConfigValue[line];
  switch (line) {
    case lineUnits:
      return value;
    case lineNrYints:
      if (value == 0 && !(configured > 3)) configured = SettingOf(lineNrYints).byDefault;
      return value == 0 ? configured : value;
    case lineSmithAspect:
      return value <= 0 ? SettingOf(lineSmithAspect).byDefault : value;
    case lineLineWidth:
      return limitsOf::PlotLineWidth.Held(value);
    default:
      return value == 0 ? configured : value;
  }
}

// What a file is the only reason for is no preference.
bool IsOfBrokenFile(int line, f32 value, const Configuration& configuration) {
  return line == lineRsource && value != 0 && value == configuration.sourceOfBrokenFile;
}

}  // namespace

void ApplyDefaults(DesignRecord& record, Configuration& configuration) {
  for (int line = 1; line <= settingCount; ++line) {
    const Setting& setting = SettingOf(line);
    configuration.ConfigValue[line] = setting.byDefault;
    setting.write(record, setting.byDefault);
  }
}

bool ReadConfiguration(std::istream& in, DesignRecord& record, Configuration& configuration) {
  ApplyDefaults(record, configuration);
  ReadSettings(in, configuration);
  if (!in.bad() && TakeSettings(record, configuration)) return true;
  ApplyDefaults(record, configuration);
  return false;
}

void TakePreferences(DesignRecord& record, const Configuration& configuration) {
  for (const int line : {lineQcap, lineQind, lineSweepMode, lineNrXints, lineNrYints, lineNrIntervals, lineDelayTop,
                         lineImpedanceTop, lineLossBottom, lineRstandard, lineFstart, lineFstop, lineVSWRTop}) {
    SettingOf(line).write(record, configuration.ConfigValue[line]);
  }
}

std::string FormatConfiguration(DesignRecord& record, Configuration& configuration, const std::string& now) {
  std::string text = "* Quilm Configuration File\r\n\r\n* " + now + "\r\n\r\n";
  for (int line = 1; line <= settingCount; ++line) {
    const Setting& setting = SettingOf(line);
    const f32 value = setting.read(record);
    if (IsOfBrokenFile(line, value, configuration)) {
      text += setting.label + NumText(configuration.ConfigValue[line]) + "\r\n";
      continue;
    }
    setting.write(record, WrittenValue(line, value, configuration));
    // As the field holds it: a count is written as the whole number that it became.
    text += setting.label + NumText(setting.read(record)) + "\r\n";
  }
  return text;
}

}  // namespace quilm
