#include "pages/guidance/FamilyComparison.h"

#include <algorithm>
#include <cmath>

#include "analysis/AnalysisEntries.h"
#include "analysis/SweepFit.h"
#include "analysis/modAnalysis.h"
#include "core/EntryLimits.h"
#include "core/Fault.h"
#include "core/NumberText.h"
#include "core/Topology.h"
#include "core/modGeneral.h"
#include "desk/FamilyRules.h"
#include "display/ResponseCurves.h"
#include "network/DesignStanding.h"
#include "synthesis/DesignSummary.h"
#include "synthesis/TryDesign.h"
#include "synthesis/modCauer.h"
#include "synthesis/modMderived.h"

namespace quilm {

namespace {

constexpr f32 usualOrder = 5;
constexpr f32 usualWidth = 1e6F;  // Hz
constexpr f32 usualCenterOverWidth = 10;
constexpr f32 usualTermination = 50;  // ohms
constexpr f32 usualRipple = 0.5F;     // dB
constexpr f32 usualStopband = 1.5F;   // edge over that of the passband
constexpr f32 usualDepth = 50;        // dB
constexpr f32 usualZero = 1.25F;      // over the cutoff: half sections with m = 0.6
constexpr f32 pointsAcross = 900;     // more than the plot has pixels
constexpr f32 gridIntervals = 6;      // suits the steps of the delay scale

// The edge of the stopband over that of the passband with which a Cauer design of odd order comes to no more than the
// ripple that is wanted, dB: such a design has its ripple as a result.
f32 StopbandForRipple(DesignRecord design, f32 ripple) {
  constexpr f32 nearest = 0.002F;
  constexpr f32 growth = 1.1F;
  constexpr f32 farthest = 20;
  design.Order = std::max(design.Order, limitsOf::CauerOrder.lowest);
  for (f32 beyond = nearest; beyond < farthest; beyond *= growth) {
    DesignRecord tried = design;
    tried.Fstopband = StopbandEdge(tried.Topology, tried.Width, 1 + beyond);
    try {
      if (TryCauer(tried) && tried.Apass <= ripple) return 1 + beyond;
    } catch (const Fault&) {
      // This one has no figures; a wider one may.
    }
  }
  return usualStopband;
}

// Fills in what is missing and keeps an account of it.
class Completion {
 public:
  explicit Completion(DesignRecord& design) : design_(design) {}

  std::string Fill() {
    if (design_.Order < 1) Choose(design_.Order, usualOrder, "order " + ShortText(usualOrder, LeadingZero::Keep));
    if (!IsTopologyLetter(design_.Topology)) {
      design_.Topology = "A";
      Tell(TopologyCaption(design_.Topology));
    }
    if (!(design_.Width > limitsOf::leastEntered)) Choose(design_.Width, usualWidth, "band " + Hertz(usualWidth));
    if (NeedsCenter(design_.Topology) && !(design_.Fcenter > limitsOf::leastEntered)) {
      const f32 center = design_.Width * usualCenterOverWidth;
      Choose(design_.Fcenter, center, "center " + Hertz(center));
    }
    if (!(design_.Rsource[1] > limitsOf::leastEntered)) {
      Choose(design_.Rsource[1], usualTermination, Trimmed(FormatResistance(usualTermination)) + " ohms");
    }
    if (!(design_.Apass > 0)) Choose(design_.Apass, usualRipple, "ripple " + Decibels(usualRipple));
    FillStopband();
    FillZeros();
    return assumed_;
  }

 private:
  static std::string Hertz(f32 frequency) { return Trimmed(FormatFrequency(frequency)) + "Hz"; }
  static std::string Decibels(f32 level) { return ShortText(level, LeadingZero::Keep) + " dB"; }

  void Tell(const std::string& what) { assumed_ += (assumed_.empty() ? "" : ", ") + what; }

  void Choose(f32& field, f32 value, const std::string& what) {
    field = value;
    Tell(what);
  }

  void FillStopband() {
    if (!Offers(familyCauer, design_.Topology)) return;
    const bool even = IsEvenOrder(design_);
    design_.CauerType = !even ? "A" : design_.CauerType == "C" ? "C" : "B";
    if (!even) design_.CauerTop = 0;
    if (!(std::fabs(design_.Astop) >= limitsOf::Astop.lowest)) {
      Choose(design_.Astop, usualDepth, "depth " + Decibels(usualDepth));
    }
    const bool beyond = IsHighpass(design_.Topology) ? design_.Fstopband > 0 && design_.Fstopband < design_.Width
                                                     : design_.Fstopband > design_.Width;
    if (even || beyond) return;
    const f32 edge =
        StopbandEdge(design_.Topology, design_.Width, RoundedTo(StopbandForRipple(design_, design_.Apass), 3));
    Choose(design_.Fstopband, edge, "stopband " + Hertz(edge));
  }

