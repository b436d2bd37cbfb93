#include "core/modGeneral.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>
#include <span>
#include <string_view>

#include "core/NumberText.h"
#include "core/ScaledText.h"

namespace quilm {

namespace {

// ---- entry ----------------------------------------------------------------------------------------------------------

constexpr std::size_t longestEntry = 12;
constexpr std::size_t longestNumber = 16;
constexpr f32 largestEntry = 1e10F;

struct Multiplier {
  std::string_view letters;
  char spelling;
  f32 scale;
};

constexpr Multiplier multipliers[] = {
    {"Pp", 'p', 1e-12F},  {"Nn", 'n', 1e-9F}, {"Uu", 'u', 1e-6F}, {"m", 'm', 0.001F},
    {"Kk", 'k', 1000.0F}, {"M", 'M', 1e6F},   {"Gg", 'G', 1e9F},
};

// Null for a letter that is no multiplier.
const Multiplier* FindMultiplier(char c) {
  for (const Multiplier& multiplier : multipliers) {
    if (multiplier.letters.find(c) != std::string_view::npos) return &multiplier;
  }
  return nullptr;
}

// Takes an entry character by character and keeps what makes a number.
class EntryScanner {
 public:
  void Take(char c) {
    if (c == ',') c = '.';
    if (c >= '0' && c <= '9') {
      if (kept_.size() < longestNumber && !suffixSeen_) kept_ += c;
    } else if (c == '.') {
      TakePoint();
    } else if (c == '+' || c == '-') {
      if (kept_.empty() || kept_.back() == 'E') kept_ += c;
    } else if (!kept_.empty() && !suffixSeen_) {
      TakeLetter(c);
    }
  }

  const std::string& Kept() const { return kept_; }
  f32 Scale() const { return scale_; }

 private:
  void TakePoint() {
    if (suffixSeen_ || dotSeen_) return;
    dotSeen_ = true;
    kept_ += '.';
  }

  void TakeLetter(char c) {
    if (expSeen_) return;
    if (c == 'E' || c == 'e') {
      expSeen_ = true;
      dotSeen_ = true;  // no point can follow the exponent letter
      kept_ += 'E';
    } else if (const Multiplier* multiplier = FindMultiplier(c)) {
      suffixSeen_ = true;
      kept_ += multiplier->spelling;
      scale_ = multiplier->scale;
    }
  }

