// What is done with the limit areas of the plot that it stands beside.
#pragma once

#include "shell/Page.h"

namespace quilm {

class frmLimits : public Page {
 public:
  explicit frmLimits(Session& session);
  void Load() override;
  Layout MakeLayout() override;

  Button cmdLimitsOn{*this, "cmdLimitsOn", "Show", "Show the limit areas on the plots"};
  Button cmdLimitsHide{*this, "cmdLimitsHide", "Hide", "Draw the plots without the limit areas"};
  Button cmdEnter{*this, "cmdEnter", "Enter", "Enter limit areas for this plot with the mouse"};
  Button cmdLimitsEdit{*this, "cmdLimitsEdit", "Edit", "Change limit areas by number"};
  Button cmdLimitsEraseAll{*this, "cmdLimitsEraseAll", "Erase all", "Erase the limit areas of all plots"};
  Button cmdLimitsEraseLocal{*this, "cmdLimitsEraseLocal", "Erase local", "Erase the limit areas of this plot"};

 private:
  void Leave(i16 shown);
  void Enter();
  void Edit();
};

}  // namespace quilm
