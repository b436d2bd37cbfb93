#include "desk/FamilyRules.h"

#include <algorithm>
#include <cmath>

#include "core/EntryLimits.h"
#include "core/Identity.h"
#include "core/Topology.h"

namespace quilm {

namespace {

constexpr std::string_view allPole = "ABCDEFGIJKL";
constexpr std::string_view withZeros = "ABHIJ";

constexpr FamilyRule rules[] = {
    {familyButterworth, "optButterworth", "Maximally flat passband", RippleEntry::None, false, false, allPole},
    {familyChebyshev, "optChebycheff", "Equal ripple in the passband", RippleEntry::Always, false, false, allPole},
    {familyCauer, "optCauer", "Steepest descent, with a finite stopband depth", RippleEntry::EvenOrder, true, true,
     withZeros},
    {familyBessel, "optBessel", "Constant delay in the passband", RippleEntry::None, false, false, allPole},
    {familyGaussian, "optGaussian", "No overshoot on a pulse", RippleEntry::None, false, false, allPole},
    {familyGaussian12, "optGaussian12", "Gaussian down to 12 dB, then steeper", RippleEntry::None, false, false,
     allPole},
    {familyConstantK, "optConstantK", "Specify the Constant-K family - repetitive component values", RippleEntry::None,
     false, false, allPole},
    {familyMderived, "optMderived", "Image-parameter sections with zeros of your choice", RippleEntry::None, true,
     false, withZeros},
    {familyManual, "optManual", "Keep the present parts as a network entered by hand", RippleEntry::None, false, false,
     ""},
};

bool IsOneOf(std::string_view letter, std::string_view letters) {
  return letter.size() == 1 && letters.find(letter) != std::string_view::npos;
}

bool HasRippleEntry(const FamilyRule& rule, const Identity& identity) {
  return rule.ripple == RippleEntry::Always || (rule.ripple == RippleEntry::EvenOrder && IsEvenOrder(identity));
}

void AddFamily(DesignView& view, const FamilyRule& rule, const Identity& identity) {
  view.ripple = HasRippleEntry(rule, identity);
  view.readout = rule.ripple != RippleEntry::None;
  view.stopband = rule.stopband;
  view.cauerType = rule.code == familyCauer && IsEvenOrder(identity);
  view.cauerTop = rule.code == familyCauer && identity.Topology == "H";
  view.edge = rule.ripple == RippleEntry::None ? "3 dB" : "Ripple";
}

}  // namespace

std::span<const FamilyRule> FamilyRules() { return rules; }

const FamilyRule* FindFamily(i16 code) {
  const auto at =
      std::find_if(std::begin(rules), std::end(rules), [code](const FamilyRule& r) { return r.code == code; });
  return at == std::end(rules) ? nullptr : at;
}

bool Offers(i16 family, std::string_view letter) {
  const FamilyRule* rule = FindFamily(family);
  return rule == nullptr || IsOneOf(letter, rule->topologies);
}

std::string TopologyUnder(i16 family, const std::string& letter) {
  if (family == familyManual || letter.empty()) return letter;
  if (family == familyConstantK && letter == "E") return "A";
  return Offers(family, letter) ? letter : "A";
}

i32 LowestOrder(const Identity& identity) {
  return identity.Family == familyCauer ? static_cast<i32>(limitsOf::CauerOrder.lowest) : 1;
}

bool IsEvenOrder(const Identity& identity) { return std::fmod(identity.Order, 2.0F) == 0; }

DesignView ViewOf(const Identity& identity) {
  DesignView view;
  if (const FamilyRule* rule = FindFamily(identity.Family)) AddFamily(view, *rule, identity);
  const bool even = IsEvenOrder(identity);
  view.zigZag = even;
  view.center = !IsLowOrHighpass(identity.Topology);
  view.norton = identity.Topology == "E" && !even;
  view.teeToPi = identity.Topology == "G";
  view.bandwidthCaption = view.center ? "Bandwidth (Hz)  (Fc)" : "Cutoff (Hz)  (Fc)";
  return view;
}

}  // namespace quilm
