#include "pages/plot/SmithControls.h"

#include <algorithm>
#include <cmath>

#include "core/DesignRecord.h"
#include "core/EntryLimits.h"
#include "core/modGeneral.h"
#include "display/PlotKinds.h"
#include "display/modSmith.h"
#include "shell/Page.h"
#include "shell/Session.h"

namespace quilm {

namespace {

f32 HeldVSWR(f32 VSWR) { return limitsOf::VSWRCircle.Held(VSWR); }
f32 HeldAspect(f32 aspect) { return limitsOf::SmithAspect.Held(aspect); }

}  // namespace

SmithControls::SmithControls(Page& page, Session& session, std::function<void()> redraw)
    : cmdZoomIn(page, "cmdZoomIn", "Zoom in", "Show the middle of the chart twice as large"),
      cmdZoomOut(page, "cmdZoomOut", "Zoom out", "Show twice as much of the chart"),
      cmdVSWR(page, "cmdVSWR", "VSWR", "Show or hide the circle of this VSWR"),
      txtVSWR(page, "txtVSWR", "VSWR of the circle", "1 to 20"),
      lblAspect(page, "lblAspect", "Aspect"),
      txtAspect(page, "txtAspect", "Aspect of the chart", "Width of the chart, 0.5 to 1.5; at 0.75 it is a circle"),
      UpDown1(page, "UpDown1", "Aspect of the chart in per cent"),
      txtAspectEntry(page, "txtAspectEntry", "0.5 to 1.5"),
      VSWR_(page.entries.Bind({.box = txtVSWR,
                               .field = session.smithView.VSWRCircle,
                               .format = FormatValue,
                               .hold = HeldVSWR,
                               .onTaken = [this] { HideCircle(); }})),
      aspect_(page.entries.Bind({.box = txtAspect,
                                 .field = session.record.SmithAspect,
                                 .format = FormatValue,
                                 .hold = HeldAspect,
                                 .onTaken = [this] { redraw_(); }})),
      session_(session),
      redraw_(std::move(redraw)) {
  cmdZoomIn.onClick = [this] { Zoom(session_.smithView.ZoomFactor * 2); };
  cmdZoomOut.onClick = [this] { Zoom(session_.smithView.ZoomFactor / 2); };
  cmdVSWR.onClick = [this] { ToggleCircle(); };
  UpDown1.onUp = [this] { StepAspect(1); };
  UpDown1.onDown = [this] { StepAspect(-1); };
}

void SmithControls::Load() {
  session_.smithView = {.ZoomFactor = session_.smithView.ZoomFactor};
  VSWR_.Fill();
  aspect_.Fill();
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

void SmithControls::Hide() {
  for (Control* control : std::initializer_list<Control*>{&cmdZoomIn, &cmdZoomOut, &cmdVSWR, &txtVSWR, &lblAspect,
                                                          &txtAspect, &UpDown1, &txtAspectEntry}) {
    control->visible = false;
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
  VSWR_.Take();
  VSWR_.Leave();
  view.VSWRCircleOn = view.VSWRCircleOn == 1 ? 0 : 1;
  redraw_();
}

// The circle on display is not that of the new figure: it goes, and comes back with the button.
void SmithControls::HideCircle() {
  SmithView& view = session_.smithView;
  if (view.VSWRCircleOn == 0) return;
  view.VSWRCircleOn = 0;
  redraw_();
}

// In steps of one per cent.
void SmithControls::StepAspect(int direction) {
  const f32 stepped = (std::round(session_.record.SmithAspect * 100) + static_cast<f32>(direction)) * 0.01F;
  session_.record.SmithAspect = HeldAspect(stepped);
  aspect_.Fill();
  redraw_();
}

// The widest row holds its place on the other plots, so that the picture keeps its size from plot to plot.
Layout SmithControls::MakeLayout() {
  return Column({Grid(1, {Put(cmdZoomIn), Put(cmdZoomOut), Put(cmdVSWR), Put(txtVSWR)}), Put(lblAspect),
                 KeepPlace(Row({Put(txtAspect), Put(UpDown1)})), Put(txtAspectEntry)});
}

}  // namespace quilm
