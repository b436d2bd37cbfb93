#include "pages/plot/SmithControls.h"

#include <algorithm>
#include <cmath>

#include "core/modGeneral.h"
#include "display/PlotKinds.h"
#include "display/modSmith.h"
#include "shell/EntryText.h"
#include "shell/Session.h"

namespace quilm {

namespace {

constexpr f32 leastAspect = 0.5F;
constexpr f32 mostAspect = 1.5F;
constexpr f32 leastVSWR = 1;
constexpr f32 mostVSWR = 20;

// What the box says, held within its limits.
f32 Held(const TextBox& box, f32 present, f32 least, f32 most) {
  ParseBox(box, present, FormatValue);
  return std::clamp(present, least, most);
}

}  // namespace

SmithControls::SmithControls(Page& page, Session& session, std::function<void()> redraw)
    : cmdZoomIn(page, "cmdZoomIn", "Zoom in", "Show the middle of the chart twice as large"),
      cmdZoomOut(page, "cmdZoomOut", "Zoom out", "Show twice as much of the chart"),
      cmdVSWR(page, "cmdVSWR", "VSWR", "Show or hide the circle of this VSWR"),
      txtVSWR(page, "txtVSWR", "VSWR of the circle", "1 to 20"),
      lblAspect(page, "lblAspect", "Aspect"),
      txtAspect(page, "txtAspect", "Aspect of the chart", "Width over height of the chart"),
      UpDown1(page, "UpDown1", "Aspect of the chart in per cent"),
      txtAspectEntry(page, "txtAspectEntry", "0.5 to 1.5"),
      session_(session),
      redraw_(std::move(redraw)) {
  cmdZoomIn.onClick = [this] { Zoom(session_.smithView.ZoomFactor * 2); };
  cmdZoomOut.onClick = [this] { Zoom(session_.smithView.ZoomFactor / 2); };
  cmdVSWR.onClick = [this] { ToggleCircle(); };
  txtVSWR.onChange = [this] { EnterVSWR(); };
  txtVSWR.onLeave = [this] { txtVSWR.text = EntryText(session_.smithView.VSWRCircle, FormatValue); };
  txtAspect.onChange = [this] { EnterAspect(); };
  txtAspect.onLeave = [this] { txtAspect.text = EntryText(session_.record.SmithAspect, FormatValue); };
  UpDown1.onUp = [this] { StepAspect(1); };
  UpDown1.onDown = [this] { StepAspect(-1); };
}

void SmithControls::Load() {
  txtVSWR.text = EntryText(session_.smithView.VSWRCircle, FormatValue);
  txtAspect.text = EntryText(session_.record.SmithAspect, FormatValue);
  RefreshZoom();
}

void SmithControls::ShowFor(i16 plotCode) {
  for (Control* control : std::initializer_list<Control*>{&cmdZoomIn, &cmdZoomOut, &cmdVSWR, &txtVSWR}) {
    control->visible = plotCode == smithCode;
  }
  for (Control* control : std::initializer_list<Control*>{&lblAspect, &txtAspect, &UpDown1, &txtAspectEntry}) {
    control->visible = !IsRectangular(plotCode);
  }
}

void SmithControls::Zoom(f32 factor) {
  session_.smithView.ZoomFactor = std::clamp(factor, 1.0F, largestZoom);
  RefreshZoom();
  redraw_();
}

void SmithControls::RefreshZoom() {
  cmdZoomIn.enabled = session_.smithView.ZoomFactor < largestZoom;
  cmdZoomOut.enabled = session_.smithView.ZoomFactor > 1;
}

void SmithControls::ToggleCircle() {
  SmithView& view = session_.smithView;
  view.VSWRCircle = Held(txtVSWR, view.VSWRCircle, leastVSWR, mostVSWR);
  txtVSWR.text = EntryText(view.VSWRCircle, FormatValue);
  view.VSWRCircleOn = view.VSWRCircleOn == 1 ? 0 : 1;
  redraw_();
}

// The circle on display is not that of the new figure: it goes, and comes back with the button.
void SmithControls::EnterVSWR() {
  SmithView& view = session_.smithView;
  view.VSWRCircle = Held(txtVSWR, view.VSWRCircle, leastVSWR, mostVSWR);
  if (view.VSWRCircleOn == 0) return;
  view.VSWRCircleOn = 0;
  redraw_();
}

// The figure takes effect with each keystroke, but the box is left to the user until the focus goes elsewhere.
void SmithControls::EnterAspect() {
  session_.record.SmithAspect = Held(txtAspect, session_.record.SmithAspect, leastAspect, mostAspect);
  redraw_();
}

// In steps of one per cent.
void SmithControls::StepAspect(int direction) {
  const f32 stepped = (std::round(session_.record.SmithAspect * 100) + static_cast<f32>(direction)) * 0.01F;
  session_.record.SmithAspect = std::clamp(stepped, leastAspect, mostAspect);
  txtAspect.text = EntryText(session_.record.SmithAspect, FormatValue);
  redraw_();
}

// They hold their place on the other plots, so that the picture keeps its size from plot to plot.
Layout SmithControls::MakeLayout() {
  return KeepPlace(Column({Grid(1, {Put(cmdZoomIn), Put(cmdZoomOut), Put(cmdVSWR), Put(txtVSWR)}), Put(lblAspect),
                           Row({Put(txtAspect), Put(UpDown1)}), Put(txtAspectEntry)}));
}

}  // namespace quilm
