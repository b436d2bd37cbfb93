#include "pages/plot/frmMarker.h"

#include <algorithm>
#include <string>

#include "core/DesignRecord.h"
#include "core/modGeneral.h"
#include "display/SheetDrawing.h"
#include "shell/Session.h"

namespace quilm {

namespace {

f32 AtLeastNone(f32 frequency) { return std::max(frequency, 0.0F); }

}  // namespace

frmMarker::frmMarker(Session& session) : Page(session, PageId::Marker, "Markers") {
  int number = 0;
  for (Marker& marker : markers_) {
    const std::string digit = std::to_string(++number);
    marker.label = std::make_unique<Label>(*this, "lblMarkerFrequency" + digit, "Frequency " + digit + ":");
    marker.box = std::make_unique<TextBox>(*this, "txtMarkerFrequency" + digit, "Frequency " + digit + ", Hz",
                                           "A frequency to mark, or nothing");
    entries.Bind({.box = *marker.box,
                  .field = marker.frequency,
                  .format = FormatFrequency,
                  .hold = AtLeastNone,
                  .ofZero = OfZero::Blank});
  }
  cmdMarkerOn.onClick = [this] { Show(); };
  cmdMarkerHide.onClick = [this] { Hide(); };
  cmdMarkerErase.onClick = [this] { Erase(); };
  cmdExit.onClick = [this] { session_.pages.UnloadPage(Id()); };
  acceptButton = &cmdMarkerOn;
  cancelButton = &cmdExit;
}

void frmMarker::Load() {
  int number = 0;
  for (Marker& marker : markers_) marker.frequency = session_.record.MarkerFreq[++number];
  entries.Fill();
  SetFocus(*markers_.front().box);
}

void frmMarker::Show() {
  DesignRecord& record = session_.record;
  int number = 0;
  for (const Marker& marker : markers_) record.MarkerFreq[++number] = marker.frequency;
  const auto& frequencies = record.MarkerFreq;
  record.MarkersShown = std::any_of(frequencies.begin(), frequencies.end(), [](f32 f) { return f > 0; }) ? 1 : 0;
  entries.Fill();
  RedrawPlot(session_);
}

// What was typed waits for Show.
void frmMarker::Hide() {
  session_.record.MarkersShown = 0;
  RedrawPlot(session_);
}

void frmMarker::Erase() {
  session_.record.MarkerFreq.Fill(0);
  session_.record.MarkersShown = 0;
  Load();
  RedrawPlot(session_);
}

Layout frmMarker::MakeLayout() {
  std::vector<FormRow> rows;
  for (const Marker& marker : markers_) rows.push_back({Put(*marker.label), Put(*marker.box)});
  return Column({Form(std::move(rows)),
                 Grid(1, {Put(cmdMarkerOn), Put(cmdMarkerHide), Put(cmdMarkerErase), Put(cmdExit)}), Space()});
}

}  // namespace quilm
