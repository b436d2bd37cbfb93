#include "diplexer/DiplexerTuning.h"

#include <algorithm>
#include <cmath>

#include "core/EntryLimits.h"
#include "diplexer/DiplexerArms.h"
#include "network/modNearest5.h"

namespace quilm {

namespace {

f32 Stepped(f32 value, f64 factor, StepWay way) {
  const f64 from = static_cast<f64>(value);
  return static_cast<f32>(way == StepWay::Up ? from * factor : from / factor);
}

// A designed entry takes its next value.
template <class Number>
bool Take(Diplexer& diplexer, Number& entry, Number next) {
  if (next == entry) return false;
  entry = next;
  diplexer.DipFrozen = 0;
  return true;
}

bool StepWithin(Diplexer& diplexer, f32& entry, f64 factor, StepWay way, const EntryLimits& limits) {
  return Take(diplexer, entry, limits.Held(Stepped(entry, factor, way)));
}

constexpr f64 edgeFactor = 1 + static_cast<f64>(EdgeStep);

}  // namespace

bool StepDipOrder(Diplexer& diplexer, StepWay way, i16 OrderMax) {
  return SetDipOrder(diplexer, diplexer.DipOrder + (way == StepWay::Up ? 1 : -1), OrderMax);
}

bool SetDipOrder(Diplexer& diplexer, i32 order, i16 OrderMax) {
  const f32 most = std::min(limitsOf::DipOrder.highest, static_cast<f32>(OrderMax));
  const f32 held = std::max(std::min(static_cast<f32>(order), most), limitsOf::DipOrder.lowest);
  return Take(diplexer, diplexer.DipOrder, static_cast<i16>(held));
}

bool StepCrossover(Diplexer& diplexer, StepWay way) {
  constexpr f64 factor = 1.01;
  return StepWithin(diplexer, diplexer.DipCrossover, factor, way, limitsOf::DipCrossover);
}

bool StepDipRipple(Diplexer& diplexer, StepWay way) {
  constexpr f64 factor = 1.1;
  return StepWithin(diplexer, diplexer.DipRipple, factor, way, limitsOf::DipRipple);
}

bool StepLowerEdge(Diplexer& diplexer, StepWay way) {
  constexpr f64 nearest = 0.99;  // to the upper edge, from where a step still goes up
  const f64 upper = static_cast<f64>(diplexer.DipFupper);
  if (way == StepWay::Up && !(nearest * upper > static_cast<f64>(diplexer.DipFlower))) return false;
  return StepWithin(diplexer, diplexer.DipFlower, edgeFactor, way, limitsOf::DipBandEdge);
}

bool StepUpperEdge(Diplexer& diplexer, StepWay way) {
  constexpr f64 nearest = 1.01;  // to the lower edge
  const f64 next = static_cast<f64>(Stepped(diplexer.DipFupper, edgeFactor, way));
  if (way == StepWay::Down && !(next >= nearest * static_cast<f64>(diplexer.DipFlower))) return false;
  return StepWithin(diplexer, diplexer.DipFupper, edgeFactor, way, limitsOf::DipBandEdge);
}

void RoundDipCapacitors(Diplexer& diplexer) {
  for (const i16 arm : ArmsOf(diplexer.DipMode)) {
    for (int k = 1; k <= diplexer.DipOrder; ++k) {
      if (f32* C = ArmCapacitor(diplexer, arm, k)) *C = NearestE24(*C);
    }
  }
  diplexer.DipFrozen = 1;
}

bool StepDipPart(Diplexer& diplexer, f32& part, StepWay way) {
  const f32 next = Stepped(part, 1 + static_cast<f64>(DipTuneStep), way);
  if (!std::isnormal(next)) return false;
  part = next;
  diplexer.DipFrozen = 1;
  return true;
}

}  // namespace quilm
