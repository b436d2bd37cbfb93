#include "pages/design/DesignTools.h"

#include "desk/FamilyRules.h"
#include "schematic/Icons.h"

namespace quilm {

namespace {

struct ToolRow {
  const char* caption;
  const char* purpose;
  Sign sign;
};

constexpr ToolRow tools[] = {
    {"Nearest 5%", "Move the parts to standard 5% values", Sign::Nearest5},
    {"Specify L", "Give the inductors values of your choice", Sign::SpecifyL},
    {"Swap end-end", "Reverse the network, end for end", Sign::SwapEnds},
    {"Singly-term Cheby", "Design a singly terminated Chebyshev filter", Sign::SinglyTerm},
    {"Diplexer", "Join two filters at a common port", Sign::Diplexer},
    {"Lumped to tubular", "Turn the parts into a tubular filter", Sign::Tubular},
    {"Z match", "Match unequal terminations", Sign::ZMatch},
    {"Wind L", "Wind an air-core inductor", Sign::WindL},
    {"Find L", "Find the inductance of a coil", Sign::FindL},
    {"Bisection", "Change the terminations of a symmetrical network", Sign::Bisection},
    {"EndS", "Add M-derived end sections", Sign::EndSections},
    {"Toroid", "Wind a toroidal inductor", Sign::Toroid},
    {"Norton", "Change the impedance level inside the network", Sign::Norton},
    {"Tee To Pi", "Turn tees of capacitors into pis", Sign::TeeToPi},
};

}  // namespace

DesignTools::DesignTools(Page& page) {
  int number = 0;
  for (const ToolRow& row : tools) {
    auto button = std::make_unique<Button>(page, "Command" + std::to_string(++number), row.caption, row.purpose);
    button->role = ButtonRole::Tool;
    button->picture = SignPicture(row.sign);
    button->enabled = false;
    buttons_.push_back(std::move(button));
  }
}

void DesignTools::Offer(int number, std::function<void()> onClick) {
  Button& button = Tool(number);
  button.enabled = true;
  button.onClick = std::move(onClick);
}

void DesignTools::Show(const DesignView& view) {
  Tool(nortonTool).visible = view.norton;
  Tool(teeToPiTool).visible = view.teeToPi;
}

}  // namespace quilm
