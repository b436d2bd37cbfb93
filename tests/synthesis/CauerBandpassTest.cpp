// The Cauer bandpass against its lowpass: at f its loss is the lowpass' at |f/f0 - f0/f| f0 / W.

#include <gtest/gtest.h>

#include <cmath>
#include <complex>

#include "core/DesignRecord.h"
#include "core/Fault.h"
#include "synthesis/CauerPrototype.h"
#include "synthesis/MakeNetwork.h"

namespace quilm {
namespace {

using Complex = std::complex<f64>;

constexpr f64 f0 = 10e6;
constexpr f64 W = 1e6;

// Loss of a lossless ladder of the types that synthesis makes, in dB against the available power.
f64 LossAt(const DesignRecord& record, f64 f) {
  const f64 w = 2 * Pi * f;
  Complex V = static_cast<f64>(record.Rload[1]);
  Complex I = 1;
  for (int s = record.Stages; s >= 1; --s) {
    const Stage& stage = record.stage[s];
    const Complex ZL(0, w * static_cast<f64>(stage.Lval.value));
    const Complex YC(0, w * static_cast<f64>(stage.Cval.value));
    switch (stage.ElementType) {
      case SeriesL:
        V += ZL * I;
        break;
      case ShuntC:
        I += YC * V;
        break;
      case SeriesC:
        V += I / YC;
        break;
      case SeriesSLC:
        V += (ZL + 1.0 / YC) * I;
        break;
      case ShuntSLC:
        I += V / (ZL + 1.0 / YC);
        break;
      case SeriesPLC:
        V += I / (1.0 / ZL + YC);
        break;
      case ShuntPLC:
        I += (1.0 / ZL + YC) * V;
        break;
      default:
        ADD_FAILURE() << "type " << stage.ElementType;
    }
  }
  const f64 Rs = record.Rsource[1];
  return 10 * std::log10(std::norm(V + Rs * I) / (4 * Rs * static_cast<f64>(record.Rload[1])));
}

DesignRecord Design(int order, const CauerPrototype& prototype, const char* topology, i16 layout) {
  DesignRecord record;
  record.Family = familyCauer;
  record.CauerFlag = 1;
  record.Topology = topology;
  record.Order = static_cast<f32>(order);
  record.Width = static_cast<f32>(W);
  record.Fcenter = *topology == 'H' ? static_cast<f32>(f0) : 0;
  record.Rsource[1] = 50;
  record.CauerTop = layout;
  record.Gj = prototype.Gj;
  record.Hj = prototype.Hj;
  record.Rratio = prototype.Rratio;
  MakeNetwork(record);
  return record;
}

const f64 frequencies[] = {5e6, 8.7e6, 9.3e6, 9.52e6, 9.8e6, 10e6, 10.3e6, 10.49e6, 10.8e6, 11.6e6, 19e6};

f64 Mapped(f64 f) { return std::fabs(f / f0 - f0 / f) * f0; }

// Zig-zag parts pass through several roundings of 32 bits, which the steep flanks magnify.
void ExpectLowpassResponse(int order, const CauerPrototype& prototype, i16 layout, f64 tolerance) {
  const DesignRecord lowpass = Design(order, prototype, "A", 0);
  const DesignRecord bandpass = Design(order, prototype, "H", layout);
  for (const f64 f : frequencies) {
    const f64 expected = LossAt(lowpass, Mapped(f));
    EXPECT_NEAR(LossAt(bandpass, f), expected, tolerance * (1 + expected)) << "order " << order << " at " << f;
  }
}

TEST(CauerBandpass, TheNormalLayoutIsTheTransformedLowpass) {
  for (int order = 4; order <= 20; order += 2) {
    ExpectLowpassResponse(order, EvenCauerPrototype(order, 0.1, 60, CauerVariant::EqualTerminations), 0, 2e-3);
    ExpectLowpassResponse(order, EvenCauerPrototype(order, 0.1, 60, CauerVariant::BestSelectivity), 0, 2e-3);
  }
  for (int order = 3; order <= 21; order += 2) {
    for (const f64 edge : {1.01, 1.2}) {
      const f32 ripple = OddCauerRipple(order, edge, 60);
      if (ripple > 0.0001F && ripple < 3) ExpectLowpassResponse(order, OddCauerPrototype(order, edge, 60), 0, 2e-3);
    }
  }
}

TEST(CauerBandpass, TheZigZagLayoutHasTheSameResponse) {
  for (int order = 4; order <= 10; order += 2) {
    ExpectLowpassResponse(order, EvenCauerPrototype(order, 0.1, 60, CauerVariant::EqualTerminations), 1, 2e-3);
  }
}

// Published figures: 0.1 dB, 60 dB, equal terminations, 10 MHz and 1 MHz, 50 ohms.
TEST(CauerBandpass, ZigZagOfOrder4) {
  const DesignRecord record = Design(4, EvenCauerPrototype(4, 0.1, 60, CauerVariant::EqualTerminations), "H", 1);
  const i16 types[] = {ShuntPLC, SeriesC, SeriesPLC, ShuntC, ShuntSLC, SeriesSLC};
  ASSERT_EQ(record.Stages, 6);
  for (int s = 1; s <= 6; ++s) EXPECT_EQ(record.stage[s].ElementType, types[s - 1]);
  EXPECT_NEAR(record.Rload[1], 48.121, 1e-3);
}

TEST(CauerBandpass, ZigZagSavesInductors) {
  for (int order = 4; order <= 10; order += 2) {
    const CauerPrototype prototype = EvenCauerPrototype(order, 0.1, 60, CauerVariant::EqualTerminations);
    const auto inductors = [&](i16 layout) {
      const DesignRecord record = Design(order, prototype, "H", layout);
      int count = 0;
      for (int s = 1; s <= record.Stages; ++s) count += record.stage[s].Lval.value != 0 ? 1 : 0;
      return count;
    };
    EXPECT_EQ(inductors(0), order + order / 2 - 1);
    EXPECT_EQ(inductors(1), order);
  }
}

TEST(CauerBandpass, ZigZagBeyondOrder10IsAFault) {
  const CauerPrototype prototype = EvenCauerPrototype(12, 0.1, 60, CauerVariant::EqualTerminations);
  EXPECT_THROW(Design(12, prototype, "H", 1), BoundFault);
}

TEST(CauerBandpass, AnOddOrderAlwaysTakesTheNormalLayout) {
  const CauerPrototype prototype = OddCauerPrototype(5, 1.3, 50);
  EXPECT_EQ(Design(5, prototype, "H", 1).stage[2], Design(5, prototype, "H", 0).stage[2]);
}

}  // namespace
}  // namespace quilm
