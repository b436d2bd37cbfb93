#include "synthesis/EndSections.h"

#include <cmath>

#include "core/ElementCatalogue.h"
#include "core/NumericFault.h"
#include "core/Topology.h"
#include "network/DesignStanding.h"
#include "network/NetworkEdits.h"

namespace quilm {

namespace {

struct TunedArm {
  i16 ElementType;
  f32 inductor;
  f32 capacitor;
};

// The tuned arm before an end element, and what the end element becomes.
struct EndSection {
  TunedArm arm;
  f32 endValue;
};

// The one value of a stage that is a single part.
f32& ValueOf(Stage& stage) { return SlotsOf(stage.ElementType).front().value(stage); }
f64 ValueOf(const Stage& stage) { return SlotsOf(stage.ElementType).front().value(stage); }

// The element that alternates with `type` in a ladder; 0 for one that no all-pole lowpass or highpass has.
i16 PartnerOf(i16 type) {
  switch (type) {
    case ShuntC:
      return SeriesL;
    case SeriesL:
      return ShuntC;
    case SeriesC:
      return ShuntL;
    case ShuntL:
      return SeriesC;
    default:
      return 0;
  }
}

// The half section before an end element, from that element and its neighbour. At the end of a constant-K ladder the
// end element is half an arm and the neighbour a whole one. The highpass forms are the lowpass ones with reciprocal
// values.
EndSection SectionAt(const Stage& end, const Stage& neighbour, f32 parameter, NumericFaultScope& scope) {
  const f64 m = parameter;
  const f64 rest = 1 - m * m;
  const f64 own = ValueOf(end);
  const f64 next = ValueOf(neighbour);
  const auto section = [&scope](i16 type, f64 inductor, f64 capacitor, f64 endValue) {
    return EndSection{{type, scope.Store(inductor), scope.Store(capacitor)}, scope.Store(endValue)};
  };
  switch (end.ElementType) {
    case ShuntC:
      return section(SeriesPLC, next * 0.5 * m, rest * own / m, own + m * own);
    case SeriesL:
      return section(ShuntSLC, rest * own / m, next * 0.5 * m, own + m * own);
    case SeriesC:
      return section(ShuntSLC, 2 * next / m, m * own / rest, own / (1 + m));
    default:
      return section(SeriesPLC, m * own / rest, 2 * next / m, own / (1 + m));
  }
}

Stage StageOf(const TunedArm& arm) {
  Stage stage{};
  stage.ElementType = arm.ElementType;
  stage.Lval.value = arm.inductor;
  stage.Cval.value = arm.capacitor;
  return stage;
}

void RequireSection(f32 m) {
  if (!(m > 0 && m < 1)) throw NumericFault("There is no section of this m");
}

}  // namespace

std::string EndSectionObstacle(const DesignRecord& record) {
  if (!IsLowOrHighpass(record.Topology)) return "End sections are for lowpass and highpass filters.";
  const int last = record.Stages;
  if (last < 2) return "End sections need a network of at least two stages.";
  if (!HasRoomFor(record, 2)) return "There is no room for two more stages.";
  const auto pairs = [&record](int end, int neighbour) {
    const i16 partner = PartnerOf(record.stage[end].ElementType);
    return partner != 0 && record.stage[neighbour].ElementType == partner;
  };
  if (!pairs(1, 2) || !pairs(last, last - 1)) {
    return "End sections need plain inductors and capacitors at both ends of the network.";
  }
  return {};
}

f32 EndSectionZero(const DesignRecord& record, f32 m) {
  RequireSection(m);
  NumericFaultScope scope;
  const TunedArm arm = SectionAt(record.stage[1], record.stage[2], m, scope).arm;
  return scope.Store(1 / (2 * Pi * std::sqrt(f64{arm.inductor} * f64{arm.capacitor})));
}

void AddEndSections(DesignRecord& record, f32 m) {
  RequireSection(m);
  NumericFaultScope scope;
  const int last = record.Stages;
  const EndSection atSource = SectionAt(record.stage[1], record.stage[2], m, scope);
  const EndSection atLoad = SectionAt(record.stage[last], record.stage[last - 1], m, scope);
  MoveStagesUp(record, 1, 1);
  MoveStagesUp(record, last + 2, 1);
  record.stage[1] = StageOf(atSource.arm);
  ValueOf(record.stage[2]) = atSource.endValue;
  ValueOf(record.stage[last + 1]) = atLoad.endValue;
  record.stage[last + 2] = StageOf(atLoad.arm);
  StandByHand(record);
}

}  // namespace quilm
