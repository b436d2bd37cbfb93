#include "synthesis/TryDesign.h"

#include <algorithm>
#include <cmath>

#include "core/DesignRecord.h"
#include "core/EntryLimits.h"
#include "core/Fault.h"
#include "core/Topology.h"
#include "network/DesignStanding.h"
#include "synthesis/EntryRules.h"
#include "synthesis/MakeNetwork.h"
#include "synthesis/modCauer.h"
#include "synthesis/modMderived.h"
#include "synthesis/modNormalized.h"

namespace quilm {

namespace {

constexpr const char* tooLowRipple = "The passband ripple of this Cauer design would be too low";
constexpr const char* noPartsValues = "The parts values cannot be calculated from these entries";

bool IsEven(f32 order) { return std::fmod(order, 2.0F) == 0; }

bool HasRippleEntry(const DesignRecord& design) {
  return design.Family == familyChebyshev || (design.Family == familyCauer && IsEven(design.Order));
}

bool IsEntered(f32 value) { return value > limitsOf::leastEntered; }

// As the checks before a network do it.
void HoldEntries(DesignRecord& design) {
  if (design.Order < 1 && design.Family != familyMderived) design.Order = 3;
  if (design.Family == familyCauer) {
    design.Order = std::max(design.Order, limitsOf::CauerOrder.lowest);
    design.Astop = std::max(std::fabs(design.Astop), limitsOf::Astop.lowest);
  } else if (design.Family != familyMderived && design.Topology == "H") {
    design.Topology = "E";
  }
  if (HasRippleEntry(design) && design.Apass > 0) design.Apass = limitsOf::Apass.Held(design.Apass);
  if (design.Rstandard <= 0) design.Rstandard = design.Rsource[1];
}

// The stopband of an odd Cauer design, which is an entry there.
std::string FaultOfStopband(const DesignRecord& design) {
  if (design.Family != familyCauer || IsEven(design.Order)) return {};
  if (design.Fstopband <= 0) return "Please enter a stopband";
  if (IsHighpass(design.Topology)) {
    return design.Fstopband < design.Width ? "" : "The stopband must be less than the passband";
  }
  return design.Fstopband > design.Width ? "" : "The stopband must be greater than the passband";
}

std::string WhatIsMissing(DesignRecord& design, const Configuration& configuration) {
  if (FamilyName(design.Family).empty()) return "No family has been chosen";
  if (!IsTopologyLetter(design.Topology)) return "No topology has been chosen";
  if (!IsEntered(design.Width)) return "Please enter a bandwidth";
  if (NeedsCenter(design.Topology) && !IsEntered(design.Fcenter)) return "Please enter a center frequency";
  if (!IsEntered(design.Rsource[1])) return "Please enter an input termination";
  HoldEntries(design);
  if (std::string fault = FaultOfStopband(design); !fault.empty()) return fault;
  const EntryReport report = ExamineEntries(design, configuration);
  if (report.Passed()) return {};
  std::string text = report.findings.back().text;
  for (std::size_t at = text.find("\r\n"); at != std::string::npos; at = text.find("\r\n")) text.replace(at, 2, " ");
  return text;
}

// The prototype of the family; why there is none, else empty.
std::string MakePrototype(DesignRecord& design) {
  if (design.Family == familyCauer) return TryCauer(design) ? "" : tooLowRipple;
  if (design.Family == familyMderived && !HasMderivedZeros(design)) {
    return "Please enter the zeros of the M-derived design";
  }
  HoldOrder(design);
  ComputePrototype(design, design.Family);
  return {};
}

}  // namespace

std::string TryDesign(DesignRecord& design, const Configuration& configuration) {
  if (NetworkStands(design)) return design.Stages > 0 ? "" : "There is no network yet";
  if (std::string missing = WhatIsMissing(design, configuration); !missing.empty()) return missing;
  try {
    if (std::string reason = MakePrototype(design); !reason.empty()) return reason;
    MakeNetwork(design);
  } catch (const Fault&) {
    return noPartsValues;
  }
  return design.Stages > 0 ? "" : noPartsValues;
}

}  // namespace quilm
