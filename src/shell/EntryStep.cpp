#include "shell/EntryStep.h"

#include <algorithm>
#include <cstdint>

namespace quilm {

namespace {

constexpr std::size_t mostDigits = 17;  // what 64 bits hold with room for a carry

// The first number of a text: where it stands, its digits without the point, and how many of them follow the point.
struct Number {
  std::size_t begin = 0;
  std::size_t end = 0;
  bool negative = false;
  bool point = false;
  std::string digits;
  std::size_t decimals = 0;
};

bool IsDigit(char character) { return character >= '0' && character <= '9'; }

Number FindNumber(std::string_view text) {
  Number number;
  std::size_t at = 0;
  while (at < text.size() && !IsDigit(text[at])) ++at;
  number.begin = at > 0 && text[at - 1] == '.' && at < text.size() ? at - 1 : at;
  for (at = number.begin; at < text.size(); ++at) {
    if (IsDigit(text[at])) {
      number.digits += text[at];
      if (number.point) ++number.decimals;
    } else if (text[at] == '.' && !number.point) {
      number.point = true;
    } else {
      break;
    }
  }
  number.end = at;
  number.negative = number.begin > 0 && text[number.begin - 1] == '-';
  return number;
}

// Which digit of the number the cursor stands at, from the left; its last one when the cursor is behind it.
std::size_t DigitAt(const Number& number, std::string_view text, std::size_t cursor) {
  std::size_t index = 0;
  for (std::size_t at = number.begin; at < std::min(cursor, number.end); ++at) {
    if (IsDigit(text[at])) ++index;
  }
  return std::min(index, number.digits.size() - 1);
}

std::int64_t PowerOfTen(std::size_t exponent) {
  std::int64_t power = 1;
  for (std::size_t i = 0; i < exponent; ++i) power *= 10;
  return power;
}

}  // namespace

std::optional<EntryStep> StepDigit(std::string_view text, int cursor, int direction) {
  const Number number = FindNumber(text);
  if (number.digits.empty() || number.digits.size() > mostDigits) return std::nullopt;

  const std::size_t index = DigitAt(number, text, static_cast<std::size_t>(std::max(cursor, 0)));
  const std::size_t place = number.digits.size() - 1 - index;
  const std::int64_t outward = number.negative ? -direction : direction;
  const std::int64_t stepped = std::stoll(number.digits) + outward * PowerOfTen(place);
  if (stepped < 0) return std::nullopt;

  const std::size_t before = number.digits.size() - number.decimals;  // digits before the point
  std::string digits = std::to_string(stepped);
  const std::size_t least = std::max(place + 1, number.decimals + std::min<std::size_t>(before, 1));
  if (digits.size() < least) digits.insert(0, least - digits.size(), '0');

  const std::size_t at = digits.size() - 1 - place;
  const std::size_t whole = digits.size() - number.decimals;
  EntryStep step;
  step.text = std::string(text.substr(0, number.begin)) + digits.substr(0, whole);
  if (number.point) step.text += '.';
  step.text += digits.substr(whole);
  step.text += text.substr(number.end);
  step.cursor = static_cast<int>(number.begin + at + (number.point && at >= whole ? 1 : 0));
  return step;
}

}  // namespace quilm
