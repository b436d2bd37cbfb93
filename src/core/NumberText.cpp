#include "core/NumberText.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>

namespace quilm {

namespace {

constexpr std::size_t significantDigits = 7;
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

// Adds one unit of the last digit.
void RoundUp(Decimal& decimal) {
  std::size_t i = decimal.digits.size();
  while (i > 0 && decimal.digits[i - 1] == '9') decimal.digits[--i] = '0';
  if (i > 0) {
    ++decimal.digits[i - 1];
  } else {
    decimal.digits.insert(decimal.digits.begin(), '1');
    ++decimal.point;
  }
}

// Keeps the significant digits, the last one rounded, a half away from zero.
void KeepSignificant(Decimal& decimal) {
  if (decimal.digits.size() <= significantDigits) return;
  const bool up = decimal.digits[significantDigits] >= '5';
  decimal.digits.resize(significantDigits);
  if (up) RoundUp(decimal);
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
  constexpr int places = significantDigits;
  const int afterPoint = static_cast<int>(decimal.digits.size()) - decimal.point;
  return decimal.point < -3 || decimal.point > places || afterPoint > places;
}

std::string NotFinite(f32 value) { return std::isnan(value) ? "NaN" : value < 0 ? "-Inf" : "Inf"; }

}  // namespace

f32 RoundedTo(f32 value, int decimals) {
  constexpr f64 powers[] = {1, 1e1, 1e2, 1e3, 1e4, 1e5, 1e6, 1e7, 1e8};
  const f64 power = powers[decimals];
  // Two exact steps: 24 bits times at most 19 fit 64-bit arithmetic, so std::round sees the true value and its ties;
  // and the quotient of two whole numbers lies on the middle between two f32 or so far beside it that rounding it
  // twice, to 64 and to 32 bits, equals rounding it once. Adding zero takes the sign from a zero.
  return static_cast<f32>(std::round(static_cast<f64>(value) * power) / power + 0.0);
}

std::string ShortText(f32 value, LeadingZero zero) {
  if (!std::isfinite(value)) return NotFinite(value);
  Decimal decimal = Expanded(value);
  KeepSignificant(decimal);
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
