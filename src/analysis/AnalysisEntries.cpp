#include "analysis/AnalysisEntries.h"

#include <algorithm>
#include <cmath>

#include "core/DesignRecord.h"
#include "core/EntryLimits.h"
#include "core/NumericFault.h"
#include "core/modGeneral.h"

namespace quilm {

namespace {

f32 AboveZero(f32 configured, f32 otherwise) { return configured > 0 ? configured : otherwise; }

f32 DelayOfDesign(const DesignRecord& record, f32 configured, f32 otherwise) {
  if (record.Width > 0 && record.Order > 0) {
    const f32 delay = record.Order * 0.3F / record.Width;
    if (std::isfinite(delay)) return delay;
  }
  return AboveZero(configured, otherwise);
}

f32 ReferenceOf(const DesignRecord& record) {
  if (record.Rsource[1] > limitsOf::leastEntered) return record.Rsource[1];
  if (record.Rload[1] > limitsOf::leastEntered) return record.Rload[1];
  return 50;
}

std::string Trimmed(std::string figure) {
  while (!figure.empty() && figure.back() == ' ') figure.pop_back();
  return figure;
}

// One blank between a figure and its unit, whether its format ends in one or not.
std::string WithUnit(const std::string& figure, const char* unit) { return Trimmed(figure) + ' ' + unit; }

}  // namespace

void FillMissingQualities(Network& network, const Configuration& configuration) {
  if (network.Qind[1] <= 0) network.Qind[1] = AboveZero(configuration.ConfigValue[lineQind], 200);
  if (network.Qcap[1] <= 0) network.Qcap[1] = AboveZero(configuration.ConfigValue[lineQcap], 2000);
}

void FillMissingEntries(DesignRecord& record, const Configuration& configuration) {
  const auto& configured = configuration.ConfigValue;
  if (record.Fstart <= 0) record.Fstart = AboveZero(configured[lineFstart], 100);
  if (record.Fstop <= 0) record.Fstop = AboveZero(configured[lineFstop], 100000000);
  if (record.NrIntervals <= 0) record.NrIntervals = AboveZero(configured[lineNrIntervals], 1000);
  record.SweepMode = std::clamp<i16>(record.SweepMode, 1, 2);
  if (record.NrXints < limitsOf::NrXints.lowest)
    record.NrXints = ToI16(static_cast<f64>(AboveZero(configured[lineNrXints], 10)));
  if (record.NrYints < limitsOf::NrYintsAtSpin.lowest) record.NrYints = AboveZero(configured[lineNrYints], 6);
  // A file may have any number; the label and the spin control have whole ones.
  record.NrYints = std::min(record.NrYints, limitsOf::NrYintsAtSpin.highest);
  if (record.LossBottom >= 0) record.LossBottom = configured[lineLossBottom] < 0 ? configured[lineLossBottom] : -60;
  if (record.DelayTop == 0) record.DelayTop = DelayOfDesign(record, configured[lineDelayTop], 0.001F);
  if (record.ImpedanceTop <= 0) record.ImpedanceTop = AboveZero(configured[lineImpedanceTop], 120);
  FillMissingQualities(record, configuration);
  if (record.Rstandard <= 0) record.Rstandard = ReferenceOf(record);
}

void HoldAnalysisEntries(DesignRecord& record, const Configuration& configuration) {
  record.NrYints = limitsOf::NrYints.Held(std::nearbyint(record.NrYints));
  record.NrXints = static_cast<i16>(limitsOf::NrXints.Held(record.NrXints));
  record.NrIntervals = limitsOf::NrIntervals.Held(record.NrIntervals);
  record.LossBottom = limitsOf::LossBottom.Held(-std::fabs(record.LossBottom));
  if (record.DelayTop <= 0) {
    record.DelayTop = DelayOfDesign(record, configuration.ConfigValue[lineDelayTop], 0.0012F);
  }
  record.DelayTop = limitsOf::DelayTop.Held(record.DelayTop);
  record.VSWRTop = limitsOf::VSWRTop.Held(record.VSWRTop);
  FillMissingQualities(record, configuration);
  record.Qind[1] = limitsOf::Q.Held(record.Qind[1]);
  record.Qcap[1] = limitsOf::Q.Held(record.Qcap[1]);
  if (record.Rsource[1] > limitsOf::leastEntered) {
    record.ImpedanceTop = limitsOf::ImpedanceTop.Held(record.ImpedanceTop);
    if (record.ImpedanceTop < record.Rsource[1]) record.ImpedanceTop = 2 * record.Rsource[1];
  }
}

DesignRecord WithAnalysisEntries(const DesignRecord& record, const Configuration& configuration) {
  DesignRecord settings = record;
  FillMissingEntries(settings, configuration);
  HoldAnalysisEntries(settings, configuration);
  return settings;
}

std::string SpanText(const DesignRecord& record) {
  return "Span: " + WithUnit(FormatFrequency(record.Fstop - record.Fstart), "Hz");
}

std::string FrequencyPerIntervalText(const DesignRecord& record) {
  return WithUnit(FormatFrequency((record.Fstop - record.Fstart) / record.NrXints), "Hz") + " per interval";
}

std::string LossPerIntervalText(const DesignRecord& record) {
  return "per interval: " + WithUnit(FormatValue(std::fabs(record.LossBottom / record.NrYints)), "dB");
}

std::string DelayPerIntervalText(const DesignRecord& record) {
  return "per interval: " + WithUnit(FormatTime(std::fabs(record.DelayTop / record.NrYints)), "secs");
}

std::string ImpedancePerIntervalText(const DesignRecord& record) {
  return "per interval: " + WithUnit(FormatResistance(std::fabs(record.ImpedanceTop / record.NrYints)), "ohms");
}

std::string VSWRPerIntervalText(const DesignRecord& record) {
  return "per interval: " + Trimmed(FormatValue((record.VSWRTop - 1) / record.NrYints));
}

}  // namespace quilm
