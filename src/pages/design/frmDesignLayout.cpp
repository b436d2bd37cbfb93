// Where the controls of the Design page stand: families at the left, topologies as cards in the middle, the entries as
// one form at the right, the tools below. What comes and goes with family and topology keeps its place.
#include <map>

#include "pages/design/frmDesign.h"

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
  const auto card = [this](int number) {
    return Column({Put(controls_.topologies.Option(number)), Put(controls_.thumbnails.Thumbnail(number))});
  };
  // Two cards in a row; what is between two kinds belongs to the one above.
  const std::map<int, Label*> kinds = {{1, &lblLowpass_}, {3, &lblBandpass_}, {9, &lblHighpass_}, {11, &lblBandstop_}};
  constexpr int cards = 12;
  std::vector<Layout> items;
  for (int number = 1; number < cards; number += 2) {
    const auto kind = kinds.find(number);
    items.push_back(kind == kinds.end() ? Space() : Put(*kind->second));
    items.push_back(card(number));
    items.push_back(card(number + 1));
  }
  return Group("Topology", Of(Layout::Kind::Form, std::move(items), 3));
}

Layout frmDesign::EntryColumn() {
  return Column({Group("Entries", Entries()), KeepPlace(Put(controls_.txtDesignChange)),
                 Group("Design", Grid(1, {Put(cmdTitle_), Put(cmdInfo_), Put(cmdSeeNorms_), Put(cmdManual_),
                                          Put(cmdAssistance_)}))});
}

// The readout of the ripple is wider than a box and has a line for itself.
Layout frmDesign::Entries() {
  DesignControls& c = controls_;
  return Form({{Put(c.lblOrder), Row({Put(c.lblOrderInput), Put(c.UpDown1)})},
               {Put(c.lblBandwidth), Row({Put(c.txtBandwidth), Put(c.lblRipple)})},
               {KeepPlace(Put(c.lblCenterFrequency)), KeepPlace(Put(c.txtCenterFrequency))},
               {Put(c.lblInputTerm), Put(c.txtInputTerm)},
               {KeepPlace(Put(c.lblPassbandRipple)), KeepPlace(Put(c.txtPassbandRipple))},
               Across(KeepPlace(Put(c.lblVSWR))),
               {KeepPlace(Put(c.lblStopbandFreq)), KeepPlace(Put(c.txtStopbandFreq))},
               {KeepPlace(Put(c.lblStopbandDepth)), KeepPlace(Put(c.txtStopbandDepth))}});
}

Layout frmDesign::Tools() {
  constexpr int toolsInRow = 7;
  std::vector<Layout> tools;
  for (const auto& button : controls_.tools.Buttons()) tools.push_back(KeepPlace(Put(*button)));
  return Group("Tools", Grid(toolsInRow, std::move(tools)));
}

}  // namespace quilm
