#include "files/export/TouchstoneFile.h"

#include <array>
#include <cmath>

#include "core/DesignRecord.h"
#include "core/NumberText.h"
#include "core/NumericFault.h"
#include "core/modGeneral.h"

namespace quilm {

namespace {

constexpr f64 degreesPerHalfTurn = 180;

struct Unit {
  const char* name;
  f64 hertz;
};
constexpr std::array<Unit, 4> units = {{{"Hz", 1}, {"kHz", 1e3}, {"MHz", 1e6}, {"GHz", 1e9}}};

std::string Plain(f32 value) { return ShortText(value, LeadingZero::Drop); }

// With the blank that stands in the place of a plus sign.
std::string Signed(f32 value) {
  const std::string text = Plain(value);
  return text.starts_with('-') ? text : " " + text;
}

class Writer {
 public:
  Writer(const DesignRecord& record, const ResponseSpans& sweep, const ReverseResponses& reverse,
         const ExportChoices& choices)
      : record_(record), sweep_(sweep), reverse_(reverse), choices_(choices) {}

  ExportText Write(std::string_view date) {
    Line("! " + PortCount() + "-port S-parameter file Version " + (IsVersion2() ? "2.0" : "1.0") + " by Quilm " +
         std::string(date));
    if (IsVersion2()) {
      WriteKeywords();
    } else {
      Line(OptionLine());
      Line(RangeLine() + (HasTwoPorts() ? "  Number of frequencies: " : "  Freqs: ") + Count());
      Line(Heading());
    }
    try {
      for (std::size_t i = 0; i < sweep_.Count(); ++i) Line(DataRow(i));
    } catch (const NumericFault& fault) {
      return {text_, fault.what()};
    }
    if (IsVersion2()) Line("[End]");
    return {text_, {}};
  }

 private:
  bool HasTwoPorts() const { return choices_.SnPPorts == 2; }
  bool IsVersion2() const { return choices_.SnPVersion == 2; }
  const Unit& FrequencyUnit() const { return units.at(static_cast<std::size_t>(choices_.SnPUnit - 1)); }
  std::string PortCount() const { return std::to_string(choices_.SnPPorts); }
  std::string Count() const { return std::to_string(sweep_.Count()); }

  void Line(const std::string& line) { text_ += line + "\r\n"; }

  void WriteKeywords() {
    Line("[Version] 2.0");
    Line(OptionLine());
    Line("[Number of Ports] " + PortCount());
    if (HasTwoPorts()) Line("[Two-Port Data Order] 21_12");
    Line("[Number of Frequencies] " + Count());
    Line(RangeLine());
    Line("[Reference] " + Signed(record_.Rsource[1]) + (HasTwoPorts() ? Signed(record_.Rload[1]) : ""));
    Line(Heading());
    Line("[Network data]");
  }

  // The reference is the source termination in version 1.0 of two ports alone; those who read the others count on 50.
  std::string OptionLine() const {
    const std::string reference = HasTwoPorts() && !IsVersion2() ? Plain(record_.Rsource[1]) : "50";
    return std::string("# ") + FrequencyUnit().name + " S " + (choices_.SnPFormat == 1 ? "DB " : "MA ") + "R " +
           reference;
  }

  std::string RangeLine() const {
    return "! Fstart: " + Plain(Scaled(record_.Fstart)) + "  Fstop: " + Plain(Scaled(record_.Fstop));
  }

  std::string Heading() const {
    std::string onePort = "! Freq:       S11 mag:      S11 angle:";
    if (!HasTwoPorts()) return onePort;
    return onePort + "    S21 mag:      S21 angle:    S12 mag:      S12 angle:    S22 mag:      S22 angle:";
  }

  f32 Scaled(f32 hertz) const { return static_cast<f32>(static_cast<f64>(hertz) / FrequencyUnit().hertz); }

  std::string Magnitude(f32 dB) const {
    if (choices_.SnPFormat == 1) return PadCell(dB);
    constexpr f64 dBPerDecadeOfVoltage = 20;
    NumericFaultScope scope;
    return PadCell(scope.Store(std::pow(10.0, static_cast<f64>(dB) / dBPerDecadeOfVoltage)));
  }

  std::string Reflection(f32 Zmag, f32 Zangle) const { return PadCell(ReflAngle(Zmag, Zangle, record_.Rstandard)); }

  std::string DataRow(std::size_t i) const {
    const std::string row = PadCell(Scaled(sweep_.freq[i])) + Magnitude(sweep_.returnLoss[i]);
    // Of one port the angle of the input impedance itself is written, where that of two ports is the reflection's.
    if (!HasTwoPorts()) return row + PadCell(sweep_.zinAngle[i]);
    const int at = static_cast<int>(i);
    return row + Reflection(sweep_.zin[i], sweep_.zinAngle[i]) + Magnitude(sweep_.trans[i]) + PadCell(sweep_.angle[i]) +
           Magnitude(reverse_.RevTrans[at]) + PadCell(reverse_.RevAngle[at]) + Magnitude(reverse_.RevReturn[at]) +
           Reflection(reverse_.RevZin[at], reverse_.RevZinAngle[at]);
  }

  const DesignRecord& record_;
  const ResponseSpans& sweep_;
  const ReverseResponses& reverse_;
  const ExportChoices& choices_;
  std::string text_;
};

f64 Square(f32 value) { return static_cast<f64>(value) * static_cast<f64>(value); }

}  // namespace

f32 ReflAngle(f32 Zmag, f32 Zangle, f32 Rstandard) {
  NumericFaultScope scope;
  const f64 radians = static_cast<f64>(Zangle) * Pi / degreesPerHalfTurn;
  const f32 R = scope.Store(static_cast<f64>(Zmag) * std::cos(radians));
  const f32 X = scope.Store(static_cast<f64>(Zmag) * std::sin(radians));
  const f32 r = scope.Store(static_cast<f64>(R) / static_cast<f64>(Rstandard));
  const f32 x = scope.Store(static_cast<f64>(X) / static_cast<f64>(Rstandard));
  const f64 rPlus1 = static_cast<f64>(r) + 1;
  const f64 denominator = rPlus1 * rPlus1 + Square(x);
  const f32 re = scope.Store((Square(x) + Square(r) - 1) / denominator);
  const f32 im = scope.Store(2 * static_cast<f64>(x) / denominator);
  if (re == 0 && im == 0) return 0;
  constexpr f32 rightAngle = 90;
  if (re == 0) return im > 0 ? rightAngle : -rightAngle;
  f32 angle = scope.Store(std::atan(static_cast<f64>(im) / static_cast<f64>(re)) * degreesPerHalfTurn / Pi);
  constexpr f32 halfTurn = 180;
  if (re < 0) angle += im < 0 ? -halfTurn : halfTurn;
  if (angle > halfTurn) angle -= 2 * halfTurn;
  if (angle < -halfTurn) angle += 2 * halfTurn;
  return angle;
}

ExportText TouchstoneText(const DesignRecord& record, const ResponseSpans& sweep, const ReverseResponses& reverse,
                          const ExportChoices& choices, std::string_view date) {
  return Writer(record, sweep, reverse, choices).Write(date);
}

}  // namespace quilm