  // Those of an M-derived design that has none yet, or had them for another band.
  void FillZeros() {
    if (!Offers(familyMderived, design_.Topology)) return;
    bool usable = HasMderivedZeros(design_);
    for (int i = 1; i <= mostMderivedZeros; ++i) {
      if (design_.MderivedZero[i] > 0 && !IsInStopband(design_, design_.MderivedZero[i])) usable = false;
    }
    if (usable) return;
    for (int i = 1; i <= mostMderivedZeros; ++i) design_.MderivedZero[i] = 0;
    const f32 zero = StopbandEdge(design_.Topology, design_.Width, usualZero);
    design_.MderivedZero[1] = design_.MderivedZero[2] = zero;
    Tell("M-derived zeros " + Hertz(zero));
  }

  DesignRecord& design_;
  std::string assumed_;
};

void SetSweep(DesignRecord& design, const Configuration& configuration) {
  FillMissingEntries(design, configuration);
  HoldAnalysisEntries(design, configuration);
  if (const auto fitting = FittingSweep(design)) {
    design.Fstart = fitting->from;
    design.Fstop = fitting->to;
  }
  design.SweepMode = IsLowOrHighpass(design.Topology) ? 2 : 1;
  design.NrIntervals = pointsAcross;
  design.RelativeMode = 0;
  design.AbsoluteMode = 1;
  design.MagnifyMode = 0;
}

FamilySweep Sweep(const DesignRecord& common, const GuidedFamily& family, const Configuration& configuration) {
  constexpr const char* failure = "cannot be analysed with these values";
  FamilySweep sweep{.family = &family, .order = 0, .responses = nullptr, .reason = {}};
  if (!Offers(family.code, common.Topology)) {
    sweep.reason = "not offered in this topology";
    return sweep;
  }
  DesignRecord design = common;
  design.Family = family.code;
  design.CauerFlag = FindFamily(family.code)->cauer ? 1 : 0;
  sweep.reason = TryDesign(design, configuration);
  if (!sweep.reason.empty()) return sweep;
  sweep.order = design.Order;
  auto responses = std::make_unique<Responses>();
  try {
    if (SweepLadder(design, *responses).empty()) {
      sweep.responses = std::move(responses);
    } else {
      sweep.reason = failure;
    }
  } catch (const Fault&) {
    sweep.reason = failure;
  }
  return sweep;
}

// The longest delay where the filter passes: at a zero of the transmission the delay is no figure of use.
f32 LongestDelay(const Comparison& comparison) {
  constexpr f32 passing = -20;  // dB
  f32 longest = 0;
  for (const FamilySweep& sweep : comparison.families) {
    if (!sweep.responses) continue;
    const ResponseSpans spans = SpansOf(*sweep.responses, LastPoint(comparison.design));
    for (std::size_t i = 0; i < spans.Count(); ++i) {
      if (spans.trans[i] > passing) longest = std::max(longest, spans.delay[i]);
    }
  }
  return longest;
}

// The next figure that six intervals divide into plain steps.
f32 RoundedUp(f32 delay) {
  constexpr f64 figures[] = {1.2, 1.8, 3, 6, 12};
  const f64 decade = std::pow(10.0, std::floor(std::log10(f64{delay})));
  for (const f64 figure : figures) {
    if (f64{delay} <= figure * decade) return static_cast<f32>(figure * decade);
  }
  return delay;
}

void SetDelayScale(Comparison& comparison) {
  const f32 longest = LongestDelay(comparison);
  comparison.design.DelayBottom = 0;
  if (longest > 0) comparison.design.DelayTop = RoundedUp(longest);
}

}  // namespace

Comparison ExampleOf(i16 place, const Configuration& configuration) {
  constexpr f32 lossless = limitsOf::Q.highest;
  Comparison example;
  DesignRecord& design = example.design;
  design.Width = usualWidth;
  design.Fstopband = usualStopband * usualWidth;
  Completion(design).Fill();
  design.Qind[1] = design.Qcap[1] = lossless;
  SetSweep(design, configuration);
  design.Fstart = 0.2F * usualWidth;
  design.Fstop = 5 * usualWidth;
  design.LossBottom = -60;
  design.NrYints = gridIntervals;
  design.DelayTop = 3e-6F;
  design.DelayBottom = 0;
  design.PlotLineWidth = 2;
  const auto& family = GuidedFamilies()[static_cast<std::size_t>(place - 1)];
  example.families.push_back(Sweep(design, family, configuration));
  return example;
}

Comparison CompareFamilies(const DesignRecord& present, const Configuration& configuration) {
  Comparison all;
  all.design = present;
  ForgetNetwork(all.design);
  all.assumed = Completion(all.design).Fill();
  SetSweep(all.design, configuration);
  all.design.NrYints = gridIntervals;
  for (const GuidedFamily& family : GuidedFamilies()) {
    all.families.push_back(Sweep(all.design, family, configuration));
  }
  SetDelayScale(all);
  return all;
}

}  // namespace quilm
