// The normalised values of the design.
#pragma once

#include "shell/Page.h"

namespace quilm {

class frmSeeNormalized : public Page {
 public:
  explicit frmSeeNormalized(Session& session);
  void Load() override;
  Layout MakeLayout() override;

 private:
  void Print();

  Label lblFamily_{*this, "lblFamily", ""};
  Label lblEntries_{*this, "lblEntries", ""};
  Label lblCaption_{*this, "lblCaption", ""};
  Label lblInputTermination_{*this, "lblInputTermination", "Input termination: 1"};
  ListBox lstValues_{*this, "lstValues", "Normalized values by position"};
  Label lblOutputTermination_{*this, "lblOutputTermination", ""};
  Button cmdPrint_{*this, "cmdPrint", "Print", "Print the normalized values"};
  Button cmdExit_{*this, "cmdExit", "Return", "Return to the Design page"};
};

}  // namespace quilm
