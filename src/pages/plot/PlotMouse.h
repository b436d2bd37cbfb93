// The mouse on the plot: while the left button is held in the frame, the readout follows it; while limit areas are
// entered, it enters them.
#pragma once

#include "core/Types.h"
#include "shell/Control.h"

namespace quilm {

class Session;

class PlotMouse {
 public:
  // Takes the mouse events of `plot`. The readout goes into the box's mark, apart from the picture, so that nothing of
  // it stays behind.
  PlotMouse(Session& session, PictureBox& plot);

  // Positions in the plot's scale.
  void PlotMouseDown(MouseButton button, f32 x, f32 y);
  void PlotMouseMove(MouseButton button, f32 x, f32 y);
  void PlotMouseUp(f32 x, f32 y);

 private:
  void ShowReadout(f32 x, f32 y);
  void EnterLimit(f32 x, f32 y);
  void ShowLimitPointer(f32 x, f32 y);

  Session& session_;
  PictureBox& plot_;
  i16 MouseIsDown_ = 0;  // -1 while the left button is held
};

}  // namespace quilm
