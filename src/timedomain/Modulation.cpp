#include "timedomain/Modulation.h"

#include <algorithm>
#include <cmath>

#include "analysis/Ladder.h"
#include "core/DesignRecord.h"
#include "core/NumericFault.h"
#include "timedomain/SpectralLines.h"

namespace quilm {

namespace {

constexpr f32 usualBottom = -60;    // dB
constexpr f32 lowestStart = 0.01F;  // Hz
constexpr f32 stopOverStart = 10;   // where no stop makes sense

f32 SidebandRatio(const LineResponse& line) { return static_cast<f32>(VoltageRatio(line)); }

// A ladder that passes nothing has no largest response to refer to.
void MakeRelative(std::vector<f32>& response) {
  const f32 largest = *std::max_element(response.begin(), response.end());
  if (!(largest > 0)) return;
  for (f32& value : response) value /= largest;
}

}  // namespace

void HoldModulation(ModulationEntries& entries) {
  entries.ModBottom = entries.ModBottom == 0 ? usualBottom : -std::fabs(entries.ModBottom);
  entries.ModFstart = std::max(entries.ModFstart, lowestStart);
  if (entries.ModFstop <= entries.ModFstart) entries.ModFstop = stopOverStart * entries.ModFstart;
}

f32 CarrierOf(const DesignRecord& record) {
  try {
    return QualityFrequency(record, record);
  } catch (const NumericFault&) {
    return 0;
  }
}

Modulation ComputeModulation(const DesignRecord& record, f32 ModCarrier, const ModulationEntries& entries) {
  Modulation made;
  made.ModFreq = FrequenciesOf({ModSweepMode, entries.ModFstart, entries.ModFstop, f32{ModPoints}});
  const std::size_t count = made.ModFreq.size();
  // All lower lines and then all upper ones, so that a line which fails repeats one of its own side.
  std::vector<f32> lines(2 * count);
  for (std::size_t i = 0; i < count; ++i) {
    lines[i] = ModCarrier - made.ModFreq[i];
    lines[count + i] = ModCarrier + made.ModFreq[i];
  }
  const std::vector<LineResponse> found = ResponseAtLines(record, lines);
  for (std::size_t i = 0; i < count; ++i) {
    made.ModLower.push_back(lines[i] == 0 ? 0 : SidebandRatio(found[i]));
    made.ModUpper.push_back(SidebandRatio(found[count + i]));
    made.ModResponse.push_back((made.ModUpper[i] + made.ModLower[i]) * 0.5F);
  }
  if (entries.ModRelative == 1) MakeRelative(made.ModResponse);
  return made;
}

}  // namespace quilm
