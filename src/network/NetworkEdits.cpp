#include "network/NetworkEdits.h"

#include <utility>

#include "core/NumericFault.h"

namespace quilm {

namespace {

constexpr f32 leastSource = 0.01F;  // ohms

void RequireRoom(const Network& network, int stages) {
  if (!HasRoomFor(network, stages)) throw BoundFault();
}

void RequireStage(int at, int last) {
  if (at < 1 || at > last) throw BoundFault();
}

// What moves with a part alone: its type and its values of L and C.
void TakePart(Stage& place, const Stage& part) {
  place.ElementType = part.ElementType;
  place.Lval.value = part.Lval.value;
  place.Cval.value = part.Cval.value;
}

bool IsOfPartsAlone(i16 elementType) { return elementType <= ShuntPLC; }

void MovePart(Stage& from, Stage& to) {
  if (IsOfPartsAlone(from.ElementType)) {
    TakePart(to, from);
  } else {
    to = std::exchange(from, Stage{});
  }
}

}  // namespace

bool HasRoomFor(const Network& network, int stages) { return network.Stages + stages <= network.StagesMax; }

void ClearValues(Stage& stage) {
  const i16 type = stage.ElementType;
  stage = {};
  stage.ElementType = type;
}

void MakePart(Stage& stage, i16 elementType, f32 L, f32 C) {
  stage.ElementType = elementType;
  stage.Lval = {L, 0};
  stage.Cval = {C, 0};
}

void InsertStage(Network& network, int at) {
  RequireStage(at, network.Stages + 1);
  const i16 type = at <= network.Stages ? network.stage[at].ElementType : i16{0};
  MoveStagesUp(network, at, 1);
  network.stage[at].ElementType = type;
}

void DeleteStage(Network& network, int at) {
  RequireStage(at, network.Stages);
  for (int s = at; s <= network.Stages; ++s) network.stage[s] = network.stage[s + 1];
  --network.Stages;
}

void AppendStage(Network& network, const Stage& stage) {
  network.stage[network.Stages + 1] = stage;
  ++network.Stages;
}

void DropLastStage(Network& network) {
  RequireStage(network.Stages, network.Stages);
  ClearValues(network.stage[network.Stages]);
  --network.Stages;
}

bool CutStages(Network& network) {
  if (network.Stages <= network.StagesMax) return false;
  network.Stages = network.StagesMax;
  return true;
}

void ResolveReactance(Stage& stage, f32 X, f32 F) {
  constexpr f64 twoPi = 6.2831853;  // to these figures: what was entered so before comes out the same
  const bool series = stage.ElementType == SeriesReactance;
  NumericFaultScope scope;
  Stage part = stage;
  if (X > 0) {
    part.ElementType = series ? SeriesL : ShuntL;
    part.Lval.value = scope.Store(f64{X} / (f64{F} * twoPi));
  } else {
    part.ElementType = series ? SeriesC : ShuntC;
    part.Cval.value = scope.Store(1 / (-f64{X} * f64{F} * twoPi));
  }
  stage = part;
}

void MoveStagesUp(Network& network, int first, int places) {
  RequireStage(first, network.Stages + 1);
  RequireRoom(network, places);
  for (int s = network.Stages; s >= first; --s) network.stage[s + places] = network.stage[s];
  for (int s = first; s < first + places; ++s) network.stage[s] = {};
  network.Stages = static_cast<i16>(network.Stages + places);
}

void MovePartsUp(Network& network, int first, int places) {
  RequireStage(first, network.Stages + 1);
  if (network.Stages + places > stageBound) throw BoundFault();
  // What an earlier, longer network left behind the last stage is nobody's.
  for (int s = network.Stages + 1; s <= network.Stages + places; ++s) network.stage[s] = {};
  for (int s = network.Stages; s >= first; --s) MovePart(network.stage[s], network.stage[s + places]);
  for (int s = first; s < first + places; ++s) TakePart(network.stage[s], Stage{});
  network.Stages = static_cast<i16>(network.Stages + places);
}

bool RaiseSource(Network& network) {
  if (!(network.Rsource[1] < leastSource)) return false;
  network.Rsource[1] = leastSource;
  return true;
}

void SwapEndForEnd(Network& network) {
  RaiseSource(network);
  std::swap(network.Rsource, network.Rload);
  for (int s = 1; s <= network.Stages / 2; ++s) std::swap(network.stage[s], network.stage[network.Stages + 1 - s]);
}

void ScaleImpedance(Network& network, f32 factor) {
  if (!(factor > 0)) return;
  NumericFaultScope scope;
  Network scaled = network;
  for (f32* resistance : {&scaled.Rsource[1], &scaled.Rload[1], &scaled.Rstandard}) {
    *resistance = scope.Store(f64{*resistance} * f64{factor});
  }
  for (int s = 1; s <= scaled.Stages; ++s) {
    f32& L = scaled.stage[s].Lval.value;
    f32& C = scaled.stage[s].Cval.value;
    if (L > 0) L = scope.Store(f64{L} * f64{factor});
    if (C > 0) C = scope.Store(f64{C} / f64{factor});
  }
  network = scaled;
}

void ScaleFrequency(Network& network, f32 factor, Shift shift) {
  NumericFaultScope scope;
  Network scaled = network;
  for (int s = 1; s <= scaled.Stages; ++s) {
    for (f32* part : {&scaled.stage[s].Lval.value, &scaled.stage[s].Cval.value}) {
      if (!(*part > 0)) continue;
      *part = scope.Store(shift == Shift::Up ? f64{*part} / f64{factor} : f64{*part} * f64{factor});
    }
  }
  network = scaled;
}

}  // namespace quilm
