#include "pages/schematic/frmSchematic.h"

#include "core/Fault.h"
#include "core/Network.h"
#include "desk/Leaving.h"
#include "files/modReadQuilmFiles.h"
#include "files/modWriteQuilmFile.h"
#include "shell/Session.h"

namespace quilm {

namespace {

constexpr i32 shortScroll = 200;
constexpr i32 longScroll = 2000;

}  // namespace

frmSchematic::frmSchematic(Session& session)
    : Page(session, PageId::Schematic, "Schematic"),
      view_(session.schematicView),
      navigation_(*this, session, NavigationRow::WithSoundEntries(session)) {
  navigation_.helpFile = "schematic.htm";
  navigation_.onGet = [&session] { GetDesignFor(session, PageId::Schematic); };
  navigation_.onSave = [&session] { SaveDesign(session, "Write Quilm File"); };
  // The drawing moves right to show what is further left.
  cmdLeftLeft_.onClick = [this] { Scroll(longScroll); };
  cmdLeft_.onClick = [this] { Scroll(shortScroll); };
  cmdRight_.onClick = [this] { Scroll(-shortScroll); };
  cmdRightRight_.onClick = [this] { Scroll(-longScroll); };
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

void frmSchematic::Draw() {
  lblEmptyList_.visible = session_.network.Stages < 1;
  try {
    lblNegativePart_.visible = HasNegativePart(session_.network);
    DrawSchematic(session_.record, view_, picSchematic_.picture);
  } catch (const Fault& fault) {
    session_.platform.MessageBox(std::string("Schematic 224\r\n") + fault.what(), Buttons::Ok, Icon::Critical, "");
  }
}

Layout frmSchematic::MakeLayout() {
  const Layout tools =
      Column({Grid(2, {Put(cmdLeftLeft_), Put(cmdRightRight_), Put(cmdLeft_), Put(cmdRight_)}),
              Grid(1, {Put(cmdSimple_)}), Group(fraMode_, Column({Put(Option0_), Put(Option1_), Put(Option2_)})),
              Group(fraShowQ_, Row({Put(optYes_), Put(optNo_)})), KeepPlace(Put(lblNegativePart_)),
              KeepPlace(Put(lblEmptyList_)), Space()});
  return Column({navigation_.MakeLayout(), Fill(Row({Fill(Put(picSchematic_)), tools}))});
}

}  // namespace quilm
