#include "network/TuneList.h"

#include <algorithm>

#include "core/Network.h"
#include "core/NumericFault.h"

namespace quilm {

namespace {

constexpr int placesBehind = 4;
constexpr f32 turnsStepBehind = 2;
constexpr f64 percent = 0.01;

TuneKind KindOf(SlotCode slot) {
  switch (slot) {
    case SlotCode::Inductance:
      return TuneKind::Inductor;
    case SlotCode::Capacitance:
      return TuneKind::Capacitor;
    case SlotCode::Resistance:
      return TuneKind::Resistor;
    case SlotCode::LineImpedance:
      return TuneKind::LineImpedance;
    case SlotCode::TurnsRatio:
      return TuneKind::TurnsRatio;
    case SlotCode::PrimaryInductance:
      return TuneKind::Primary;
    case SlotCode::SecondaryInductance:
      return TuneKind::Secondary;
    case SlotCode::Coupling:
      return TuneKind::Coupling;
    case SlotCode::LineLength:
    case SlotCode::LineFrequency:
      break;
  }
  return TuneKind::LineLength;
}

enum class Pairs { Listed, LeftOut };

void AddStage(TuneList& list, const Network& network, i16 s, Pairs pairs) {
  const Stage& stage = network.stage[s];
  for (const Slot& slot : SlotsOf(stage.ElementType)) {
    if (!slot.tolerance) continue;
    list.push_back({s, KindOf(slot.code), slot.tolerance(stage)});
    const bool tuned = slot.code == SlotCode::Capacitance && HasSlot(stage.ElementType, SlotCode::Inductance);
    if (tuned && pairs == Pairs::Listed) {
      list.push_back({s, TuneKind::Pair, stage.Cval.tolerance + stage.Lval.tolerance});
    }
  }
}

TuneList Items(const Network& network, Pairs pairs) {
  TuneList list;
  for (i16 s = 1; s <= network.Stages; ++s) AddStage(list, network, s, pairs);
  return list;
}

// The value and the step of what belongs to the network as a whole; nullptr for what belongs to a stage.
ValueAndCopy* WholeOf(Network& network, TuneKind kind) {
  switch (kind) {
    case TuneKind::Source:
      return &network.Rsource;
    case TuneKind::Load:
      return &network.Rload;
    case TuneKind::InductorQ:
      return &network.Qind;
    case TuneKind::CapacitorQ:
      return &network.Qcap;
    default:
      return nullptr;
  }
}

const Slot* SlotWith(TuneKind kind) {
  const auto slots = AllSlots();
  const auto at = std::ranges::find_if(slots, [kind](const Slot& s) { return s.tolerance && KindOf(s.code) == kind; });
  return at == slots.end() ? nullptr : &*at;
}

// What a value becomes. A product that underflows to 0 could never be stepped back.
f32 Moved(NumericFaultScope& scope, f32 from, f64 to) {
  const f32 moved = scope.Store(to);
  if (moved == 0 && from != 0) throw NumericFault("Underflow");
  return moved;
}

void MoveStage(NumericFaultScope& scope, Stage& stage, TuneKind kind, f32 multiplier) {
  const auto slots = SlotsOfItem(kind);
  for (const Slot* slot : slots) {
    f32& value = slot->value(stage);
    if (kind == TuneKind::LineLength) {
      value = scope.Store(f64{value} - f64{multiplier});
    } else if (kind == TuneKind::Pair && slot->code == SlotCode::Capacitance) {
      value = Moved(scope, value, f64{value} / f64{multiplier});
    } else {
      value = Moved(scope, value, f64{value} * f64{multiplier});
    }
  }
}

}  // namespace

TuneList ItemsForTuning(const Network& network, f32 couplingStep) {
  TuneList list = Items(network, Pairs::Listed);
  for (TuneItem& item : list) {
    if (item.kind == TuneKind::Coupling && item.TuneStep == 0) item.TuneStep = couplingStep == 0 ? 1 : couplingStep;
  }
  list.push_back({0, TuneKind::Source, network.Rsource[2]});
  list.push_back({0, TuneKind::Load, network.Rload[2]});
  list.push_back({0, TuneKind::InductorQ, network.Qind[2]});
  list.push_back({0, TuneKind::CapacitorQ, network.Qcap[2]});
  return list;
}

TuneList ItemsOfStages(const Network& network) { return Items(network, Pairs::LeftOut); }

void ClearPlacesBehind(Network& network) {
  const int last = std::min(network.Stages + placesBehind, stageBound);
  for (int s = network.Stages + 1; s <= last; ++s) {
    network.stage[s] = {};
    network.stage[s].XfmrVal.tolerance = turnsStepBehind;
  }
}

std::vector<const Slot*> SlotsOfItem(TuneKind kind) {
  if (kind == TuneKind::Pair) return {SlotWith(TuneKind::Inductor), SlotWith(TuneKind::Capacitor)};
  const Slot* slot = SlotWith(kind);
  return slot == nullptr ? std::vector<const Slot*>{} : std::vector<const Slot*>{slot};
}

void StoreStep(Network& network, const TuneItem& item, f32 step) {
  if (ValueAndCopy* whole = WholeOf(network, item.kind)) {
    (*whole)[2] = step;
    return;
  }
  const auto slots = SlotsOfItem(item.kind);
  for (const Slot* slot : slots) {
    slot->tolerance(network.stage[item.TuneStage]) = step / static_cast<f32>(slots.size());
  }
}

void StoreStepOfAll(Network& network, f32 percentStep) {
  for (int s = 1; s <= network.Stages; ++s) {
    for (const Slot& slot : AllSlots()) {
      if (slot.tolerance) slot.tolerance(network.stage[s]) = percentStep;
    }
  }
}

f32 TuneMultiplier(TuneKind kind, f32 step, StepWay way) {
  if (kind == TuneKind::LineLength) return way == StepWay::Up ? -step : step;
  const f64 up = 1 + f64{step} * percent;
  return static_cast<f32>(way == StepWay::Up ? up : 1 / up);
}

void ApplyStep(Network& network, const TuneItem& item, f32 multiplier) {
  NumericFaultScope scope;
  if (ValueAndCopy* whole = WholeOf(network, item.kind)) {
    (*whole)[1] = Moved(scope, (*whole)[1], f64{(*whole)[1]} * f64{multiplier});
    return;
  }
  Stage stage = network.stage[item.TuneStage];
  MoveStage(scope, stage, item.kind, multiplier);
  network.stage[item.TuneStage] = stage;
}

}  // namespace quilm
