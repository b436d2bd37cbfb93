#include "network/modNearest5.h"

#include <array>
#include <cmath>

#include "core/NumericFault.h"

namespace quilm {

namespace {

// The mantissas of a decade. The last one of the decade below stands first: a value just above the boundary has a lower
// neighbour too.
constexpr std::array<f64, 25> E24 = {0.091, 0.1,  0.11, 0.12, 0.13, 0.15, 0.16, 0.18, 0.2,  0.22, 0.24, 0.27, 0.3,
                                     0.33,  0.36, 0.39, 0.43, 0.47, 0.51, 0.56, 0.62, 0.68, 0.75, 0.82, 0.91};

// Below all parts that a design comes out with.
constexpr int lowestDecade = -13;

// The first value of the series above V, and the one below that.
struct Neighbours {
  f64 Lower;
  f64 Upper;
};

// 64 bits: in 32 a decade reached by tens would be off by several units, and a value of the series no more its own
// neighbour. The powers of ten are exact or the nearest there are.
Neighbours NeighboursOf(f64 V) {
  for (int decade = lowestDecade;; ++decade) {
    const f64 D = std::pow(10.0, decade);
    for (std::size_t k = 1; k < E24.size(); ++k) {
      if (D * E24[k] > V) return {D * E24[k - 1], D * E24[k]};
    }
  }
}

// Part `kept` takes its rounded value, and its partner what keeps the product of the two.
void TakeAndRetune(f32& kept, f32& partner, f32 nearest) {
  if (nearest == 0) return;
  NumericFaultScope scope;
  partner = scope.Store(static_cast<f64>(kept) * partner / nearest);
  kept = nearest;
}

void Transfer(Stage& stage, f32 NearestC, f32 NearestL, NearestTransfer transfer) {
  f32& C = stage.Cval.value;
  f32& L = stage.Lval.value;
  switch (transfer) {
    case NearestTransfer::All:
      L = NearestL;
      C = NearestC;
      break;
    case NearestTransfer::Capacitors:
      C = NearestC;
      break;
    case NearestTransfer::Inductors:
      L = NearestL;
      break;
    case NearestTransfer::CapacitorsRetuneInductors:
      TakeAndRetune(C, L, NearestC);
      break;
    case NearestTransfer::InductorsRetuneCapacitors:
      TakeAndRetune(L, C, NearestL);
      break;
  }
}

}  // namespace

f32 NearestE24(f32 V) {
  constexpr f32 largest = 1e38F;  // up to which the value above is a number of 32 bits
  if (V == 0 || !(std::abs(V) <= largest)) return V;
  const auto [Lower, Upper] = NeighboursOf(V);
  const f64 RatioDown = V / Lower;
  const f64 RatioUp = Upper / V;
  return static_cast<f32>(RatioUp <= RatioDown ? Upper : Lower);
}

NearestParts RoundToNearest(const Network& network) {
  NearestParts nearest;
  for (int s = 1; s <= network.Stages; ++s) {
    nearest.NearestC[s] = NearestE24(network.stage[s].Cval.value);
    nearest.NearestL[s] = NearestE24(network.stage[s].Lval.value);
  }
  return nearest;
}

bool HasNegativeLC(const Network& network) {
  for (int s = 1; s <= network.Stages; ++s) {
    if (network.stage[s].Cval.value < 0 || network.stage[s].Lval.value < 0) return true;
  }
  return false;
}

void TransferNearest(Network& network, const NearestParts& nearest, NearestTransfer transfer) {
  auto stages = network.stage;
  for (int s = 1; s <= network.Stages; ++s) Transfer(stages[s], nearest.NearestC[s], nearest.NearestL[s], transfer);
  network.stage = stages;
}

}  // namespace quilm
