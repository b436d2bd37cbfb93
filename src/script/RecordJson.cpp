#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

#include "core/ElementCatalogue.h"
#include "script/Json.h"
#include "script/ScriptPlatform.h"

namespace quilm {

namespace {

Json ToJson(f32 value) { return NumberJson(value); }
Json ToJson(i16 value) { return value; }
Json ToJson(const std::string& value) { return value; }

template <class T, int First, int Last>
Json ToJson(const BoundedArray<T, First, Last>& items, int last = Last) {
  Json list = Json::array();
  for (int i = 1; i <= last; ++i) list.push_back(ToJson(items[i]));
  return list;
}

// Values, then tolerances.
Json ToJson(const Stage& stage, StageColumn column) {
  Json list = Json::array();
  for (const Slot& slot : SlotsIn(column)) list.push_back(NumberJson(slot.value(stage)));
  for (const Slot& slot : SlotsIn(column)) {
    if (slot.tolerance) list.push_back(NumberJson(slot.tolerance(stage)));
  }
  return list;
}

// How much of the prototype is in use.
int PrototypeLength(const DesignRecord& record) {
  const f32 order = std::clamp(record.Order, 0.0F, static_cast<f32>(orderLimit));
  return static_cast<int>(std::lround(order));
}

struct Field {
  std::string_view name;
  Json (*read)(const DesignRecord&);
};

#define QUILM_FIELD(name)                                                 \
  Field {                                                                 \
    #name, [](const DesignRecord& record) { return ToJson(record.name); } \
  }

// In the record's order.
const std::array fields{
    QUILM_FIELD(Family),
    QUILM_FIELD(Topology),
    QUILM_FIELD(Order),
    QUILM_FIELD(OrderMax),
    QUILM_FIELD(Stages),
    QUILM_FIELD(StagesMax),
    QUILM_FIELD(NetworkEdited),
    QUILM_FIELD(MatchAccepted),
    QUILM_FIELD(ResponsesValid),
    QUILM_FIELD(DesignChanged),
    QUILM_FIELD(CircuitTitle),
    QUILM_FIELD(AddedInfo),
    QUILM_FIELD(DesignDate),
    QUILM_FIELD(DesignFileName),
    QUILM_FIELD(Width),
    QUILM_FIELD(Fcenter),
    QUILM_FIELD(Fstopband),
    QUILM_FIELD(FstopNorm),
    QUILM_FIELD(Apass),
    QUILM_FIELD(Astop),
    QUILM_FIELD(CauerFlag),
    QUILM_FIELD(CauerType),
    QUILM_FIELD(CauerTop),
    QUILM_FIELD(Rsource),
    QUILM_FIELD(Rload),
    QUILM_FIELD(Rratio),
    QUILM_FIELD(Rstandard),
    QUILM_FIELD(Qind),
    QUILM_FIELD(Qcap),
    QUILM_FIELD(MderivedZero),
    Field{"Gj", [](const DesignRecord& record) { return ToJson(record.Gj, PrototypeLength(record)); }},
    Field{"Hj", [](const DesignRecord& record) { return ToJson(record.Hj, PrototypeLength(record)); }},
    QUILM_FIELD(SweepMode),
    QUILM_FIELD(Fstart),
    QUILM_FIELD(Fstop),
    QUILM_FIELD(NrIntervals),
    QUILM_FIELD(NrXints),
    QUILM_FIELD(NrYints),
    QUILM_FIELD(LossBottom),
    QUILM_FIELD(DelayTop),
    QUILM_FIELD(DelayBottom),
    QUILM_FIELD(VSWRTop),
    QUILM_FIELD(ImpedanceTop),
    QUILM_FIELD(RelativeMode),
    QUILM_FIELD(AbsoluteMode),
    QUILM_FIELD(MagnifyMode),
    QUILM_FIELD(PlotLineWidth),
    QUILM_FIELD(SmithAspect),
    QUILM_FIELD(Units),
    QUILM_FIELD(PlotCode),
    QUILM_FIELD(TopologyHelpCode),
    QUILM_FIELD(LimitCount),
    QUILM_FIELD(LimitShape),
    QUILM_FIELD(LimitStart),
    QUILM_FIELD(LimitStop),
    QUILM_FIELD(LimitTop),
    QUILM_FIELD(LimitBottom),
    QUILM_FIELD(MarkerFreq),
    QUILM_FIELD(LimitsShown),
    QUILM_FIELD(MarkersShown)};
#undef QUILM_FIELD

struct ColumnName {
  std::string_view name;
  StageColumn column;
};

constexpr std::array columns{ColumnName{"Lval", StageColumn::L},        ColumnName{"Cval", StageColumn::C},
                             ColumnName{"Rval", StageColumn::R},        ColumnName{"TLval", StageColumn::Line},
                             ColumnName{"XfmrVal", StageColumn::Turns}, ColumnName{"CoupledVal", StageColumn::Coupled}};
constexpr std::string_view typeName = "ElementType";

using Names = std::vector<std::string>;

bool Contains(const Names& names, std::string_view name) {
  return std::find(names.begin(), names.end(), name) != names.end();
}

template <class Table>
bool HasField(const Table& table, std::string_view name) {
  return std::any_of(table.begin(), table.end(), [name](const auto& field) { return field.name == name; });
}

bool IsOfStages(const std::string& name) { return name == typeName || HasField(columns, name); }

void RequireKnown(const Names& names) {
  for (const std::string& name : names) {
    if (name != "stages" && !HasField(fields, name) && !IsOfStages(name)) {
      throw CommandFailure{"the record has no field " + name};
    }
  }
}

Json StagesJson(const Network& network, const Names& names, bool whole) {
  Json list = Json::array();
  const auto asked = [&names, whole](std::string_view name) { return whole || Contains(names, name); };
  const int stages = std::clamp<int>(network.Stages, 0, stageBound);
  for (int s = 1; s <= stages; ++s) {
    const Stage& from = network.stage[s];
    Json stage = Json::object();
    if (asked(typeName)) stage[std::string(typeName)] = from.ElementType;
    for (const auto& [name, column] : columns) {
      if (asked(name)) stage[std::string(name)] = ToJson(from, column);
    }
    list.push_back(std::move(stage));
  }
  return list;
}

}  // namespace

Json RecordEvent(const DesignRecord& record, const std::vector<std::string>& names) {
  RequireKnown(names);
  Json values = Json::object();
  for (const Field& field : fields) {
    if (names.empty() || Contains(names, field.name)) values[std::string(field.name)] = field.read(record);
  }
  Json event{{"event", "record"}, {"record", std::move(values)}};
  const bool whole = names.empty() || Contains(names, "stages");
  if (whole || std::any_of(names.begin(), names.end(), IsOfStages)) event["stages"] = StagesJson(record, names, whole);
  return event;
}

}  // namespace quilm
