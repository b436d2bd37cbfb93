#include "pages/studies/frmModulationResponsePlot.h"

#include "core/DesignRecord.h"
#include "core/Fault.h"
#include "core/modGeneral.h"
#include "display/ModulationDrawing.h"
#include "display/modPlot.h"
#include "shell/Session.h"

namespace quilm {

frmModulationResponsePlot::frmModulationResponsePlot(Session& session)
    : StudyPage(session, PageId::ModulationPlot, "Modulation Response") {
  lblHeading_.emphasised = true;
  ModulationEntries& entered = session.studies.modulation;
  const auto empty = [this] { Empty(); };
  entries.Bind({.box = txtCarrierFreq_,
                .field = ModCarrier_,
                .format = FormatFrequency,
                .ofZero = OfZero::Blank,
                .onTaken = empty});
  entries.Bind({.box = txtMFstart_, .field = entered.ModFstart, .format = FormatFrequency, .onTaken = empty});
  entries.Bind({.box = txtMFstop_, .field = entered.ModFstop, .format = FormatFrequency, .onTaken = empty});
  entries.Bind({.box = txtMdBbottom_, .field = entered.ModBottom, .format = FormatValue, .onTaken = empty});
  fraResponse_.Hold({&Option1_, &Option2_});
  Option1_.onClick = [&entered] { entered.ModRelative = 0; };
  Option2_.onClick = [&entered] { entered.ModRelative = 1; };
  cmdPlot_.onClick = [this] { Plot(); };
  cmdExitModulation_.onClick = [this] { Return(); };
  acceptButton = &cmdPlot_;
  cancelButton = &cmdExitModulation_;
}

void frmModulationResponsePlot::Load() {
  ModCarrier_ = CarrierOf(session_.record);
  entries.Fill();
  (session_.studies.modulation.ModRelative == 1 ? Option2_ : Option1_).Set();
  Empty();
  SetFocus(txtCarrierFreq_);
}

void frmModulationResponsePlot::Empty() {
  picPlot_.picture.Clear();
  picPlot_.description.clear();
}

void frmModulationResponsePlot::Plot() {
  if (!(ModCarrier_ > 0)) {
    session_.platform.MessageBox("Please enter a carrier frequency", Buttons::Ok, Icon::Exclamation, "");
    SetFocus(txtCarrierFreq_);
    return;
  }
  HoldModulation(session_.studies.modulation);
  entries.Repair();
  try {
    Draw();
  } catch (const Fault&) {
    Empty();
    TellOfFault();
  }
}

void frmModulationResponsePlot::Draw() {
  const ModulationEntries& entered = session_.studies.modulation;
  const Modulation response = ComputeModulation(session_.record, ModCarrier_, entered);
  DrawModulation({response, entered, ModCarrier_, TraceWidth(session_.record), session_.record.CircuitTitle},
                 picPlot_.picture);
  picPlot_.description = "Response from " + EntryText(entered.ModFstart, FormatFrequency) + "Hz to " +
                         EntryText(entered.ModFstop, FormatFrequency) + "Hz of modulation";
}

Layout frmModulationResponsePlot::MakeLayout() {
  const Layout frequencies =
      Group("Signal", Column({Form({{Put(lblCarrierFreq_), Put(txtCarrierFreq_)}}), Put(lblSweep_),
                              Form({{Put(lblMFstart_), Put(txtMFstart_)}, {Put(lblMFstop_), Put(txtMFstop_)}})}));
  const Layout scale = Group("Scale", Form({{Put(lblMdBbottom_), Put(txtMdBbottom_)}}));
  return Row({Fill(Put(picPlot_)),
              Column({Put(lblHeading_), frequencies, scale, Group(fraResponse_, Row({Put(Option1_), Put(Option2_)})),
                      Grid(1, {Put(cmdPlot_), Put(cmdExitModulation_)}), Space()})});
}

}  // namespace quilm
