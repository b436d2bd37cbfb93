// The twelve topology options, "A" to "L".
#pragma once

#include <array>
#include <functional>
#include <memory>
#include <string>

#include "shell/Control.h"

namespace quilm {

inline constexpr int topologyCount = 12;

// "A" for 1, ..., "L" for 12.
std::string TopologyLetter(int number);

class TopologyOptions {
 public:
  explicit TopologyOptions(Page& page);

  // The option of the topology `number`, 1 to 12.
  OptionButton& Option(int number) { return *options_[static_cast<std::size_t>(number - 1)]; }

  // The letter of the option that is set, empty for none.
  std::string Chosen() const;

  // Sets the option of a letter; none for a letter without one.
  void Choose(const std::string& letter);

  // Lets the user choose what the family can be built in.
  void OfferFor(i16 family);

  // Runs after the user has chosen.
  void OnChoice(const std::function<void(const std::string& letter)>& act);

 private:
  OptionGroup group_;
  std::array<std::unique_ptr<OptionButton>, topologyCount> options_;
};

// A small button for each topology, which leads to the guide of topologies.
class TopologyGuides {
 public:
  explicit TopologyGuides(Page& page);
  Button& Guide(int number) { return *buttons_[static_cast<std::size_t>(number - 1)]; }

 private:
  std::array<std::unique_ptr<Button>, topologyCount> buttons_;
};

}  // namespace quilm