  std::string kept_;
  bool suffixSeen_ = false;
  bool dotSeen_ = false;
  bool expSeen_ = false;
  f32 scale_ = 1;
};

void TrimAndCut(std::string& text) { text = FirstCharacters(Trimmed(text), longestEntry); }

// ---- display --------------------------------------------------------------------------------------------------------

constexpr ScaleRow frequencyRows[] = {
    {1e9F, 1e9, "G "}, {1e6F, 1e6, "M "}, {1000, 1000, "k "}, {1, 1, "  "}, {0, 0.001, "m "}};
constexpr DecimalMask frequencyMask = {{3, 3, 4, 5, 6}};

constexpr ScaleRow inductanceRows[] = {{1e9F, 1e9, "GH"},     {1e6F, 1e6, "MH"},   {1000, 1000, "kH"}, {1, 1, "H"},
                                       {0.001F, 0.001, "mH"}, {1e-6F, 1e-6, "uH"}, {0, 1e-9, "nH"}};
constexpr DecimalMask partMask = {{2, 3, 4, 5, 6}};

// The thresholds sit a hundredfold away from the divisors so that capacitors from 0.01 uF up read in uF and all below
// in pF. The divisor of the first row is out of this line; no part comes near its 1e7 F, and scripts compare the texts.
constexpr ScaleRow capacitanceRows[] = {{1e7F, 1e11, "GF"},   {10000, 1e6, "MF"},  {10, 1000, "kF"}, {1, 1, "F"},
                                        {0.01F, 0.001, "mF"}, {1e-8F, 1e-6, "uF"}, {0, 1e-12, "pF"}};
constexpr f32 smallestCapacitance = 1e-15F;

constexpr ScaleRow resistanceRows[] = {{1e9F, 1e9, "G", 3}, {1e6F, 1e6, "M", 3}, {1000, 1000, "k", 3}, {100, 1, " ", 2},
                                       {10, 1, " ", 3},     {1, 1, " ", 4},      {0, 1, " ", 5}};
constexpr f32 smallestResistance = 0.001F;

constexpr ScaleRow timeRows[] = {{1e9F, 1e9, "G"},     {1e6F, 1e6, "M"},   {1000, 1000, "k"},  {1, 1, "  "},
                                 {0.001F, 0.001, "m"}, {1e-6F, 1e-6, "u"}, {1e-9F, 1e-9, "n"}, {0, 1e-12, "p"}};
constexpr DecimalMask timeMask = {{0, 1, 2, 3, 4}};

constexpr ScaleRow valueRows[] = {{1e9F, 1e9, "G", 3}, {1e6F, 1e6, "M", 3}, {1000, 1000, "k", 3}, {100, 1, " ", 2},
                                  {10, 1, " ", 3},     {1, 1, " ", 4},      {0, 1, " ", 5}};
constexpr f32 smallestValue = 1e-5F;

}  // namespace

void ParseEntry(std::string& Text, f32& Result) {
  TrimAndCut(Text);
  EntryScanner scanner;
  for (const char c : WithLatinMicro(Text)) scanner.Take(c);
  // Held before it is narrowed, so that a huge entry sets no overflow flag in a caller's fault scope. Only an entry
  // with an exponent, which takes no multiplier, gets that far. Adding zero takes the sign from a zero.
  constexpr f64 largest = std::numeric_limits<f32>::max();
  const f32 number = static_cast<f32>(std::clamp(LeadingNumber(scanner.Kept()), -largest, largest));
  Result = std::clamp(number * scanner.Scale(), -largestEntry, largestEntry) + 0.0F;
}

std::string WithLatinMicro(std::string_view text) {
  constexpr std::string_view micro[] = {"\u00b5", "\u03bc"};
  std::string latin(text);
  for (const std::string_view sign : micro) {
    for (std::size_t at = latin.find(sign); at != std::string::npos; at = latin.find(sign, at + 1)) {
      latin.replace(at, sign.size(), "u");
    }
  }
  return latin;
}

std::optional<f32> MultiplierOf(char letter) {
  const Multiplier* multiplier = FindMultiplier(letter);
  return multiplier == nullptr ? std::nullopt : std::optional<f32>(multiplier->scale);
}

std::string FormatFrequency(f32 Value) {
  if (Value == 0) return "0.0 ";
  // The sign counts here: a negative value falls to the last row.
  return ScaledText(Value, RowOf(Value, frequencyRows), frequencyMask, true);
}

std::string FormatInductance(f32 Value) { return Value == 0 ? "" : TextByMagnitude(Value, inductanceRows, partMask); }

std::string FormatCapacitance(f32 Value) {
  if (Value == 0) return "";
  if (std::fabs(Value) < smallestCapacitance) return "0  ";
  return TextByMagnitude(Value, capacitanceRows, partMask);
}

std::string FormatResistance(f32 Value) {
  if (!(Value > smallestResistance)) return "0.0   ";
  return TextByMagnitude(Value, resistanceRows, {});
}

std::string FormatTime(f32 Value) { return Value == 0 ? "0  " : TextByMagnitude(Value, timeRows, timeMask); }

std::string FormatValue(f32 Value) {
  if (!(std::fabs(Value) > smallestValue)) return " 0.0000  ";
  return TextByMagnitude(Value, valueRows, {});
}

std::string PadCell(f32 Value) {
  constexpr std::size_t cellWidth = 14;
  std::string text = ShortText(Value, LeadingZero::Drop);
  if (text.size() < cellWidth) text.append(cellWidth - text.size(), ' ');
  return text;
}

f64 LeadingNumber(std::string_view text) {
  if (text.starts_with('+')) text.remove_prefix(1);
  f64 value = 0;
  const auto [end, fault] = std::from_chars(text.data(), text.data() + text.size(), value);
  // The conversion knows words for what is no number.
  if (fault != std::errc::result_out_of_range) return std::isfinite(value) ? value : 0;
  const std::string_view number(text.data(), static_cast<std::size_t>(end - text.data()));
  const std::size_t exponent = number.find_first_of("eE");
  if (exponent != std::string_view::npos && number.substr(exponent + 1).starts_with('-')) return 0;
  return text.front() == '-' ? -HUGE_VAL : HUGE_VAL;
}

std::string FirstCharacters(std::string_view text, std::size_t count) {
  constexpr std::size_t mostBytes = 4;  // of a character
  const auto begins = [](char c) { return (static_cast<unsigned char>(c) & 0xC0U) != 0x80U; };
  std::size_t seen = 0;
  std::size_t end = 0;
  while (end < text.size() && end < mostBytes * count && !(begins(text[end]) && ++seen > count)) ++end;
  return std::string(text.substr(0, end));
}

std::string Trimmed(std::string_view text, std::string_view blanks) {
  const std::size_t first = text.find_first_not_of(blanks);
  if (first == std::string_view::npos) return {};
  return std::string(text.substr(first, text.find_last_not_of(blanks) - first + 1));
}

f64 CosH(f64 x) { return 0.5 * (std::exp(x) + std::exp(-x)); }

f64 CosH(f32 x) { return CosH(f64{x}); }

f64 ArcCosh(f64 x) { return std::log(x + std::sqrt(x * x - 1)); }

f64 ArcCosh(f32 x) { return ArcCosh(f64{x}); }

void SwapValues(f32& a, f32& b) { std::swap(a, b); }

}  // namespace quilm
