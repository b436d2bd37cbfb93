// The guide to the families: what each is good for, and how they compare with the entries of the present design.
#pragma once

#include <memory>
#include <vector>

#include "display/ResponseCurves.h"
#include "pages/guidance/FamilyComparison.h"
#include "shell/Page.h"

namespace quilm {

class frmHelpFamily : public Page {
 public:
  explicit frmHelpFamily(Session& session);
  void Load() override;
  Layout MakeLayout() override;

  Label lblFamily{*this, "lblFamily", ""};
  PictureBox picFamily{*this, "picFamily", "Responses of the families"};
  Label lblPicture{*this, "lblPicture", ""};
  OptionGroup pictures;
  OptionButton optThisFamily{*this, pictures, "optThisFamily", "This family",
                             "A typical lowpass of the family: transmission in blue, delay in red"};
  OptionButton optTransmissions{*this, pictures, "optTransmissions", "All: transmission",
                                "The families of the present entries together"};
  OptionButton optDelays{*this, pictures, "optDelays", "All: delay", "The families of the present entries together"};
  Button cmdExit{*this, "cmdExit", "Exit", "Close the guide"};

 private:
  void Choose(i16 place);
  void Draw();
  void DrawTogether(Quantity quantity);

  i16 FamilyHelpCode_ = 1;  // the family that is shown, its place in the guide
  OptionGroup families_;
  std::vector<std::unique_ptr<OptionButton>> options_;
  std::unique_ptr<Comparison> all_;  // made when it is asked for; the design stays while the guide is open
};

}  // namespace quilm
