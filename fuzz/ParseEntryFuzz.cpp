// Entries of any bytes, and numbers of any bits. An entry never fails and always gives a number within its limits;
// every number has a text in every format.
#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <string>

#include "core/NumberText.h"
#include "core/modGeneral.h"

namespace {

using namespace quilm;

void Require(bool holds) {
  if (!holds) std::abort();
}

std::size_t Characters(const std::string& text) {
  return static_cast<std::size_t>(
      std::count_if(text.begin(), text.end(), [](char c) { return (static_cast<unsigned char>(c) & 0xC0U) != 0x80U; }));
}

void TakeEntry(std::string text) {
  f32 value = NAN;
  ParseEntry(text, value);
  Require(std::fabs(value) <= 1e10F);
  Require(Characters(text) <= 12);
}

// A positive number comes back from its display text as near as the six places of the text allow, but for what rounds
// to nothing.
void EchoFrequency(f32 value) {
  if (!(value >= 0.01F && value < 1e9F)) return;
  std::string text = FormatFrequency(value);
  f32 again = 0;
  ParseEntry(text, again);
  Require(std::fabs(again - value) <= 1e-5F * value);
}

void ShowNumber(f32 value) {
  FormatInductance(value);
  FormatCapacitance(value);
  FormatResistance(value);
  FormatTime(value);
  FormatValue(value);
  EchoFrequency(value);
  Require(PadCell(value).size() == 14);
  Require(NumText(value).size() <= 15);
  if (!std::isfinite(value)) return;
  const f32 again = std::strtof(NumText(value).c_str(), nullptr);
  // Seven digits, and the spacing of the smallest numbers.
  Require(std::fabs(static_cast<f64>(again) - static_cast<f64>(value)) <=
          1e-6 * std::fabs(static_cast<f64>(value)) + 1e-44);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  TakeEntry(std::string(reinterpret_cast<const char*>(data), size));
  f32 value = 0;
  if (size >= sizeof value) {
    std::memcpy(&value, data, sizeof value);
    ShowNumber(value);
  }
  return 0;
}
