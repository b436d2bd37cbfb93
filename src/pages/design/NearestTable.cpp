#include "pages/design/NearestTable.h"

#include <cmath>
#include <numbers>

#include "core/modGeneral.h"

namespace quilm {

namespace {

// Where the columns begin, in characters of the line.
constexpr std::size_t startOfC = 11;
constexpr std::size_t startOfNearestC = 22;
constexpr std::size_t startOfL = 32;
constexpr std::size_t startOfNearestL = 44;
constexpr std::size_t startOfResonance = 53;

constexpr const char* blankCell = "     ";

// The text from `column` on. One that is too long for its column pushes the rest of its line, rather than run into it.
void Place(std::string& line, std::size_t column, const std::string& text) {
  while (line.size() < column || line.back() != ' ') line += ' ';
  line += text.empty() ? blankCell : text;
}

std::string ResonanceText(f32 C, f32 L) {
  if (!(C > 0 && L > 0)) return {};
  return FormatFrequency(
      static_cast<f32>(1 / (2 * std::numbers::pi * std::sqrt(static_cast<f64>(L) * static_cast<f64>(C)))));
}

}  // namespace

std::vector<std::string> NearestTable(const Network& network, const NearestParts& nearest) {
  std::vector<std::string> lines;
  for (int s = 1; s <= network.Stages; ++s) {
    const f32 C = network.stage[s].Cval.value;
    const f32 L = network.stage[s].Lval.value;
    std::string line = std::string(blankCell) + (s < 10 ? "   " : "  ") + std::to_string(s);
    Place(line, startOfC, FormatCapacitance(C));
    Place(line, startOfNearestC, FormatCapacitance(nearest.NearestC[s]));
    Place(line, startOfL, FormatInductance(L));
    Place(line, startOfNearestL, FormatInductance(nearest.NearestL[s]));
    Place(line, startOfResonance, ResonanceText(C, L));
    lines.push_back(line);
  }
  return lines;
}

}  // namespace quilm
