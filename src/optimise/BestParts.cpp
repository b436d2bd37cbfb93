#include "optimise/BestParts.h"

#include <algorithm>

#include "core/ElementCatalogue.h"

namespace quilm {

namespace {

// Calls act(copy, part) for L, C and R of each stage, in this order.
template <class Best, class Net, class Act>
void ForEachPart(Best& best, Net& network, Act act) {
  for (int s = 1; s <= best.Stages; ++s) {
    auto& stage = network.stage[s];
    act(best.BestL[s], stage.Lval);
    act(best.BestC[s], stage.Cval);
    act(best.BestR[s], stage.Rval);
  }
}

}  // namespace

void TakeParts(const Network& network, BestParts& best) {
  best.Stages = network.Stages;
  ForEachPart(best, network, [](PartValue& copy, const PartValue& part) { copy = part; });
}

void TakeValues(const Network& network, BestParts& best) {
  ForEachPart(best, network, [](PartValue& copy, const PartValue& part) { copy.value = part.value; });
}

void WriteParts(const BestParts& best, Network& network) {
  ForEachPart(best, network, [](const PartValue& copy, PartValue& part) { part = copy; });
}

void WriteValues(const BestParts& best, Network& network) {
  ForEachPart(best, network, [](const PartValue& copy, PartValue& part) { part.value = copy.value; });
}

void TryValues(const BestParts& best, const Travel& travel, UniformNumbers& random, Network& network) {
  ForEachPart(best, network, [&](const PartValue& copy, PartValue& part) {
    const f64 r = random.Next();
    const f64 step = static_cast<f64>(copy.tolerance) * travel.perPercent;
    part.value = static_cast<f32>(static_cast<f64>(copy.value) * (1 + travel.times * (r - 0.5) * step));
  });
}

bool HasStepsize(const Network& network) {
  for (int s = 1; s <= network.Stages; ++s) {
    const Stage& stage = network.stage[s];
    const auto slots = SlotsOf(stage.ElementType);
    const auto isStepped = [&stage](const Slot& slot) { return slot.tolerance && slot.tolerance(stage) > 0; };
    if (std::any_of(slots.begin(), slots.end(), isStepped)) return true;
  }
  return false;
}

}  // namespace quilm
