#include "network/Norton.h"

#include <cmath>

#include "core/NumericFault.h"
#include "network/NetworkEdits.h"

namespace quilm {

namespace {

constexpr i16 nortonStages = 7;

// What becomes of the end capacitor, the coupling capacitor and the one behind it.
struct NortonSide {
  f32 end;
  f32 coupling;
  f32 inner;
};

NortonSide SideOf(f32 endC, f32 couplingC, NortonRatio ratio, NumericFaultScope& scope) {
  const f64 C = f64{endC};
  const f64 C2 = f64{couplingC};
  const f32 turns = scope.Store(std::sqrt(ratio == NortonRatio::Coupling ? C2 / C : C / C2));
  const f64 n = f64{turns};
  return {scope.Store(C - 2 * (n - 1) * C2), scope.Store(2 * n * C2), scope.Store(2 * (n - 1) * n * C2)};
}

}  // namespace

bool HasNortonForm(const Network& network) {
  if (network.Stages != 3) return false;
  for (int s = 1; s <= 3; ++s) {
    if (!(network.stage[s].Cval.value > 0)) return false;
  }
  return true;
}

Network NortonTransform(const Network& network, NortonRatio ratio) {
  if (!HasNortonForm(network)) throw BoundFault();
  NumericFaultScope scope;
  const f32 C2 = network.stage[2].Cval.value;
  const f32 L = network.stage[1].Lval.value;
  const NortonSide left = SideOf(network.stage[1].Cval.value, C2, ratio, scope);
  const NortonSide right = SideOf(network.stage[3].Cval.value, C2, ratio, scope);
  Network result = network;
  result.Stages = nortonStages;
  MakePart(result.stage[1], ShuntPLC, L, left.end);
  MakePart(result.stage[2], SeriesC, 0, left.coupling);
  MakePart(result.stage[3], ShuntC, 0, left.inner);
  // All three inductors are the first stage's, whatever the others were.
  MakePart(result.stage[4], SeriesL, L, 0);
  MakePart(result.stage[5], ShuntC, 0, right.inner);
  MakePart(result.stage[6], SeriesC, 0, right.coupling);
  MakePart(result.stage[7], ShuntPLC, L, right.end);
  return result;
}

}  // namespace quilm
