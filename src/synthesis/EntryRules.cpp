#include "synthesis/EntryRules.h"

#include "analysis/AnalysisEntries.h"
#include "core/DesignRecord.h"
#include "core/EntryLimits.h"
#include "core/Topology.h"
#include "core/modGeneral.h"
#include "network/DesignStanding.h"
#include "shell/EntryText.h"

namespace quilm {

namespace {

// The rules at work on one record.
struct Check {
  DesignRecord& record;
  const Configuration& configuration;
  EntryReport report;

  void Tell(std::string title, std::string text) { report.findings.push_back({std::move(title), std::move(text), {}}); }

  void Fail(std::string title, std::string text, std::string focus) {
    report.findings.push_back({std::move(title), std::move(text), std::move(focus)});
  }

  void Repaired(PageId page, std::string control, std::string text) {
    report.boxes.push_back({page, std::move(control), std::move(text)});
    ForgetResponses(record);
  }
};

bool IsEven(f32 order) { return static_cast<int>(order) % 2 == 0; }

// Settings of the Analysis page that are held in a range without a word.
struct Range {
  f32& (*field)(DesignRecord&);
  const EntryLimits& limits;
  const char* control;
};

constexpr Range graphRange = {[](DesignRecord& r) -> f32& { return r.NrYints; }, limitsOf::NrYints, "lblNrYints"};
constexpr Range sweepRange = {[](DesignRecord& r) -> f32& { return r.NrIntervals; }, limitsOf::NrIntervals,
                              "txtNrIntervals"};
constexpr Range VSWRrange = {[](DesignRecord& r) -> f32& { return r.VSWRTop; }, limitsOf::VSWRTop, "txtVSWRTop"};
constexpr Range QindRange = {[](DesignRecord& r) -> f32& { return r.Qind[1]; }, limitsOf::Q, "txtQinductor"};
constexpr Range QcapRange = {[](DesignRecord& r) -> f32& { return r.Qcap[1]; }, limitsOf::Q, "txtQcapacitor"};

void Hold(Check& check, const Range& range) {
  f32& value = range.field(check.record);
  if (range.limits.Contain(value)) return;
  value = range.limits.Held(value);
  check.Repaired(PageId::Analyze, range.control,
                 value == range.limits.highest ? range.limits.highestText : range.limits.lowestText);
}

void HoldYints(Check& check) { Hold(check, graphRange); }

void HoldXints(Check& check) {
  i16& value = check.record.NrXints;
  const i16 held = static_cast<i16>(limitsOf::NrXints.Held(value));
  if (held == value) return;
  value = held;
  check.Repaired(PageId::Analyze, "lblNrXints", std::to_string(held));
}

void HoldIntervals(Check& check) { Hold(check, sweepRange); }

void CutOrder(Check& check, f32 highest, const std::string& message) {
  if (check.record.Order <= highest) return;
  check.record.Order = highest;
  check.Repaired(PageId::Design, "lblOrderInput", PlainText(highest));
  check.Tell("", message + PlainText(highest));
}

void HoldOrderToProgram(Check& check) {
  CutOrder(check, check.record.OrderMax, "The order has been reset to the program upper limit of ");
}

void HoldStages(Check& check) {
  if (check.record.Stages <= check.record.StagesMax) return;
  check.record.Stages = check.record.StagesMax;
  ForgetResponses(check.record);
  check.Tell("", "The number of stages has been reset to the\r\nupper allowed limit of " +
                     std::to_string(check.record.StagesMax));
}

void HoldOrderToFamily(Check& check) {
  switch (check.record.Family) {
    case familyBessel:
      return CutOrder(check, limitsOf::BesselOrder.highest, "Order has been reset to Bessel family upper limit of ");
    case familyGaussian:
      return CutOrder(check, limitsOf::GaussianOrder.highest,
                      "Order has been reset to Gaussian family upper limit of ");
    case familyGaussian12:
      return CutOrder(check, limitsOf::GaussianOrder.highest,
                      "Order has been reset to Gaussian to 12 family upper limit of ");
    default:
      return;
  }
}

void RequireWidth(Check& check) {
  if (IsByHand(check.record) || check.record.Width > 0) return;
  check.Fail("Error checker 53", "Please enter a bandwidth", "txtBandwidth");
}

void RequireSource(Check& check) {
  if (HasInputTermination(check.record)) return;
  check.Fail("Error checker 179", "Please enter an input termination greater than .01 ohms", "txtInputTerm");
}

void RequireCenter(Check& check) {
  if (!NeedsCenter(check.record.Topology) || check.record.Fcenter > 0) return;
  check.Fail("Error checker 199", "Please enter a center frequency", "txtCenterFrequency");
}

// Sets a sweep limit to what an unset one becomes, and holds it in its range.
void HoldSweepLimit(Check& check, f32& limit, f64 unsetValue, const EntryLimits& limits, const char* control) {
  const f32 wanted = limit == 0 ? static_cast<f32>(unsetValue) : limit;
  const f32 held = limits.Held(wanted);
  if (held == limit) return;
  limit = held;
  check.Repaired(PageId::Analyze, control, EntryText(held, FormatFrequency));
}

void HoldStart(Check& check) {
  DesignRecord& record = check.record;
  const f64 width = record.Width;
  const f64 unsetValue = NeedsCenter(record.Topology) ? record.Fcenter - 2 * width : width / 2;
  HoldSweepLimit(check, record.Fstart, unsetValue, limitsOf::Fstart, "txtFstart");
}

void HoldStop(Check& check) {
  DesignRecord& record = check.record;
  const f64 width = record.Width;
  const f64 unsetValue = NeedsCenter(record.Topology) ? record.Fcenter + 2 * width : 2 * width;
  HoldSweepLimit(check, record.Fstop, unsetValue, limitsOf::Fstop, "txtFstop");
}

void SetSweepMode(Check& check) {
  if (check.record.SweepMode != 0) return;
  check.record.SweepMode = 2;
  check.Repaired(PageId::Analyze, "optLog", "");
  check.Tell("Error checker 237", "Unspecified sweep mode set to logarithmic");
}

void RequireRipple(Check& check) {
  const DesignRecord& record = check.record;
  if (record.Apass > 0) return;
  if (record.Family == familyChebyshev) {
    check.Fail("Error checker 259", "Please enter a passband ripple for the Chebyshev filter family",
               "txtPassbandRipple");
  } else if (record.Family == familyCauer && IsEven(record.Order)) {
    check.Fail("Error checker 268", "Please enter a passband ripple for the even-order Cauer filter family",
               "txtPassbandRipple");
  }
}

void RequireStopband(Check& check) {
  const DesignRecord& record = check.record;
  if (record.Family != familyCauer || IsEven(record.Order) || record.Fstopband > 0) return;
  check.Fail("Error checker 283", "Please enter a stopband frequency for the Cauer filter family", "txtStopbandFreq");
}

void RequireDepth(Check& check) {
  const DesignRecord& record = check.record;
  if (record.Family != familyCauer || limitsOf::Astop.Contain(record.Astop)) return;
  check.Fail("Error checker 296",
             std::string("Please enter a stopband depth for the Cauer\r\nfamily of  ") + limitsOf::Astop.lowestText +
                 " minimum  to  " + limitsOf::Astop.highestText + " maximum",
             "txtStopbandDepth");
}

void RequireCauerOrder(Check& check) {
  if (check.record.Family != familyCauer || check.record.Order >= limitsOf::CauerOrder.lowest) return;
  check.Fail("Error checker 305",
             std::string("Cauer requires order of ") + limitsOf::CauerOrder.lowestText + " minimum", "UpDown1");
}

// The reference has no box on the Design page; the input termination is what an unset one follows.
void RequireReference(Check& check) {
  const DesignRecord& record = check.record;
  if ((record.Topology != "B" && record.Topology != "C") || record.Rstandard > 0) return;
  check.Fail("Error checker 346", "Please enter a value for return loss computation", "txtInputTerm");
}

void HoldImpedanceTop(Check& check) {
  if (check.record.ImpedanceTop >= check.record.Rsource[1]) return;
  check.record.ImpedanceTop = check.record.Rsource[1];
  check.Repaired(PageId::Analyze, "txtImpedanceTop", EntryText(check.record.ImpedanceTop, FormatResistance));
}

// A blank configuration leaves these at 0.
void HoldVSWRTop(Check& check) { Hold(check, VSWRrange); }
void FillQualities(Check& check) {
  const f32 Qind = check.record.Qind[1];
  const f32 Qcap = check.record.Qcap[1];
  FillMissingQualities(check.record, check.configuration);
  const auto tell = [&check](f32 before, f32 now, const char* control) {
    if (now != before) check.Repaired(PageId::Analyze, control, EntryText(now, FormatValue));
  };
  tell(Qind, check.record.Qind[1], "txtQinductor");
  tell(Qcap, check.record.Qcap[1], "txtQcapacitor");
}
void HoldQind(Check& check) { Hold(check, QindRange); }
void HoldQcap(Check& check) { Hold(check, QcapRange); }

using Rule = void (*)(Check&);

constexpr Rule rules[] = {
    HoldYints,     HoldXints,       HoldIntervals, HoldOrderToProgram, HoldStages,       HoldOrderToFamily,
    RequireWidth,  RequireSource,   RequireCenter, HoldStart,          HoldStop,         SetSweepMode,
    RequireRipple, RequireStopband, RequireDepth,  RequireCauerOrder,  RequireReference, HoldImpedanceTop,
    HoldVSWRTop,   FillQualities,   HoldQind,      HoldQcap,
};

}  // namespace

bool HasInputTermination(const DesignRecord& record) {
  const f32 source = record.Rsource[1];
  return source > limitsOf::leastEntered || (IsByHand(record) && source == limitsOf::leastEntered);
}

EntryReport ExamineEntries(DesignRecord& record, const Configuration& configuration) {
  Check check{record, configuration, {}};
  for (const Rule rule : rules) {
    rule(check);
    if (!check.report.Passed()) break;
  }
  return check.report;
}

}  // namespace quilm
