#include "synthesis/modMderived.h"

#include <algorithm>
#include <cmath>

#include "core/DesignRecord.h"
#include "core/NumericFault.h"
#include "core/Topology.h"
#include "network/DesignStanding.h"

namespace quilm {

namespace {

using ZeroArray = BoundedArray<f32, 1, mostMderivedZeros>;

struct Sections {
  int count = 0;
  ZeroArray ZeroM;
  ZeroArray ZeroSeries;  // inductor of the series arm
  ZeroArray ZeroShunt;   // capacitors of both shunt arms together
  ZeroArray ZeroTank;    // capacitor across the series arm
};

// The zeros one behind the other; unused places follow.
void CloseGaps(DesignRecord& record) {
  int used = 0;
  for (int i = 1; i <= mostMderivedZeros; ++i) {
    const f32 zero = record.MderivedZero[i];
    record.MderivedZero[i] = 0;
    if (zero != 0) record.MderivedZero[++used] = zero;
  }
}

f64 SectionM(const DesignRecord& record, f32 zero) {
  const f64 ratio = IsHighpass(record.Topology) ? static_cast<f64>(zero) / static_cast<f64>(record.Width)
                                                : static_cast<f64>(record.Width) / static_cast<f64>(zero);
  return std::sqrt(1 - ratio * ratio);
}

Sections SectionsOf(const DesignRecord& record, NumericFaultScope& scope) {
  Sections sections;
  for (int i = 1; i <= mostMderivedZeros && record.MderivedZero[i] != 0; ++i) {
    const f32 m = scope.Store(SectionM(record, record.MderivedZero[i]));
    const f64 quarter = (1 - f64{m} * f64{m}) / (4 * f64{m});
    sections.ZeroM[i] = m;
    sections.ZeroSeries[i] = m + m;
    sections.ZeroTank[i] = scope.Store(quarter + quarter);
    sections.ZeroShunt[i] = m + m;
    sections.count = i;
  }
  return sections;
}

// Puts the arms of the ladder down one after the other: shunt arms at the odd places, series arms at the even ones.
class Chain {
 public:
  explicit Chain(DesignRecord& record) : record_(record) {
    record.Gj.Fill(0);
    record.Hj.Fill(0);
  }

  void Shunt(f32 capacitor) { record_.Gj[++places_] = capacitor; }
  void Series(f32 inductor, f32 capacitor) {
    record_.Hj[++places_] = inductor;
    record_.Gj[places_] = capacitor;
  }

  // Half a section's series arm has half its inductor, and so twice the capacitor across it.
  void HalfSection(const Sections& sections, int i) { Series(sections.ZeroSeries[i] / 2, 2 * sections.ZeroTank[i]); }

  int Places() const { return places_; }

 private:
  DesignRecord& record_;
  int places_ = 0;
};

int BuildChain(DesignRecord& record, const Sections& sections) {
  Chain chain(record);
  const int last = sections.count;
  if (last == 0) return 0;
  constexpr f32 constantK = 1;  // half the shunt arm of the constant-K section
  f32 former = constantK;
  chain.Shunt(0);
  chain.HalfSection(sections, 1);
  chain.Shunt(sections.ZeroShunt[1] / 2 + constantK);
  chain.Series(2, 0);
  for (int i = 2; i < last; ++i) {
    chain.Shunt(former + sections.ZeroShunt[i] / 2);
    chain.Series(sections.ZeroSeries[i], sections.ZeroTank[i]);
    former = sections.ZeroM[i];
  }
  chain.Shunt(former + sections.ZeroShunt[last] / 2);
  chain.HalfSection(sections, last);
  chain.Shunt(0);
  return chain.Places();
}

}  // namespace

bool IsInStopband(const DesignRecord& record, f32 zero) {
  // The sections square both frequencies, so that one below 0 would be built as the one above.
  if (!(zero > 0)) return false;
  return IsHighpass(record.Topology) ? zero < record.Width : zero > std::abs(record.Width);
}

bool HasMderivedZeros(const Entries& entries) {
  const auto* first = &entries.MderivedZero[1];
  return std::any_of(first, first + mostMderivedZeros, [](f32 zero) { return zero != 0; });
}

void ComputeMderived(DesignRecord& record) {
  NumericFaultScope scope;
  CloseGaps(record);
  const Sections sections = SectionsOf(record, scope);
  record.Order = static_cast<f32>(BuildChain(record, sections));
  if (sections.count == 0) record.Stages = 0;
  record.FstopNorm = 0;
  record.Rratio = 1;
  record.CauerFlag = 1;
  ForgetResponses(record);
}

}  // namespace quilm
