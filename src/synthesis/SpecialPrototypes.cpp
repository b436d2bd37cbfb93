#include "synthesis/SpecialPrototypes.h"

#include <cmath>

#include "core/NumericFault.h"

namespace quilm {

namespace {

// Puts the arms of a ladder down one after the other, shunt and series in turn.
class Chain {
 public:
  void Shunt(f32 g) { prototype_.Gj[++prototype_.order] = g; }
  void Series(f32 h, f32 g) {
    prototype_.Hj[++prototype_.order] = h;
    prototype_.Gj[prototype_.order] = g;
  }
  const SpecialPrototype& Built() const { return prototype_; }

 private:
  SpecialPrototype prototype_;
};

struct Section {
  f32 m;
  f32 series;  // whole series arm
  f32 tank;    // capacitor across the whole series arm
};

Section SectionOf(f64 zero) {
  const f32 m = SectionM(zero);
  const f32 half = (1 - m * m) / (4 * m);
  return {m, m + m, half + half};
}

// The outer half of a section: half its series arm, and so twice the capacitor across it.
void HalfSection(Chain& chain, const Section& section) { chain.Series(section.series / 2, 2 * section.tank); }

}  // namespace

f32 SectionM(f64 zero) { return static_cast<f32>(std::sqrt(1 - 1 / (zero * zero))); }

SpecialPrototype MderivedPrototype(std::span<const f64> zeros) {
  if (zeros.empty()) return {};
  std::vector<Section> sections;
  for (const f64 zero : zeros) sections.push_back(SectionOf(zero));

  Chain chain;
  chain.Shunt(0);
  HalfSection(chain, sections.front());
  chain.Shunt(sections.front().m + 1);
  chain.Series(2, 0);  // the constant-K section in the middle
  f32 former = 1;      // the shunt share of the section on the source side, 1 for the constant-K one
  for (std::size_t i = 1; i + 1 < sections.size(); ++i) {
    chain.Shunt(former + sections[i].m);
    chain.Series(sections[i].series, sections[i].tank);
    former = sections[i].m;
  }
  const Section& last = sections.back();
  chain.Shunt(former + last.m);
  HalfSection(chain, last);
  chain.Shunt(0);
  return chain.Built();
}

SpecialPrototype SinglyTerminatedChebyshev(int order, f32 Apass) {
  NumericFaultScope scope;
  const f64 n = order;
  const auto a = [&](int k) { return static_cast<f32>(std::sin((2 * k - 1) * Pi / (2 * n))); };
  const f32 p = scope.Store(std::exp(static_cast<f64>(Apass) / (10 / std::log(10.0))));
  const f32 e = scope.Store(std::sqrt(static_cast<f64>(p) - 1));
  const f64 inverse = 1 / static_cast<f64>(e);
  const f32 y = scope.Store(std::log(inverse + std::sqrt(inverse / static_cast<f64>(e) + 1)));
  const f64 perOrder = static_cast<f64>(y) / n;
  const f32 s = scope.Store((std::exp(perOrder) - std::exp(-perOrder)) * 0.5);

  SpecialPrototype result;
  result.order = order;
  f64 g = static_cast<f64>(a(1)) / static_cast<f64>(s);
  result.Gj[order] = scope.Store(g);
  for (int i = 2; i <= order; ++i) {
    const f64 t = (i - 1) * Pi / (2 * n);
    const f64 sine = std::sin(t);
    const f64 cosine = std::cos(t);
    const f64 d = cosine * cosine * (sine * sine + static_cast<f64>(s) * static_cast<f64>(s));
    g = static_cast<f64>(a(i - 1)) * static_cast<f64>(a(i)) / (g * d);
    // Computed from the load on: written in reverse, so that element 1 is at the source.
    result.Gj[order + 1 - i] = scope.Store(g);
  }
  return result;
}

}  // namespace quilm
