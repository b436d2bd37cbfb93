#include "core/NumberText.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>

namespace quilm {

namespace {

constexpr int significantDigits = 7;
// The longest exact expansion of a 32-bit float has 112 significant digits.
constexpr int exactDigits = 112;

// 0.DIGITS times ten to the power of `point`. No digits are zero.
struct Decimal {
  bool negative = false;
  std::string digits;
  int point = 0;
};

void StripZeros(Decimal& decimal) {
  const std::size_t last = decimal.digits.find_last_not_of('0');
  decimal.digits.resize(last == std::string::npos ? 0 : last + 1);
}

// Every digit of a finite value.
Decimal Expanded(f32 value) {
  std::array<char, exactDigits + 16> text;
  const f64 magnitude = std::fabs(static_cast<f64>(value));
  const char* end =
      std::to_chars(text.data(), text.data() + text.size(), magnitude, std::chars_format::scientific, exactDigits - 1)
          .ptr;
  const char* exponent = std::find(static_cast<const char*>(text.data()), end, 'e');
  Decimal decimal;
  decimal.negative = std::signbit(value);
  decimal.digits.push_back(text[0]);
  decimal.digits.append(static_cast<const char*>(text.data()) + 2, exponent);
  const char* power = exponent + (exponent[1] == '+' ? 2 : 1);
  std::from_chars(power, end, decimal.point);
  ++decimal.point;
  StripZeros(decimal);
  return decimal;
}

// Keeps the first `count` digits, the last one rounded, a half away from zero.
void KeepDigits(Decimal& decimal, int count) {
  if (count >= static_cast<int>(decimal.digits.size())) return;
  if (count < 0) {
    decimal.digits.clear();
    return;
  }
  const auto kept = static_cast<std::size_t>(count);
  const bool up = decimal.digits[kept] >= '5';
  decimal.digits.resize(kept);
  if (up) {
    std::size_t i = kept;
    while (i > 0 && decimal.digits[i - 1] == '9') decimal.digits[--i] = '0';
    if (i > 0) {
      ++decimal.digits[i - 1];
    } else {
      decimal.digits.insert(decimal.digits.begin(), '1');
      ++decimal.point;
    }
  }
  StripZeros(decimal);
}

std::string ExponentForm(const Decimal& decimal) {
  std::string text(1, decimal.digits.front());
  if (decimal.digits.size() > 1) text += "." + decimal.digits.substr(1);
  const int power = decimal.point - 1;
  const std::string size = std::to_string(std::abs(power));
  return text + (power < 0 ? "E-" : "E+") + (size.size() < 2 ? "0" : "") + size;
}

std::string FixedForm(const Decimal& decimal, LeadingZero zero) {
  std::string text = decimal.digits;
  const int length = static_cast<int>(text.size());
  if (decimal.point <= 0) {
    text.insert(0, static_cast<std::size_t>(-decimal.point), '0');
    text.insert(0, zero == LeadingZero::Keep ? "0." : ".");
  } else if (decimal.point >= length) {
    text.append(static_cast<std::size_t>(decimal.point - length), '0');
  } else {
    text.insert(static_cast<std::size_t>(decimal.point), 1, '.');
  }
  return text;
}

bool NeedsExponent(const Decimal& decimal) {
  const int afterPoint = static_cast<int>(decimal.digits.size()) - decimal.point;
  return decimal.point < -3 || decimal.point > significantDigits || afterPoint > significantDigits;
}

std::string NotFinite(f32 value) { return std::isnan(value) ? "NaN" : value < 0 ? "-Inf" : "Inf"; }

}  // namespace

f32 RoundedTo(f32 value, int decimals) {
  if (!std::isfinite(value)) return value;
  Decimal decimal = Expanded(value);
  KeepDigits(decimal, decimal.point + decimals);
  if (decimal.digits.empty()) return 0;
  const std::string text = ExponentForm(decimal);
  f32 rounded = 0;
  std::from_chars(text.data(), text.data() + text.size(), rounded);
  return decimal.negative ? -rounded : rounded;
}

std::string ShortText(f32 value, LeadingZero zero) {
  if (!std::isfinite(value)) return NotFinite(value);
  Decimal decimal = Expanded(value);
  KeepDigits(decimal, significantDigits);
  if (decimal.digits.empty()) return "0";
  std::string text = NeedsExponent(decimal) ? ExponentForm(decimal) : FixedForm(decimal, zero);
  if (decimal.negative) text.insert(0, 1, '-');
  return text;
}

std::string NumText(f32 value) {
  std::string text = ShortText(value, LeadingZero::Drop);
  if (text.front() != '-') text.insert(0, 1, ' ');
  text.push_back(' ');
  return text;
}

std::string NumText(i16 value) { return NumText(static_cast<f32>(value)); }

}  // namespace quilm
