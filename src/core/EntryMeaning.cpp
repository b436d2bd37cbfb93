#include "core/EntryMeaning.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <limits>
#include <string>

#include "core/modGeneral.h"

namespace quilm {

namespace {

bool IsUnit(std::string_view text) {
  constexpr std::array<std::string_view, 15> units = {"",     "Hz", "hz",     "H",      "F", "ohm", "Ohm", "ohms",
                                                      "Ohms", "R",  "\u03a9", "\u2126", "s", "dB",  "db"};
  return std::find(units.begin(), units.end(), text) != units.end();
}

// What follows the number: a unit, or a multiplier and a unit.
std::optional<f32> ScaleOf(std::string_view rest) {
  if (IsUnit(rest)) return 1.0F;
  const std::optional<f32> multiplier = MultiplierOf(rest.front());
  return multiplier && IsUnit(Trimmed(rest.substr(1))) ? multiplier : std::nullopt;
}

}  // namespace

std::optional<f32> PlainMeaning(std::string_view text) {
  std::string entry = WithLatinMicro(Trimmed(text));
  if (entry.empty()) return 0.0F;
  std::replace(entry.begin(), entry.end(), ',', '.');
  const char* first = entry.data() + (entry.front() == '+' ? 1 : 0);
  const char* last = entry.data() + entry.size();
  f64 number = 0;
  const auto [end, fault] = std::from_chars(first, last, number);
  constexpr f64 largest = std::numeric_limits<f32>::max();
  if (fault != std::errc{} || !(std::fabs(number) <= largest)) return std::nullopt;
  const std::optional<f32> scale = ScaleOf(Trimmed({end, static_cast<std::size_t>(last - end)}));
  if (!scale) return std::nullopt;
  return static_cast<f32>(number) * *scale + 0.0F;
}

}  // namespace quilm
