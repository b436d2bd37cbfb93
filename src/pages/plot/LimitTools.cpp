#include "pages/plot/LimitTools.h"

#include <string>

#include "core/LimitArea.h"
#include "display/LimitDrawing.h"
#include "display/LimitEntry.h"
#include "shell/History.h"
#include "shell/Session.h"

namespace quilm {

LimitTools::LimitTools(Page& page, Session& session, PictureBox& plot)
    : lblLimitShapes(page, "lblLimitShapes", "Shape of the limit"), session_(session), plot_(plot) {
  for (i16 shape = 1; shape <= limitShapes; ++shape) {
    auto button = std::make_unique<Button>(page, "cmdLimit" + std::to_string(shape), "", LimitShapeName(shape));
    button->role = ButtonRole::Thumbnail;
    button->picture = LimitShapePicture(shape);
    button->onClick = [this, shape] { Choose(shape); };
    shapeButtons.push_back(std::move(button));
  }
  Refresh();
}

void LimitTools::Choose(i16 shape) {
  ChooseLimitShape(session_, shape);
  plot_.mark.Clear();
  session_.note = ShapeOf(shape).reach == LimitReach::Band
                      ? "Click on the plot at one end of the band, then at the other; the second click gives the value"
                      : "Click on the plot where the limit is";
}

// By mouse they are where the eye is already.
HitAreas LimitTools::PaletteAreas() {
  HitAreas areas;
  for (i16 shape = 1; shape <= limitShapes; ++shape) {
    const PlotBox cell = LimitCell(shape);
    areas.push_back({.name = "LimitShape" + std::to_string(shape),
                     .from = {cell.left, cell.top},
                     .to = {cell.Right(), cell.Bottom()},
                     .toolTip = LimitShapeName(shape),
                     .onPress = [this, shape] { Choose(shape); }});
  }
  return areas;
}

void LimitTools::Refresh() {
  const bool entering = EntersLimits(session_);
  if (entering_ && !entering) plot_.mark.Clear();  // what the pointer said
  entering_ = entering;
  lblLimitShapes.visible = entering;
  for (std::size_t i = 0; i < shapeButtons.size(); ++i) {
    shapeButtons[i]->visible = entering;
    shapeButtons[i]->pressed = session_.plot.limitEntry.LimitShapeChoice == static_cast<i16>(i + 1);
  }
  plot_.areas = entering ? PaletteAreas() : HitAreas{};
}

Layout LimitTools::MakeLayout() {
  constexpr int columns = 3;
  std::vector<Layout> buttons;
  for (const auto& button : shapeButtons) buttons.push_back(Put(*button));
  return Column({Put(lblLimitShapes), Grid(columns, std::move(buttons))});
}

void OpenLimits(Session& session) { session.pages.ShowBeside(PageId::Limits); }

void OpenMarkers(Session& session) {
  const History::Tool tool(session);  // each change can be taken back while the page is open
  session.pages.ShowBeside(PageId::Marker);
}

}  // namespace quilm
