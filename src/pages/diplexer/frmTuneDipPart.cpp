#include "pages/diplexer/frmTuneDipPart.h"

#include <string>

#include "core/Network.h"
#include "core/modGeneral.h"
#include "diplexer/DiplexerArms.h"
#include "schematic/ItemPicture.h"
#include "shell/Session.h"

namespace quilm {

namespace {

std::string InductanceText(f32 L) { return EntryText(L, FormatInductance); }
std::string CapacitanceText(f32 C) { return EntryText(C, FormatCapacitance); }

}  // namespace

frmTuneDipPart::frmTuneDipPart(Session& session) : Page(session, PageId::TuneDipPart, "Tune part") {
  for (Spin* spin : {&UpDown1_, &UpDown2_}) {
    constexpr i32 roomForValue = 11;
    spin->large = true;
    spin->room = roomForValue;
    spin->onUp = [this, spin] { Step(*spin, StepWay::Up); };
    spin->onDown = [this, spin] { Step(*spin, StepWay::Down); };
  }
  cmdPrevious_.onClick = [this] { GoTo(part_ - 1); };
  cmdNext_.onClick = [this] { GoTo(part_ + 1); };
  cmdExit_.onClick = [this] { session_.pages.UnloadPage(Id()); };
  cancelButton = &cmdExit_;
}

void frmTuneDipPart::Load() {
  const bool pairs = session_.diplexer.DipMode == 2;
  lblSelect_.caption = pairs ? "Select the pair:" : "Select the part:";
  lblTune_.caption = pairs ? "Tune the pair:" : "Tune the part:";
  for (Control* control : std::initializer_list<Control*>{&lblUpDown2_, &lblValue2_, &UpDown2_}) {
    control->visible = pairs;
  }
  GoTo(1);
}

int frmTuneDipPart::Count() const { return 2 * session_.diplexer.DipOrder; }

frmTuneDipPart::Selected frmTuneDipPart::Part() const {
  const auto [one, other] = ArmsOf(session_.diplexer.DipMode);
  const int order = session_.diplexer.DipOrder;
  return part_ <= order ? Selected{one, part_} : Selected{other, part_ - order};
}

void frmTuneDipPart::GoTo(int part) {
  part_ = part;
  turned = &UpDown1_;
  cmdPrevious_.enabled = part_ > 1;
  cmdNext_.enabled = part_ < Count();
  ShowPart();
  SetFocus(UpDown1_);
}

// The control of a single part tunes what there is; those of a pair the inductor and the capacitor.
f32* frmTuneDipPart::Tuned(const Spin& spin) {
  const auto [arm, k] = Part();
  f32* L = ArmInductor(session_.diplexer, arm, k);
  return L != nullptr && &spin == &UpDown1_ ? L : ArmCapacitor(session_.diplexer, arm, k);
}

void frmTuneDipPart::ShowPart() {
  const auto [arm, k] = Part();
  const std::string number = std::to_string(k);
  const f32* L = ArmInductor(session_.diplexer, arm, k);
  const f32* C = ArmCapacitor(session_.diplexer, arm, k);
  std::vector<ItemLine> lines;
  if (L != nullptr) lines.push_back({"L" + number + ":  " + InductanceText(*L)});
  if (C != nullptr) lines.push_back({"C" + number + ":  " + CapacitanceText(*C)});
  const Network network = LoadDiplexerArm(session_.diplexer, arm, session_.network);
  DrawItem(network, {ItemPlace::Of::StageAlone, static_cast<i16>(k)}, lines, picPart_.picture);

  lblStage_.caption = std::string("Stage (") + ArmName(arm) + "): " + number;
  picPart_.description = lblStage_.caption;
  for (const ItemLine& line : lines) picPart_.description += ", " + line.text;
  lblUpDown1_.caption = lblUpDown2_.caption = std::string("Stage (") + ArmShortName(arm) + "): " + number;
  lblValue1_.caption = L != nullptr ? InductanceText(*L) : CapacitanceText(*C);
  UpDown1_.accessibleName = "Tune " + std::string(L != nullptr ? "L" : "C") + number;
  if (C != nullptr) lblValue2_.caption = CapacitanceText(*C);
  UpDown2_.accessibleName = "Tune C" + number;
}

void frmTuneDipPart::Step(Spin& spin, StepWay way) {
  turned = &spin;
  if (!StepDipPart(session_.diplexer, *Tuned(spin), way)) return;
  ShowPart();
  if (Page* plot = session_.pages.Beside()) plot->Reload();
}

Layout frmTuneDipPart::MakeLayout() {
  return Column(
      {Put(lblSelect_), Put(picPart_), Put(lblStage_), Grid(2, {Put(cmdPrevious_), Put(cmdNext_)}), Put(lblTune_),
       Form({{Put(lblUpDown1_), Number(lblValue1_, UpDown1_)}, {Put(lblUpDown2_), Number(lblValue2_, UpDown2_)}}),
       Grid(1, {Put(cmdExit_)}), Space()});
}

}  // namespace quilm
