#include "timedomain/SpectralLines.h"

#include <cmath>

#include <memory>

#include "analysis/Kernel.h"
#include "analysis/SweepTable.h"
#include "core/DesignRecord.h"

namespace quilm {

f64 VoltageRatio(const LineResponse& line) { return std::pow(10.0, line.TransDB / 20); }

std::vector<LineResponse> ResponseAtLines(const DesignRecord& record, std::span<const f32> frequencies) {
  std::vector<LineResponse> lines(frequencies.size());
  if (record.Stages == 0) return lines;
  std::vector<Figures> figures(frequencies.size());
  Evaluate(Compile(record, QualityFrequency(record, record)), frequencies, figures);
  LineResponse last;
  for (std::size_t i = 0; i < lines.size(); ++i) {
    if (figures[i].reached >= reachedTransmission) last = {figures[i].transDB, figures[i].angle};
    lines[i] = last;
  }
  return lines;
}

std::vector<f32> FrequenciesOf(const SweepSettings& sweep) {
  const auto table = std::make_unique<SweepTable>();
  KeepTable(*table, sweep);
  return {table->frequency.begin(), table->frequency.begin() + table->points};
}

}  // namespace quilm
