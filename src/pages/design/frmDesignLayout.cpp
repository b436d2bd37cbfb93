// Where the controls of the Design page stand: families at the left, topologies as cards in the middle, the entries as
// one form at the right, the tools below. What comes and goes with family and topology keeps its place.
#include "pages/design/frmDesign.h"

namespace quilm {

Layout frmDesign::MakeLayout() {
  return Column({navigation_.MakeLayout(), Fill(Row({FamilyColumn(), Fill(TopologyCards()), EntryColumn()})), Tools()});
}

// What most families do not show stands last: its place is no hole there.
Layout frmDesign::FamilyColumn() {
  DesignControls& c = controls_;
  std::vector<Layout> families;
  for (const auto& option : c.families.Options()) families.push_back(Put(*option));
  return Column({Group("Family", Column({Column(std::move(families)), Put(cmdHelpFamily_)})),
                 Group("Dimensions", Column({Put(optEnglish_), Put(optMetric_)})),
                 Form({{Put(lblLineWidth_), Number(lblLineWidthInput_, UpDown2_)}}),
                 KeepPlace(Group(c.fraCauerType, Column({Put(c.optCauerTermBest), Put(c.optCauerTermsEqual)}))),
                 KeepPlace(Group(c.fraCauerBPFtop, Column({Put(c.optCauerTopNormal), Put(c.optCauerTopZigZag)})))});
}

// Two cards in a row, under the kind that they are of; all rows share the height.
Layout frmDesign::TopologyCards() {
  const auto row = [this](int first) {
    const auto card = [this](int number) {
      return Card(controls_.topologies.Option(number), controls_.guides.Guide(number));
    };
    return Row({card(first), card(first + 1)});
  };
  return Group("Topology", Column({Group("Lowpass", row(1)), Group("Bandpass", Column({row(3), row(5), row(7)})),
                                   Group("Highpass", row(9)), Group("Bandstop", row(11))}));
}

// Below stands what is left of the window's height.
Layout frmDesign::EntryColumn() {
  return Column({Group("Entries", Entries()), KeepPlace(Put(controls_.txtDesignChange)), DesignButtons(),
                 Put(preview_.picPreview), Space()});
}

Layout frmDesign::DesignButtons() {
  return Group("Design", Column({Grid(2, {Put(cmdTitle_), Put(cmdInfo_), Put(cmdManual_), Put(cmdAssistance_)}),
                                 Grid(1, {Put(cmdSeeNorms_)})}));
}

// What every design has stands first, so that the places of what is hidden are at the end. The readout of the ripple is
// wider than a box and has a line for itself.
Layout frmDesign::Entries() {
  DesignControls& c = controls_;
  const auto row = [](Label& label, TextBox& box, const char* unit) {
    return FormRow{KeepPlace(Put(label)), KeepPlace(Put(box)), Word(unit, box)};
  };
  return Form({{Put(c.lblOrder), Number(c.lblOrderInput, c.UpDown1)},
               row(c.lblBandwidth, c.txtBandwidth, "Hz"),
               Under(Row({KeepPlace(Word("edge at", c.lblRipple)), KeepPlace(Put(c.lblRipple))})),
               row(c.lblInputTerm, c.txtInputTerm, "ohms"),
               row(c.lblCenterFrequency, c.txtCenterFrequency, "Hz"),
               row(c.lblPassbandRipple, c.txtPassbandRipple, "dB"),
               Across(KeepPlace(Put(c.lblVSWR))),
               row(c.lblStopbandFreq, c.txtStopbandFreq, "Hz"),
               row(c.lblStopbandDepth, c.txtStopbandDepth, "dB")});
}

Layout frmDesign::Tools() {
  constexpr int toolsInRow = 7;
  std::vector<Layout> tools;
  for (const auto& button : controls_.tools.Buttons()) tools.push_back(KeepPlace(Put(*button)));
  return Group("Tools", Grid(toolsInRow, std::move(tools)));
}

}  // namespace quilm
