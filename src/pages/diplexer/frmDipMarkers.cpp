#include "pages/diplexer/frmDipMarkers.h"

#include <algorithm>
#include <string>

#include "core/modGeneral.h"
#include "shell/Session.h"

namespace quilm {

namespace {

f32 AtLeastNone(f32 frequency) { return std::max(frequency, 0.0F); }

}  // namespace

frmDipMarkers::frmDipMarkers(Session& session) : Page(session, PageId::DipMarkers, "Markers") {
  int number = 0;
  for (Marker& marker : markers_) {
    const std::string box = "Text" + std::to_string(number);
    const std::string shown = std::to_string(++number);
    marker.label = std::make_unique<Label>(*this, "lblFrequency" + shown, "Frequency " + shown + ":");
    marker.box =
        std::make_unique<TextBox>(*this, box, "Frequency " + shown + ", Hz", "A frequency to mark, or nothing");
    entries.Bind({.box = *marker.box,
                  .field = marker.frequency,
                  .format = FormatFrequency,
                  .hold = AtLeastNone,
                  .ofZero = OfZero::Blank});
  }
  cmdShow_.onClick = [this] { Show(); };
  cmdHide_.onClick = [this] { Hide(); };
  cmdExit_.onClick = [this] { session_.pages.UnloadPage(Id()); };
  acceptButton = &cmdShow_;
  cancelButton = &cmdExit_;
}

void frmDipMarkers::Load() {
  auto shown = session_.diplexer.DipMarker.begin();
  for (Marker& marker : markers_) marker.frequency = *shown++;
  entries.Fill();
  SetFocus(*markers_.front().box);
}

void frmDipMarkers::Show() {
  auto shown = session_.diplexer.DipMarker.begin();
  for (const Marker& marker : markers_) *shown++ = marker.frequency;
  session_.diplexer.DipMarkersOn = 1;
  session_.pages.UnloadPage(Id());
}

// What was typed was not asked for.
void frmDipMarkers::Hide() {
  session_.diplexer.DipMarkersOn = 0;
  session_.pages.UnloadPage(Id());
}

Layout frmDipMarkers::MakeLayout() {
  std::vector<FormRow> rows;
  for (const Marker& marker : markers_) rows.push_back({Put(*marker.label), Put(*marker.box)});
  return Column(
      {Put(lblHeading_), Form(std::move(rows)), Grid(1, {Put(cmdShow_), Put(cmdHide_), Put(cmdExit_)}), Space()});
}

}  // namespace quilm
