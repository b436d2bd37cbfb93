#include "pages/plot/PlotMouse.h"

#include "core/DesignRecord.h"
#include "core/ResponseArray.h"
#include "display/LimitEntry.h"
#include "display/SheetDrawing.h"
#include "display/modReadout.h"
#include "shell/History.h"
#include "shell/Session.h"

namespace quilm {

PlotMouse::PlotMouse(Session& session, PictureBox& plot) : session_(session), plot_(plot) {
  plot.onMouseDown = [this](f32 x, f32 y, MouseButton button) { PlotMouseDown(button, x, y); };
  plot.onMouseMove = [this](f32 x, f32 y, MouseButton button) { PlotMouseMove(button, x, y); };
  plot.onMouseUp = [this](f32 x, f32 y, MouseButton /*button*/) { PlotMouseUp(x, y); };
}

void PlotMouse::PlotMouseDown(MouseButton button, f32 x, f32 y) {
  if (button != MouseButton::Left) return;
  if (EntersLimits(session_)) {
    EnterLimit(x, y);
    return;
  }
  MouseIsDown_ = -1;
  ShowReadout(x, y);
}

void PlotMouse::PlotMouseMove(MouseButton button, f32 x, f32 y) {
  if (EntersLimits(session_)) {
    ShowLimitPointer(x, y);
  } else if (button == MouseButton::Left && MouseIsDown_ != 0) {
    ShowReadout(x, y);
  }
}

void PlotMouse::PlotMouseUp(f32 /*x*/, f32 /*y*/) {
  MouseIsDown_ = 0;
  if (!EntersLimits(session_)) plot_.mark.Clear();
}

// An area is a step of its own that bears its name.
void PlotMouse::EnterLimit(f32 x, f32 y) {
  const History::Group group(session_, "Limit area", History::Group::Meanwhile::UndoTakesAllBack);
  const LimitClick did = TakeLimitClick(session_, x, y);
  if (did == LimitClick::Nothing) return;
  plot_.mark.Clear();
  if (did == LimitClick::NoRoom) {
    session_.note = "This plot has its ten limit areas; no more can be entered";
  } else {
    ShowLimitPointer(x, y);
  }
}

// Outside the frame nothing would be entered.
void PlotMouse::ShowLimitPointer(f32 x, f32 y) {
  plot_.mark.SetScale(plot_.picture.CurrentScale());
  plot_.mark.Clear();
  DrawLimitPointer(session_, x, y, plot_.mark);
}

// Outside the frame the last readout stays.
void PlotMouse::ShowReadout(f32 x, f32 y) {
  if (session_.record.ResponsesValid != 1 || !InReadoutFrame(x, y)) return;
  plot_.mark.SetScale(plot_.picture.CurrentScale());
  plot_.mark.Clear();
  const auto index = static_cast<std::size_t>(CursorIndex(session_.record, x));
  DrawReadout(SetupOf(session_), SpansOf(session_.responses, responseBound), index, plot_.mark);
}

}  // namespace quilm
