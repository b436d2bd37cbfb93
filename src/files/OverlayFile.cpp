#include "files/OverlayFile.h"

#include <charconv>
#include <cmath>
#include <optional>
#include <string_view>

#include <algorithm>
#include "core/NumberText.h"
#include "core/ResponseArray.h"
#include "files/LineReader.h"

namespace quilm {

namespace {

// Takes a number and the blanks before it off a text.
std::optional<f32> TakeNumber(std::string_view& text) {
  text.remove_prefix(std::min(text.find_first_not_of(' '), text.size()));
  f64 value = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
  if (error != std::errc()) return std::nullopt;
  text.remove_prefix(static_cast<std::size_t>(end - text.data()));
  const f32 rounded = static_cast<f32>(value);
  const bool ends = text.empty() || text.front() == ' ';
  return ends && std::isfinite(rounded) ? std::optional(rounded) : std::nullopt;
}

bool TakePoint(std::string_view line, StoredCurve& curve) {
  const std::optional<f32> frequency = TakeNumber(line);
  const std::optional<f32> value = TakeNumber(line);
  if (!frequency || !value || !(*frequency >= 0)) return false;
  curve.freq.push_back(*frequency);
  curve.value.push_back(*value);
  return true;
}

}  // namespace

std::string OverlayText(std::span<const f32> frequencies, std::span<const f32> values) {
  std::string text;
  for (std::size_t i = 0; i < frequencies.size(); ++i) {
    text += ShortText(frequencies[i], LeadingZero::Keep) + " " + ShortText(values[i], LeadingZero::Keep) + " \r\n";
  }
  return text;
}

OverlayRead ReadOverlay(std::istream& in) {
  OverlayRead read;
  LineReader lines(in);
  try {
    for (int line = 0; line <= responseBound && !lines.AtEnd(); ++line) {
      if (!TakePoint(lines.Take(), read.curve)) ++read.unread;
    }
  } catch (const ReadFault&) {
    // Nothing but empty lines followed, or the disk gave no more.
  }
  return read;
}

}  // namespace quilm
