#include "pages/design/TopologyOptions.h"

#include "core/Identity.h"
#include "desk/FamilyRules.h"
#include "schematic/LadderPicture.h"
#include "synthesis/DesignSummary.h"

namespace quilm {

namespace {

// The controls are named after the topology: optCapInLowpass and cmdCapInLowpass.
constexpr std::array<const char*, topologyCount> names = {
    "CapInLowpass",    "IndInLowpass",  "NodCapBandpass", "NodIndBandpass", "ShuntInGeoSymm",   "SeriesInGeoSymm",
    "MeshCapBandpass", "CauerBandpass", "CapInHighpass",  "IndInHighpass",  "SeriesInBandstop", "ShuntInBandstop",
};

std::string NameOf(const char* prefix, int number) {
  return prefix + std::string(names[static_cast<std::size_t>(number - 1)]);
}

}  // namespace

std::string TopologyLetter(int number) { return std::string(1, static_cast<char>('A' + number - 1)); }

TopologyOptions::TopologyOptions(Page& page) {
  for (int number = 1; number <= topologyCount; ++number) {
    const std::string letter = TopologyLetter(number);
    auto option = std::make_unique<OptionButton>(page, group_, NameOf("opt", number), TopologyCaption(letter));
    option->picture = TopologyPicture(letter);
    options_[static_cast<std::size_t>(number - 1)] = std::move(option);
  }
}

std::string TopologyOptions::Chosen() const {
  for (int number = 1; number <= topologyCount; ++number) {
    if (options_[static_cast<std::size_t>(number - 1)]->Value()) return TopologyLetter(number);
  }
  return {};
}

void TopologyOptions::Choose(const std::string& letter) {
  group_.Clear();
  for (int number = 1; number <= topologyCount; ++number) {
    if (TopologyLetter(number) == letter) Option(number).Set();
  }
}

void TopologyOptions::OfferFor(i16 family) {
  for (int number = 1; number <= topologyCount; ++number) {
    OptionButton& option = Option(number);
    option.enabled = Offers(family, TopologyLetter(number));
    option.toolTip = option.enabled ? std::string() : "Not offered by the family " + FamilyName(family);
  }
}

void TopologyOptions::OnChoice(const std::function<void(const std::string& letter)>& act) {
  for (int number = 1; number <= topologyCount; ++number) {
    Option(number).onClick = [act, letter = TopologyLetter(number)] { act(letter); };
  }
}

TopologyGuides::TopologyGuides(Page& page) {
  for (int number = 1; number <= topologyCount; ++number) {
    const std::string letter = TopologyLetter(number);
    auto button = std::make_unique<Button>(page, NameOf("cmd", number), TopologyCaption(letter),
                                           "See the " + TopologyCaption(letter));
    button->role = ButtonRole::Corner;
    button->accessibleName = button->caption + ", " + button->toolTip;
    buttons_[static_cast<std::size_t>(number - 1)] = std::move(button);
  }
}

}  // namespace quilm
