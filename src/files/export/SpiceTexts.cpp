#include "files/export/SpiceTexts.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <span>

#include "analysis/Ladder.h"
#include "core/DesignRecord.h"
#include "core/NumericFault.h"
#include "core/ScaledText.h"

namespace quilm {

namespace {

constexpr ScaleRow inductanceRows[] = {{1e9F, 1e9, "G"},      {1e6F, 1e6, "Meg"},  {1000, 1000, "K"}, {1, 1, "H"},
                                       {0.001F, 0.001, "mH"}, {1e-6F, 1e-6, "uH"}, {0, 1e-9, "nH"}};
constexpr DecimalMask partMask = {{2, 3, 4, 5, 6}};

constexpr ScaleRow capacitanceRows[] = {{1e9F, 1e9, "GF"},   {1e6F, 1e6, "Meg"},    {1000, 1000, "KF"},
                                        {1, 1, "F"},         {0.001F, 0.001, "mF"}, {1e-6F, 1e-6, "uF"},
                                        {1e-9F, 1e-9, "nF"}, {0, 1e-12, "pF"}};
constexpr f32 smallestCapacitance = 1e-12F;

constexpr ScaleRow fineCapacitanceRows[] = {{1000, 1000, "K"},   {1, 1, ""},          {0.001F, 0.001, "mF"},
                                            {1e-6F, 1e-6, "uF"}, {1e-9F, 1e-9, "nF"}, {0, 1e-12, "pF"}};

constexpr ScaleRow resistanceRows[] = {{1e9F, 1e9, "G"},     {1e6F, 1e6, "Meg"}, {1000, 1000, "K"},  {1, 1, "  "},
                                       {0.001F, 0.001, "m"}, {1e-6F, 1e-6, "u"}, {1e-9F, 1e-9, "n"}, {0, 1e-12, "p"}};
constexpr DecimalMask resistanceMask = {{0, 1, 2, 3, 4}};

constexpr ScaleRow lossRows[] = {{1e9F, 1e9, "G", 3}, {1e6F, 1e6, "Meg", 3}, {1000, 1000, "k", 3}, {0, 1, " "}};
constexpr DecimalMask lossMask = {{2, 2, 3, 4, 5}};

// "mH" of the last row means millihertz; scripts of users look for it.
constexpr ScaleRow frequencyRows[] = {
    {1e9F, 1e9, "G "}, {1e6F, 1e6, "M "}, {1000, 1000, "K "}, {1, 1, "Hz"}, {0, 0.001, "mH"}};
constexpr DecimalMask frequencyMask = {{2, 2, 3, 4, 5}};

// As many as tell every value of 32 bits apart.
std::string NineDigits(f32 value, std::span<const ScaleRow> rows) {
  constexpr int digits = 9;
  const ScaleRow& row = RowOf(value, rows);
  std::array<char, 32> text;
  const f64 scaled = static_cast<f64>(value) / row.divisor;
  const auto end =
      std::to_chars(text.data(), text.data() + text.size(), scaled, std::chars_format::general, digits).ptr;
  return std::string(text.data(), end) + row.unit;
}

}  // namespace

std::string SpiceInductance(f32 henries) {
  return henries == 0 ? "" : TextByMagnitude(std::fabs(henries), inductanceRows, partMask);
}

std::string SpiceCapacitance(f32 farads) {
  const f32 magnitude = std::fabs(farads);
  if (magnitude == 0) return "";
  if (magnitude < smallestCapacitance) return "0  ";
  return TextByMagnitude(magnitude, capacitanceRows, partMask);
}

std::string SpiceFineInductance(f32 henries) { return NineDigits(henries, inductanceRows); }

std::string SpiceFineCapacitance(f32 farads) { return NineDigits(farads, fineCapacitanceRows); }

std::string SpiceResistance(f32 ohms) {
  return ohms == 0 ? "0  " : TextByMagnitude(std::fabs(ohms), resistanceRows, resistanceMask);
}

std::string SpiceQResistor(f32 ohms) {
  return ohms == 0 ? " 0.0000  " : TextByMagnitude(std::fabs(ohms), lossRows, lossMask);
}

std::string SpiceFrequency(f32 hertz) {
  return hertz == 0 ? "0.0 " : TextByMagnitude(std::fabs(hertz), frequencyRows, frequencyMask);
}

std::string SpiceFix(std::string text) {
  std::replace(text.begin(), text.end(), ',', '.');
  text.push_back(' ');
  return text;
}

f32 SpiceReferenceFrequency(const DesignRecord& record) { return QualityFrequency(record, record); }

f32 SpiceSeriesLoss(const DesignRecord& record, f32 Fq, f32 henries, f64 turn) {
  NumericFaultScope scope;
  return scope.Store(static_cast<f64>(Fq) * turn * static_cast<f64>(henries) / static_cast<f64>(record.Qind[1]));
}

f32 SpiceParallelLoss(const DesignRecord& record, f32 Fq, f32 farads) {
  NumericFaultScope scope;
  const f64 Xc = scope.Checked(-1 / (2 * Pi * static_cast<f64>(Fq) * static_cast<f64>(farads)));
  return scope.Store(std::fabs(Xc) * static_cast<f64>(record.Qcap[1]));
}

i16 SpicePointsPerDecade(const DesignRecord& record) {
  constexpr f64 mostPoints = 1000;
  NumericFaultScope scope;
  const f64 ratio = scope.Checked(static_cast<f64>(record.Fstop) / static_cast<f64>(record.Fstart));
  const f64 decades = scope.Checked(std::log(ratio) / std::log(10.0));
  const f64 points = scope.Checked(static_cast<f64>(record.NrIntervals) / decades);
  return ToI16(std::min(points, mostPoints));
}

f32 SpiceCount(f32 count) {
  const f32 whole = std::nearbyint(count);
  return std::fabs(count - whole) < 0.001F ? whole : count;
}

}  // namespace quilm
