#include "pages/diplexer/frmDiplexer.h"

#include "core/DesignRecord.h"
#include "core/modGeneral.h"
#include "desk/ReturnToDesign.h"
#include "diplexer/DesignDiplexer.h"
#include "diplexer/DiplexerArms.h"
#include "display/DiplexerDrawing.h"
#include "files/export/LtspiceDiplexer.h"
#include "reports/PrintDiplexer.h"
#include "shell/Session.h"

namespace quilm {

namespace {

constexpr const char* upperEdgeReset = "Upper edge has been reset to 1.01 * Lower edge";

bool HasParts(const Diplexer& diplexer) {
  const i16 arm = ArmsOf(diplexer.DipMode)[0];
  const f32* L = ArmInductor(diplexer, arm, diplexer.DipOrder);
  const f32* C = ArmCapacitor(diplexer, arm, diplexer.DipOrder);
  return (L != nullptr ? *L : *C) > 0;
}

}  // namespace

frmDiplexer::frmDiplexer(Session& session) : Page(session, PageId::Diplexer, "Diplexer") {
  BindEntries();
  fraEntries_.Hold({&lblMode_, &lblCrossover_, &txtCrossover_, &lblFlower_, &txtFlower_, &lblFupper_, &txtFupper_,
                    &lblOrder_, &txtOrder_, &lblRipple_, &txtRipple_, &lblTermination_, &txtTermination_});
  fraCorrection_.Hold({&optPartFactor_, &optExact3dB_});
  optPartFactor_.onClick = [this] { ChooseCorrection(false); };
  optExact3dB_.onClick = [this] { ChooseCorrection(true); };
  cmdTopology_.onClick = [this] { ToggleMode(); };
  cmdAccept_.onClick = [this] { Accept(); };
  cmdPlot_.onClick = [this] {
    session_.pages.ShowPage(PageId::PlotDiplexer);
    session_.pages.UnloadPage(Id());
  };
  cmdPlot_.enabled = session.pages.Has(PageId::PlotDiplexer);
  cmdPrint_.onClick = [this] { PrintDiplexer(session_); };
  cmdSpiceSchematic_.onClick = [this] { WriteDiplexerSchematic(session_); };
  cmdResonate_.onClick = [this] { session_.pages.ShowModal(PageId::DipResonate); };
  cmdExit_.onClick = [this] { Return(); };
  acceptButton = &cmdAccept_;
  cancelButton = &cmdExit_;
}

void frmDiplexer::BindEntries() {
  entries.Bind({.box = txtCrossover_, .field = entered_.crossover, .format = FormatFrequency});
  entries.Bind({.box = txtFlower_, .field = entered_.lower, .format = FormatFrequency});
  entries.Bind({.box = txtFupper_, .field = entered_.upper, .format = FormatFrequency});
  entries.Bind({.box = txtOrder_, .field = entered_.order, .format = PlainText});
  entries.Bind({.box = txtRipple_, .field = entered_.ripple, .format = FormatValue});
  entries.Bind({.box = txtTermination_, .field = entered_.Z, .format = FormatResistance});
}

void frmDiplexer::Load() {
  const bool reset = StartDiplexer(session_.diplexer, session_.record);
  if (!HasParts(session_.diplexer)) DesignDiplexer(session_.diplexer);
  ShowEntries();
  Draw(reset ? upperEdgeReset : "");
  SetFocus(txtOrder_);
}

void frmDiplexer::Accept() {
  const bool reset = AcceptDiplexer(session_.diplexer, entered_, session_.record);
  DesignDiplexer(session_.diplexer);
  ShowEntries();
  Draw(reset ? upperEdgeReset : "");
}

void frmDiplexer::ChooseCorrection(bool exact) {
  entered_.exact3dB = exact;
  Accept();
}

void frmDiplexer::ToggleMode() {
  session_.diplexer.DipMode = session_.diplexer.DipMode == 1 ? 2 : 1;
  Accept();
}

void frmDiplexer::ShowEntries() {
  const bool bands = session_.diplexer.DipMode == 2;
  lblMode_.caption = bands ? "Bandpass and bandstop" : "Lowpass and highpass";
  lblCrossover_.visible = txtCrossover_.visible = !bands;
  lblFlower_.visible = txtFlower_.visible = lblFupper_.visible = txtFupper_.visible = bands;
  cmdResonate_.visible = !bands;
  entered_ = EntriesOf(session_.diplexer);
  (entered_.exact3dB ? optExact3dB_ : optPartFactor_).Set();
  entries.Fill();
}

void frmDiplexer::Draw(std::string_view note) {
  const Diplexer& diplexer = session_.diplexer;
  DrawDiplexer(diplexer, note, picDiplexer_.picture);
  picDiplexer_.description = DiplexerSummary(diplexer) + "  |  " + DiplexerCapacitorRatio(diplexer) + "  |  " +
                             DiplexerInductorRatio(diplexer);
}

void frmDiplexer::Return() {
  ReturnToDesign(session_);
  session_.pages.UnloadPage(Id());
}

// Crossover or lower edge, of which one shows, and the upper edge, whose place is kept: nothing below them moves.
Layout frmDiplexer::MakeLayout() {
  const Layout form = Form({{Put(lblOrder_), Put(txtOrder_)},
                            {Put(lblRipple_), Put(txtRipple_)},
                            {Put(lblTermination_), Put(txtTermination_)},
                            {Put(lblCrossover_), Put(txtCrossover_)},
                            {Put(lblFlower_), Put(txtFlower_)},
                            {KeepPlace(Put(lblFupper_)), KeepPlace(Put(txtFupper_))}});
  const Layout entering = Column({Group(fraEntries_, Column({Put(lblMode_), form})),
                                  Group(fraCorrection_, Row({Put(optPartFactor_), Put(optExact3dB_)})),
                                  Grid(2, {Put(cmdTopology_), Put(cmdAccept_)}), Space()});
  return Column(
      {Fill(Row({entering, Fill(Put(picDiplexer_))})), Row({Put(cmdPlot_), Put(cmdPrint_), Put(cmdSpiceSchematic_),
                                                            KeepPlace(Put(cmdResonate_)), Space(), Put(cmdExit_)})});
}

}  // namespace quilm
