#include "synthesis/EntryRules.h"

#include <algorithm>

#include "core/modGeneral.h"
#include "network/DesignStanding.h"

namespace quilm {

namespace {

// The rules at work on one record.
struct Check {
  DesignRecord& record;
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

bool HasCenter(const DesignRecord& record) {
  return record.Topology.size() == 1 && std::string_view("CDEFGHKL").find(record.Topology) != std::string_view::npos;
}

bool IsEven(f32 order) { return static_cast<int>(order) % 2 == 0; }

// Settings of the Analysis page that are held in a range without a word.
struct Range {
  f32& (*field)(DesignRecord&);
  f32 lowest;
  f32 highest;
  const char* control;
  const char* lowestText;
  const char* highestText;
};

constexpr Range graphRange = {[](DesignRecord& r) -> f32& { return r.NrYints; }, 4, 30, "lblNrYints", "4", "30"};
constexpr Range sweepRange = {
    [](DesignRecord& r) -> f32& { return r.NrIntervals; }, 4, 2049, "txtNrIntervals", "4", "2049"};
constexpr Range VSWRrange = {[](DesignRecord& r) -> f32& { return r.VSWRTop; }, 1.05F, 7, "txtVSWRTop", "1.05", "7"};
constexpr Range QindRange = {
    [](DesignRecord& r) -> f32& { return r.Qind[1]; }, 2, 1e7F, "txtQinductor", "2", "10000000"};
constexpr Range QcapRange = {
    [](DesignRecord& r) -> f32& { return r.Qcap[1]; }, 2, 1e7F, "txtQcapacitor", "2", "10000000"};

void Hold(Check& check, const Range& range) {
  f32& value = range.field(check.record);
  if (value >= range.lowest && value <= range.highest) return;
  const bool tooHigh = value > range.highest;
  value = tooHigh ? range.highest : range.lowest;
  check.Repaired(PageId::Analyze, range.control, tooHigh ? range.highestText : range.lowestText);
}

void HoldYints(Check& check) { Hold(check, graphRange); }

void HoldXints(Check& check) {
  i16& value = check.record.NrXints;
  const i16 held = std::clamp(value, i16{1}, i16{30});
  if (held == value) return;
  value = held;
  check.Repaired(PageId::Analyze, "lblNrXints", std::to_string(held));
}

void HoldIntervals(Check& check) { Hold(check, sweepRange); }

void CutOrder(Check& check, i16 highest, const std::string& message) {
  if (check.record.Order <= highest) return;
  check.record.Order = highest;
  check.Repaired(PageId::Design, "lblOrderInput", std::to_string(highest));
  check.Tell("", message + std::to_string(highest));
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

// The limit of the prototype routine, 10, lies below the Bessel limit here: an order of 11 to 17 passes and is cut
// there. Meant.
void HoldOrderToFamily(Check& check) {
  switch (check.record.Family) {
    case familyBessel:
      return CutOrder(check, 17, "Order has been reset to Bessel family upper limit of ");
    case familyGaussian:
      return CutOrder(check, 10, "Order has been reset to Gaussian family upper limit of ");
    case familyGaussian12:
      return CutOrder(check, 10, "Order has been reset to Gaussian to 12 family upper limit of ");
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
  if (!HasCenter(check.record) || check.record.Fcenter > 0) return;
  check.Fail("Error checker 199", "Please enter a center frequency", "txtCenterFrequency");
}

// Sets a sweep limit to what an unset one becomes, and holds it in its range.
void HoldSweepLimit(Check& check, f32& limit, f64 unsetValue, f32 lowest, f32 highest, const char* control) {
  const f32 wanted = limit == 0 ? static_cast<f32>(unsetValue) : limit;
  const f32 held = std::clamp(wanted, lowest, highest);
  if (held == limit) return;
  limit = held;
  check.Repaired(PageId::Analyze, control, FormatFrequency(held));
}

void HoldStart(Check& check) {
  DesignRecord& record = check.record;
  const f64 width = record.Width;
  const f64 unsetValue = HasCenter(record) ? record.Fcenter - 2 * width : width / 2;
  HoldSweepLimit(check, record.Fstart, unsetValue, 0.01F, 9e9F, "txtFstart");
}

void HoldStop(Check& check) {
  DesignRecord& record = check.record;
  const f64 width = record.Width;
  const f64 unsetValue = HasCenter(record) ? record.Fcenter + 2 * width : 2 * width;
  HoldSweepLimit(check, record.Fstop, unsetValue, 0.02F, 1e10F, "txtFstop");
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
  if (record.Family != familyCauer || (record.Astop >= 10 && record.Astop <= 180)) return;
  check.Fail("Error checker 296",
             "Please enter a stopband depth for the Cauer\r\nfamily of  10 minimum  to  180 maximum",
             "txtStopbandDepth");
}

void RequireCauerOrder(Check& check) {
  if (check.record.Family != familyCauer || check.record.Order >= 3) return;
  check.Fail("Error checker 305", "Cauer requires order of 3 minimum", "UpDown1");
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
  check.Repaired(PageId::Analyze, "txtImpedanceTop", FormatResistance(check.record.ImpedanceTop));
}

// A blank configuration leaves these at 0.
void HoldVSWRTop(Check& check) { Hold(check, VSWRrange); }
void HoldQind(Check& check) { Hold(check, QindRange); }
void HoldQcap(Check& check) { Hold(check, QcapRange); }

using Rule = void (*)(Check&);

constexpr Rule rules[] = {
    HoldYints,     HoldXints,       HoldIntervals, HoldOrderToProgram, HoldStages,       HoldOrderToFamily,
    RequireWidth,  RequireSource,   RequireCenter, HoldStart,          HoldStop,         SetSweepMode,
    RequireRipple, RequireStopband, RequireDepth,  RequireCauerOrder,  RequireReference, HoldImpedanceTop,
    HoldVSWRTop,   HoldQind,        HoldQcap,
};

}  // namespace

bool HasInputTermination(const DesignRecord& record) {
  constexpr f32 least = 0.01F;  // ohms
  return record.Rsource[1] > least || (IsByHand(record) && record.Rsource[1] == least);
}

EntryReport ExamineEntries(DesignRecord& record) {
  Check check{record, {}};
  for (const Rule rule : rules) {
    rule(check);
    if (!check.report.Passed()) break;
  }
  return check.report;
}

}  // namespace quilm
