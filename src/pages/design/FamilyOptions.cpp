#include "pages/design/FamilyOptions.h"

#include "core/Identity.h"
#include "desk/FamilyRules.h"
#include "synthesis/DesignSummary.h"

namespace quilm {

FamilyOptions::FamilyOptions(Page& page) {
  for (const FamilyRule& rule : FamilyRules()) {
    options_.push_back(std::make_unique<OptionButton>(page, group_, rule.option, FamilyName(rule.code), rule.toolTip));
  }
  Enable(true);
}

i16 FamilyOptions::Chosen() const {
  for (std::size_t i = 0; i < options_.size(); ++i) {
    if (options_[i]->Value()) return FamilyRules()[i].code;
  }
  return familyNone;
}

void FamilyOptions::Choose(i16 family) {
  group_.Clear();
  for (std::size_t i = 0; i < options_.size(); ++i) {
    if (FamilyRules()[i].code == family) options_[i]->Set();
  }
}

void FamilyOptions::Enable(bool enabled) {
  for (const auto& option : options_) option->enabled = enabled;
}

void FamilyOptions::OnChoice(const std::function<void(i16 family)>& act) {
  for (std::size_t i = 0; i < options_.size(); ++i) {
    options_[i]->onClick = [act, code = FamilyRules()[i].code] { act(code); };
  }
}

}  // namespace quilm
