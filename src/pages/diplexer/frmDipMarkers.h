// The marked frequencies of the diplexer's plot, beside which it stands.
#pragma once

#include <array>
#include <memory>

#include "shell/Page.h"

namespace quilm {

class frmDipMarkers : public Page {
 public:
  explicit frmDipMarkers(Session& session);
  void Load() override;
  PageId Home() const override { return PageId::PlotDiplexer; }
  Layout MakeLayout() override;

 private:
  struct Marker {
    std::unique_ptr<Label> label;
    std::unique_ptr<TextBox> box;
    f32 frequency = 0;  // Hz, as typed; 0 for none
  };

  void Show();
  void Hide();

  Label lblHeading_{*this, "lblHeading", "Enter marker frequencies in Hz as desired."};
  std::array<Marker, 9> markers_;
  Button cmdShow_{*this, "cmdShow", "Show", "Show these markers on the plot"};
  Button cmdHide_{*this, "cmdHide", "Hide", "Draw the plot without the markers"};
  Button cmdExit_{*this, "cmdExit", "Exit", "Return to the plot; what was typed and not shown is dropped"};
};

}  // namespace quilm
