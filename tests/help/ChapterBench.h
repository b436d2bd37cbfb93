// A guided chapter of the book with the script that draws its pictures: what the chapter quotes is compared with
// theory, and with what the program prints when the script is run.
#pragma once

#include <cmath>
#include <cstdio>

#include "core/DesignRecord.h"
#include "help/BookText.h"
#include "script/ProgramBench.h"
#include "support/PlainAnalysis.h"

namespace quilm {

class Chapter : public Program {
 protected:
  // Runs a script of help/ or examples/ in the test's folder; its events.
  std::vector<json> EventsOf(const std::string& script) {
    const Ended ended = Run("'" QUILM_SOURCE "/" + script + "'");
    EXPECT_EQ(ended.status, 0) << ended.err;
    return ended.Events();
  }

  static std::vector<json> OfKind(const std::vector<json>& events, const std::string& kind) {
    std::vector<json> found;
    for (const json& event : events) {
      if (event["event"] == kind) found.push_back(event);
    }
    return found;
  }

  static std::string PageNamed(const std::string& name) {
    return WithoutContents(Read(fs::path(QUILM_HELP) / (name + ".htm")));
  }

  // From the heading that bears the id to the next one of its rank, or to the end.
  static std::string SectionOf(const std::string& page, const std::string& id) {
    const std::size_t from = page.find("<h2 id=\"" + id + "\"");
    if (from == std::string::npos) return {};
    return page.substr(from, page.find("<h2", from + 1) - from);
  }
};

// "Gaussian to 12" has the id "gaussian-to-12".
inline std::string IdOf(std::string name) {
  for (char& c : name) c = c == ' ' ? '-' : static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
  return name;
}

// With so many digits behind the point: "30.1".
inline std::string Fixed(f64 value, int digits) {
  char text[32];
  std::snprintf(text, sizeof text, "%.*f", digits, value);
  return text;
}

// With four digits and the unit's multiplier: "3284 pF", "9.131 uH". Units of the schematic: capacitors up to 10 nF are
// in pF.
inline std::string FourDigits(f64 value, f64 unit, const std::string& name) {
  const f64 figure = value / unit;
  return Fixed(figure, 3 - static_cast<int>(std::floor(std::log10(figure) + 1e-9))) + " " + name;
}
inline std::string Capacitor(f64 farads) { return FourDigits(farads, 1e-12, "pF"); }
inline std::string Inductor(f64 henries) {
  return henries < 1e-6 ? FourDigits(henries, 1e-9, "nH") : FourDigits(henries, 1e-6, "uH");
}

// g1, g2, ... of a Chebyshev prototype of so many dB (Matthaei, Young, Jones: Microwave Filters, equation 4.05-2).
inline std::vector<f64> ChebyshevValues(int order, f64 ripple) {
  const f64 beta = std::log(1 / std::tanh(ripple * std::log(10.0) / 40));
  const f64 gamma = std::sinh(beta / (2 * order));
  const auto a = [&](int k) { return std::sin((2 * k - 1) * Pi / (2 * order)); };
  const auto b = [&](int k) { return gamma * gamma + std::pow(std::sin(k * Pi / order), 2); };
  std::vector<f64> g = {2 * a(1) / gamma};
  for (int k = 2; k <= order; ++k) g.push_back(4 * a(k - 1) * a(k) / (b(k - 1) * g.back()));
  return g;
}

// Loss in dB at a multiple of the edge.
inline f64 ChebyshevLoss(int order, f64 ripple, f64 x) {
  const f64 T = std::cosh(order * std::acosh(x));
  return 10 * std::log10(1 + (std::pow(10, ripple / 10) - 1) * T * T);
}

// The first design: order 5, 0.1 dB, 1 MHz, 50 ohms.
inline const f64 firstEdge = 2 * Pi * 1e6;
inline DesignRecord FirstLowpass() {
  DesignRecord record;
  record.Rsource[1] = record.Rload[1] = record.Rstandard = 50;
  record.Qind[1] = 200;
  record.Qcap[1] = 2000;
  for (const f64 g : ChebyshevValues(5, 0.1)) {
    Stage& stage = record.stage[++record.Stages];
    const bool line = record.Stages % 2 == 0;
    stage.ElementType = line ? SeriesL : ShuntC;
    stage.Lval.value = line ? static_cast<f32>(g * 50 / firstEdge) : 0;
    stage.Cval.value = line ? 0 : static_cast<f32>(g / (firstEdge * 50));
  }
  return record;
}

}  // namespace quilm
