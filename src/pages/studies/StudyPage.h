// What the pages of the studies share: they take the place of the Analysis page and lead back to it.
#pragma once

#include "shell/Page.h"

namespace quilm {

class StudyPage : public Page {
 public:
  using Page::Page;
  void CloseBox() override { Return(); }

 protected:
  // Shows the Analysis page afresh.
  void Return();

  // Tells that the network cannot be evaluated.
  void TellOfFault();
};

}  // namespace quilm
