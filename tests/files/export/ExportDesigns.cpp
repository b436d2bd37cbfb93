#include "files/export/ExportDesigns.h"

#include <gtest/gtest.h>

#include "core/Fault.h"
#include "core/Topology.h"
#include "files/export/LtspiceBench.h"
#include "synthesis/CauerPrototype.h"
#include "synthesis/MakeNetwork.h"
#include "synthesis/modNormalized.h"

namespace quilm {

namespace {

// Entries of a design of 1 MHz, about 5 MHz where it has a centre, with a sweep well beyond its band.
DesignRecord Entered(i16 family, const std::string& topology, int order) {
  DesignRecord record = LadderOf({});
  record.Family = family;
  record.Topology = topology;
  record.Order = static_cast<f32>(order);
  record.Fcenter = 5e6F;
  SetSweep(record, NeedsCenter(topology) ? 1e6F : 1e5F, NeedsCenter(topology) ? 2.5e7F : 1e7F, 100);
  return record;
}

DesignRecord Design(i16 family, const std::string& topology, int order) {
  DesignRecord record = Entered(family, topology, order);
  record.Apass = family == familyChebyshev ? 0.1F : 0;
  EXPECT_TRUE(ComputePrototype(record, family).empty());
  MakeNetwork(record);
  return record;
}

// 60 dB deep; of an odd order with the first edge that leaves a ripple of 0.001 to 1 dB.
CauerPrototype DeepPrototype(int order) {
  constexpr f64 depth = 60;
  if (order % 2 == 0) return EvenCauerPrototype(order, 0.1, depth, CauerVariant::EqualTerminations);
  for (const f64 edge : {1.0005, 1.002, 1.01, 1.05, 1.2, 1.5, 2.0, 3.0, 5.0, 8.0}) {
    const f32 ripple = OddCauerRipple(order, edge, depth);
    if (ripple > 0.001F && ripple < 1) return OddCauerPrototype(order, edge, depth);
  }
  throw Fault("no edge for order " + std::to_string(order));
}

DesignRecord Cauer(const std::string& topology, int order, i16 layout) {
  const CauerPrototype prototype = DeepPrototype(order);
  DesignRecord record = Entered(familyCauer, topology, order);
  record.CauerFlag = 1;
  record.CauerTop = layout;
  record.Gj = prototype.Gj;
  record.Hj = prototype.Hj;
  record.Rratio = prototype.Rratio;
  MakeNetwork(record);
  return record;
}

}  // namespace

void SetSweep(DesignRecord& record, f32 Fstart, f32 Fstop, f32 intervals) {
  record.SweepMode = 2;
  record.Fstart = Fstart;
  record.Fstop = Fstop;
  record.NrIntervals = intervals;
}

std::vector<DesignRecord> AllPoleDesigns() {
  std::vector<DesignRecord> designs;
  for (const std::string topology : {"A", "B", "C", "D", "E", "F", "G", "I", "J", "K", "L"}) {
    const int lowest = topology == "D" || topology == "G" ? 2 : 1;
    for (int order = lowest; order <= orderLimit; ++order) {
      designs.push_back(Design(order % 2 == 1 ? familyChebyshev : familyButterworth, topology, order));
    }
  }
  return designs;
}

std::vector<DesignRecord> CauerDesigns() {
  std::vector<DesignRecord> designs;
  for (const std::string topology : {"A", "B", "H", "I", "J"}) {
    for (int order = 3; order <= orderLimit; ++order) designs.push_back(Cauer(topology, order, 0));
  }
  for (int order = 4; order <= 10; order += 2) designs.push_back(Cauer("H", order, 1));
  return designs;
}

}  // namespace quilm
