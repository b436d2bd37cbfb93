// The shapes of limit areas on the Plot page: buttons and palette, in sight while areas are entered.
#pragma once

#include <memory>
#include <vector>

#include "shell/Control.h"
#include "shell/Layout.h"

namespace quilm {

class Session;

class LimitTools {
 public:
  // The palette lies in `plot`, whose cells are areas of it.
  LimitTools(Page& page, Session& session, PictureBox& plot);

  // Shows or hides them, as an entry is in progress or not.
  void Refresh();

  Layout MakeLayout();

  Label lblLimitShapes;
  std::vector<std::unique_ptr<Button>> shapeButtons;  // cmdLimit1 to cmdLimit9

 private:
  void Choose(i16 shape);
  HitAreas PaletteAreas();

  Session& session_;
  PictureBox& plot_;
  bool entering_ = false;  // what was shown last
};

// Open the Limits and the Markers page beside the plot.
void OpenLimits(Session& session);
void OpenMarkers(Session& session);

}  // namespace quilm
