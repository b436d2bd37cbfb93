// What each family asks for and offers, as data: the Design page shows itself by these rules.
#pragma once

#include <span>
#include <string>
#include <string_view>

#include "core/RecordFwd.h"
#include "core/Types.h"

namespace quilm {

// Whether the passband ripple is an entry. A Cauer design of odd order has it as a result.
enum class RippleEntry { None, Always, EvenOrder };

struct FamilyRule {
  i16 code;
  const char* option;  // its control on the Design page
  const char* toolTip;
  RippleEntry ripple;
  bool cauer;                   // a prototype with transmission zeros: CauerFlag 1
  bool stopband;                // stopband width and depth are entries
  std::string_view topologies;  // the letters on offer
};

// In the order of the page.
std::span<const FamilyRule> FamilyRules();

// nullptr for a code that is no family.
const FamilyRule* FindFamily(i16 code);

// Whether a family can be built in a topology. As long as no family is chosen, all twelve are open.
bool Offers(i16 family, std::string_view letter);

// Where the topology goes when the family is chosen: the first lowpass for one that the family does not offer, else it
// stays. Constant-K leaves "E" too, though "E" may be chosen again afterwards. A network entered by hand keeps its
// letter, and an empty one stays empty.
std::string TopologyUnder(i16 family, const std::string& letter);

// What stands on the page for a design.
struct DesignView {
  bool ripple = false;
  bool readout = false;  // of the ripple, be it an entry or a result
  bool stopband = false;
  bool cauerType = false;
  bool cauerTop = false;
  bool zigZag = false;  // the zig-zag layout exists for even order only
  bool center = false;
  bool norton = false;
  bool teeToPi = false;
  std::string bandwidthCaption;
  std::string edge;  // where the band ends: at 3 dB, or at the ripple
  bool operator==(const DesignView&) const = default;
};

DesignView ViewOf(const Identity& identity);

// 1, or what the prototype of the family needs.
i32 LowestOrder(const Identity& identity);

bool IsEvenOrder(const Identity& identity);

}  // namespace quilm
