// The parts of the network beside the nearest values of the 5 % series, and what of these the design takes.
#pragma once

#include "network/modNearest5.h"
#include "shell/Page.h"

namespace quilm {

class frmNearest5 : public Page {
 public:
  explicit frmNearest5(Session& session);
  void Load() override;
  void CloseBox() override { Return(); }
  PageId Home() const override { return PageId::Design; }
  Layout MakeLayout() override;

 private:
  // One of the five ways to take the values over.
  struct Way {
    Way(frmNearest5& page, NearestTransfer transfer, const char* button, const char* caption, const char* toolTip,
        const char* label, const char* done);

    NearestTransfer transfer;
    Button button;
    Label label;
  };

  void TellOfNegativeParts();
  void Transfer(Way& way);
  void Return();

  NearestParts nearest_;
  Label lblHeading_{*this, "lblHeading", "Nearest-value routine"};
  Label lblOriginalValues_{*this, "lblOriginalValues", "Stage: Original C: Nearest: Original L: Nearest: Resonance:"};
  ListBox lstParts_{*this, "lstParts", "Parts and their nearest 5% values"};
  Label lblScroll_{*this, "lblScroll", "Scroll to see other stages"};
  Way all_;
  Way caps_;
  Way inductors_;
  Way capsRetuneInductors_;
  Way inductorsRetuneCaps_;
  Button cmdExit_{*this, "cmdExit", "Return to Design page", "Leave the parts as they are now"};
};

}  // namespace quilm
