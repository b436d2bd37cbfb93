#include "synthesis/MakeNetwork.h"

#include <algorithm>
#include <array>

#include "core/DesignRecord.h"
#include "core/ElementCatalogue.h"
#include "core/NumericFault.h"
#include "core/Topology.h"
#include "synthesis/Topologies.h"

namespace quilm {

namespace {

// What the load becomes: the source, the source times Rratio, the source over Rratio, or what the topology set itself.
enum class Load { Source, Ratio, Inverse, Own };

struct TopologyRow {
  const char* letter;
  int (*build)(Scales&);
  // By family: Butterworth; Bessel and Gaussian; Gaussian to 12; Chebyshev; Cauer, Constant-K and M-derived; others.
  std::array<Load, 6> load;
};

constexpr Load S = Load::Source;
constexpr Load R = Load::Ratio;
constexpr Load I = Load::Inverse;
constexpr Load O = Load::Own;

// Chebyshev and Cauer of even order need an unequal load; so do the unequally terminated tables in the coupled forms,
// where all resonators are alike. The column of Gaussian to 12 leaves that family mismatched in "B", "C", "D" and "I"
// to "L": designs of it are stored and built with these loads, and computing one again must give the same network.
const std::array<TopologyRow, 12> topologies = {{
    {"A", BuildCapInLowpass, {S, S, S, R, R, S}},
    {"B", BuildIndInLowpass, {S, S, I, I, I, S}},
    {"C", BuildNodalCapacitorCoupled, {S, R, S, S, S, R}},
    {"D", BuildNodalInductorCoupled, {S, R, S, S, S, R}},
    {"E", BuildShuntInBandpass, {S, S, S, R, S, S}},
    {"F", BuildSeriesInBandpass, {S, S, S, I, S, S}},
    {"G", BuildMeshCapacitorCoupled, {S, I, I, S, S, I}},
    {"H", BuildCauerBandpass, {O, O, O, O, O, O}},
    {"I", BuildCapInHighpass, {S, S, I, I, I, S}},
    {"J", BuildIndInHighpass, {S, S, R, R, R, S}},
    {"K", BuildSeriesInBandstop, {S, S, I, I, I, S}},
    {"L", BuildShuntInBandstop, {S, S, R, R, R, S}},
}};

const TopologyRow* FindTopology(const std::string& letter) {
  const auto row = std::find_if(topologies.begin(), topologies.end(),
                                [&letter](const TopologyRow& candidate) { return candidate.letter == letter; });
  return row == topologies.end() ? nullptr : &*row;
}

std::size_t LoadColumn(i16 family) {
  switch (family) {
    case familyButterworth:
      return 0;
    case familyBessel:
    case familyGaussian:
      return 1;
    case familyGaussian12:
      return 2;
    case familyChebyshev:
      return 3;
    case familyCauer:
    case familyConstantK:
    case familyMderived:
      return 4;
    default:
      return 5;
  }
}

void SetLoad(DesignRecord& record, Scales& scales, Load rule) {
  if (rule == Load::Own) return;
  if (record.Topology == "B" && record.Rratio <= 0) record.Rratio = 1;
  f64 load = scales.Rs;
  if (rule == Load::Ratio) load = record.Rratio * scales.Rs;
  if (rule == Load::Inverse) load = scales.Rs / record.Rratio;
  record.Rload[1] = scales.scope.Store(load);
}

// A negative one would give parts as negative.
void RequireWidth(const Entries& entries) {
  if (!(entries.Width > 0)) throw NumericFault("There is no bandwidth");
}

// Tolerances and element types stay.
void ClearStages(Network& network) {
  for (Stage& stage : network.stage) {
    for (const Slot& slot : AllSlots()) slot.value(stage) = 0;
  }
}

// A prototype routine that failed leaves nothing but zeros, from which a lowpass without any stage would follow.
void RequirePrototype(const Prototype& prototype, int n) {
  for (int j = 1; j <= n; ++j) {
    if (prototype.Gj[j] != 0 || prototype.Hj[j] != 0) return;
  }
  throw NumericFault("There is no prototype");
}

bool IsEmpty(const Stage& stage) { return stage.Lval.value == 0 && stage.Cval.value == 0; }

// Moves all stages behind s down one place; a blank one comes in at the end.
void CloseGap(Network& network, int s) {
  for (int t = s; t <= network.Stages; ++t) {
    const Stage next = t < network.Stages ? network.stage[t + 1] : Stage{};
    network.stage[t].ElementType = next.ElementType;
    network.stage[t].Lval = next.Lval;
    network.stage[t].Cval = next.Cval;
  }
}

// Takes out the places without a part. Each place is looked at once while the stages move down, so the second of two
// empty neighbours stays; and it is then counted with the blanks at the end, at the cost of the last part. One look is
// enough, since no prototype gives a topology two such neighbours.
void CleanUp(Network& network) {
  const int places = network.Stages;
  for (int s = 1; s <= places; ++s) {
    if (IsEmpty(network.stage[s])) CloseGap(network, s);
  }
  for (int s = 1; s <= places; ++s) {
    if (IsEmpty(network.stage[s])) --network.Stages;
  }
}

void Build(const TopologyRow& row, DesignRecord& record) {
  NumericFaultScope scope;
  ClearStages(record);
  record.Stages = 0;
  RequireWidth(record);
  Scales scales(record, scope);
  RequirePrototype(record, scales.n);
  const int places = row.build(scales);
  SetLoad(record, scales, row.load[LoadColumn(record.Family)]);
  if (IsLowOrHighpass(record.Topology)) record.Fcenter = 0;
  record.Stages = ToI16(places);
  CleanUp(record);
}

}  // namespace

Scales::Scales(DesignRecord& design, NumericFaultScope& faults)
    : entries(design),
      prototype(design),
      network(design),
      scope(faults),
      n(ToI16(design.Order)),
      Rs(design.Rsource[1]),
      OmegaCenter(faults.Store(2 * Pi * design.Fcenter)),
      OmegaWidth(faults.Store(2 * Pi * design.Width)),
      QLoaded(faults.Store(f64{OmegaCenter} / OmegaWidth)) {}

void Scales::Put(int s, ElementCode type, f64 henries, f64 farads) {
  network.stage[s].ElementType = type;
  network.stage[s].Lval.value = scope.Store(henries);
  network.stage[s].Cval.value = scope.Store(farads);
}

void MakeNetwork(DesignRecord& record) {
  if (const TopologyRow* row = FindTopology(record.Topology)) Build(*row, record);
}

}  // namespace quilm
