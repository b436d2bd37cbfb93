// The marked frequencies of the plot that it stands beside.
#pragma once

#include <array>
#include <memory>

#include "core/LimitsAndMarkers.h"
#include "shell/Page.h"

namespace quilm {

class frmMarker : public Page {
 public:
  explicit frmMarker(Session& session);
  void Load() override;
  PageId Home() const override { return PageId::Plotted; }
  Layout MakeLayout() override;

  Button cmdMarkerOn{*this, "cmdMarkerOn", "Show", "Show these markers on the plots"};
  Button cmdMarkerHide{*this, "cmdMarkerHide", "Hide", "Draw the plots without the markers"};
  Button cmdMarkerErase{*this, "cmdMarkerErase", "Erase all", "Erase all markers"};
  Button cmdExit{*this, "cmdExit", "Exit", "Return to the plot; what was typed and not shown is dropped"};

 private:
  struct Marker {
    std::unique_ptr<Label> label;
    std::unique_ptr<TextBox> box;
    f32 frequency = 0;  // Hz, as typed; 0 for none
  };

  void Show();
  void Hide();
  void Erase();

  std::array<Marker, markerCount> markers_;
};

}  // namespace quilm
