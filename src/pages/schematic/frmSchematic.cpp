#include "pages/schematic/frmSchematic.h"

#include <algorithm>
#include <cmath>

#include "core/Fault.h"
#include "core/Network.h"
#include "desk/Leaving.h"
#include "files/modReadQuilmFiles.h"
#include "files/modWriteQuilmFile.h"
#include "reports/PrintSchematic.h"
#include "shell/Session.h"
#include "synthesis/DesignSummary.h"

namespace quilm {

namespace {

constexpr i32 shortScroll = 200;
constexpr i32 longScroll = 2000;
constexpr f32 zoomStep = 1.5F;
constexpr f32 leastShown = 4000;  // units of the width

}  // namespace

frmSchematic::frmSchematic(Session& session)
    : Page(session, PageId::Schematic, "Schematic"),
      view_(session.schematicView),
      navigation_(*this, session, NavigationRow::WithSoundEntries(session)) {
  navigation_.onGet = [&session] { GetDesignFor(session, PageId::Schematic); };
  navigation_.onSave = [&session] { SaveDesign(session, "Write Quilm File"); };
  navigation_.onPrint = [&session] { PrintSchematic(session); };
  // The drawing moves right to show what is further left.
  cmdLeftLeft_.onClick = [this] { Scroll(longScroll); };
  cmdLeft_.onClick = [this] { Scroll(shortScroll); };
  cmdRight_.onClick = [this] { Scroll(-shortScroll); };
  cmdRightRight_.onClick = [this] { Scroll(-longScroll); };
  cmdZoomIn_.onClick = [this] { Zoom(view_.zoom * zoomStep); };
  cmdZoomOut_.onClick = [this] { Zoom(view_.zoom / zoomStep); };
  cmdZoomFit_.onClick = [this] { Zoom(1); };
  cmdSimple_.onClick = [&session] { session.pages.ShowModal(PageId::SchematicSimple); };
  Option0_.onClick = [this] { Choose(SchematicMode::Unbalanced); };
  Option1_.onClick = [this] { Choose(SchematicMode::BalancedB); };
  Option2_.onClick = [this] { Choose(SchematicMode::BalancedA); };
  optYes_.onClick = [this] { ShowLosses(true); };
  optNo_.onClick = [this] { ShowLosses(false); };
  fraMode_.Hold({&Option0_, &Option1_, &Option2_});
  fraShowQ_.Hold({&optYes_, &optNo_});
}

void frmSchematic::Load() {
  navigation_.Load();
  CutStages();
  view_ = {};
  Option0_.Set();
  optNo_.Set();
  Draw();
}

// The main pages' close box ends the program.
void frmSchematic::CloseBox() { LeaveByCloseBox(session_); }

void frmSchematic::CutStages() {
  Network& network = session_.network;
  if (network.Stages <= network.StagesMax) return;
  session_.platform.MessageBox("Only first " + std::to_string(network.StagesMax) + " items used", Buttons::Ok,
                               Icon::Information, "");
  network.Stages = network.StagesMax;
}

void frmSchematic::Choose(SchematicMode mode) {
  view_.mode = mode;
  Draw();
}

void frmSchematic::ShowLosses(bool show) {
  view_.ShowQ = show;
  Draw();
}

void frmSchematic::Scroll(i32 distance) {
  view_.SchemOffset += distance;
  Draw();
}

// About the middle of what is on display, and no further over the ends of the network than it takes.
void frmSchematic::Zoom(f32 zoom) {
  const f32 whole = SchematicWidth(session_.network);
  const f32 held = std::clamp(zoom, 1.0F, whole / leastShown);
  const f32 middle = whole / view_.zoom / 2 - static_cast<f32>(view_.SchemOffset);
  const f32 shown = whole / held;
  view_.zoom = held;
  view_.SchemOffset = static_cast<i32>(std::lround(std::clamp(shown / 2 - middle, shown - whole, 0.0F)));
  Draw();
}

void frmSchematic::RefreshZoom() {
  cmdZoomIn_.enabled = session_.network.Stages > 0 && view_.zoom < SchematicWidth(session_.network) / leastShown;
  cmdZoomOut_.enabled = view_.zoom > 1;
}

void frmSchematic::Draw() {
  lblEmptyList_.visible = session_.network.Stages < 1;
  picSchematic_.description =
      std::to_string(session_.network.Stages) + " stages  |  " + DesignSummary(session_.record, true);
  try {
    lblNegativePart_.visible = HasNegativePart(session_.network);
    RefreshZoom();
    DrawSchematic(session_.record, view_, picSchematic_.picture);
  } catch (const Fault& fault) {
    session_.platform.MessageBox(std::string("Schematic 224\r\n") + fault.what(), Buttons::Ok, Icon::Critical, "");
  }
}

Layout frmSchematic::MakeLayout() {
  const Layout tools = Column({Grid(2, {Put(cmdLeftLeft_), Put(cmdRightRight_), Put(cmdLeft_), Put(cmdRight_)}),
                               Grid(1, {Put(cmdZoomIn_), Put(cmdZoomOut_), Put(cmdZoomFit_), Put(cmdSimple_)}),
                               Group(fraMode_, Column({Put(Option0_), Put(Option1_), Put(Option2_)})),
                               Group(fraShowQ_, Row({Put(optYes_), Put(optNo_)})), KeepPlace(Put(lblNegativePart_)),
                               KeepPlace(Put(lblEmptyList_)), Space()});
  return Column({navigation_.MakeLayout(), Fill(Row({Fill(Put(picSchematic_)), tools}))});
}

}  // namespace quilm
