// Where the controls of the Design page stand: families at the left, topologies as cards in the middle, the entries as
// one form at the right, the tools below. What comes and goes with family and topology keeps its place.
#include "synthesis/frmDesign.h"

namespace quilm {

Layout frmDesign::MakeLayout() {
  return Column({navigation_.MakeLayout(), Fill(Row({FamilyColumn(), Fill(TopologyCards()), EntryColumn()})), Tools()});
}

Layout frmDesign::FamilyColumn() {
  DesignControls& c = controls_;
  std::vector<Layout> families;
  for (const auto& option : c.families.Options()) families.push_back(Put(*option));
  return Column({Group("Family", Column(std::move(families))),
                 KeepPlace(Group(c.fraCauerType, Column({Put(c.optCauerTermBest), Put(c.optCauerTermsEqual)}))),
                 KeepPlace(Group(c.fraCauerBPFtop, Column({Put(c.optCauerTopNormal), Put(c.optCauerTopZigZag)}))),
                 Group("Dimensions", Column({Put(optEnglish_), Put(optMetric_)})),
                 Column({Put(lblLineWidth_), Row({Put(lblLineWidthInput_), Put(UpDown2_)})})});
}

Layout frmDesign::TopologyCards() {
  return Group("Topology", Form({{Put(lblLowpass_), TopologyRow({1, 2})},
                                 {Put(lblBandpass_), TopologyRow({3, 4, 5, 6, 7, 8})},
                                 {Put(lblHighpass_), TopologyRow({9, 10})},
                                 {Put(lblBandstop_), TopologyRow({11, 12})}}));
}

Layout frmDesign::TopologyRow(std::initializer_list<int> numbers) {
  constexpr int cardsInRow = 2;
  std::vector<Layout> cards;
  for (const int number : numbers) {
    cards.push_back(Column({Put(controls_.topologies.Option(number)), Put(controls_.thumbnails.Thumbnail(number))}));
  }
  return Grid(cardsInRow, std::move(cards));
}

Layout frmDesign::EntryColumn() {
  return Column({Group("Entries", Entries()), KeepPlace(Put(controls_.txtDesignChange)),
                 Group("Design", Grid(1, {Put(cmdTitle_), Put(cmdInfo_), Put(cmdSeeNorms_), Put(cmdManual_),
                                          Put(cmdAssistance_)}))});
}

// The readout of the ripple is wider than a box and has a line for itself.
Layout frmDesign::Entries() {
  DesignControls& c = controls_;
  return Column({Form({
                     {Put(c.lblOrder), Row({Put(c.lblOrderInput), Put(c.UpDown1)})},
                     {Put(c.lblBandwidth), Row({Put(c.txtBandwidth), Put(c.lblRipple)})},
                     {KeepPlace(Put(c.lblCenterFrequency)), KeepPlace(Put(c.txtCenterFrequency))},
                     {Put(c.lblInputTerm), Put(c.txtInputTerm)},
                     {KeepPlace(Put(c.lblPassbandRipple)), KeepPlace(Put(c.txtPassbandRipple))},
                 }),
                 Row({Space(), KeepPlace(Put(c.lblVSWR))}),
                 Form({
                     {KeepPlace(Put(c.lblStopbandFreq)), KeepPlace(Put(c.txtStopbandFreq))},
                     {KeepPlace(Put(c.lblStopbandDepth)), KeepPlace(Put(c.txtStopbandDepth))},
                 })});
}

Layout frmDesign::Tools() {
  constexpr int toolsInRow = 7;
  std::vector<Layout> tools;
  for (const auto& button : controls_.tools.Buttons()) tools.push_back(KeepPlace(Put(*button)));
  return Group("Tools", Grid(toolsInRow, std::move(tools)));
}

}  // namespace quilm
