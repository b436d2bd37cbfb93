// The tools of the two round plots: zoom, VSWR circle and aspect.
#pragma once

#include <functional>

#include "shell/Control.h"
#include "shell/Entry.h"
#include "shell/Layout.h"

namespace quilm {

class Session;

class SmithControls {
 public:
  // `redraw` draws the plot on display anew.
  SmithControls(Page& page, Session& session, std::function<void()> redraw);

  // Fills the boxes from the session. The zoom stays as it was left; there is no VSWR circle yet.
  void Load();

  // Shows what the plot of a code has: the aspect on both round plots, zoom and VSWR circle on the Smith chart.
  void ShowFor(i16 plotCode);

  void Hide();

  Layout MakeLayout();

  Button cmdZoomIn;
  Button cmdZoomOut;
  Button cmdVSWR;
  TextBox txtVSWR;
  Label lblAspect;
  TextBox txtAspect;
  Spin UpDown1;
  Label txtAspectEntry;

 private:
  void Zoom(f32 factor);
  void RefreshZoom();
  void ToggleCircle();
  void HideCircle();
  void StepAspect(int direction);

  Entry& VSWR_;
  Entry& aspect_;
  Session& session_;
  std::function<void()> redraw_;
};

}  // namespace quilm
