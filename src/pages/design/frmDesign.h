// The Design page: family, topology, order and entries, and the way to all other pages.
//
// There is no button that computes. Every button that leads to a result checks the entries, repairs what is missing and
// computes the network anew.
#pragma once

#include "desk/DesignPreview.h"
#include "desk/NavigationRow.h"
#include "pages/design/DesignControls.h"
#include "shell/Page.h"

namespace quilm {

class frmDesign : public Page {
 public:
  explicit frmDesign(Session& session);
  void Load() override;
  void Reload() override;
  void CatchUp() override;
  void CloseBox() override;
  Layout MakeLayout() override;

 private:
  void ConnectSpins();
  void ConnectOptions();
  void ConnectButtons();
  void ConnectTools();

  void MarkChanged();
  void ChooseFamily(i16 family);
  void ChooseTopology(const std::string& letter);
  void ChooseCauerType();
  void ChooseCauerTop(i16 layout);
  void SetOrder(f32 order);
  void SetLineWidth(i32 width);
  void ShowTopologyHelp(int number);
  void ShowSettings();
  void SeeNormalized();
  void AddEnds();
  void MatchImpedances();
  void ReverseEndForEnd();
  void EnterByHand();

  // What every way to a result does first; false keeps the page, after the user was told why.
  bool MakeNetwork();
  void GoTo(PageId target);

  // Opens a tool that works on the network, or one that has entries of its own and does without a design as well.
  void OpenOnNetwork(PageId tool);
  void OpenAnyway(PageId tool);

  Layout FamilyColumn();
  Layout TopologyCards();
  Layout EntryColumn();
  Layout DesignButtons();
  Layout Entries();
  Layout Tools();

  NavigationRow navigation_;
  DesignControls controls_;
  DesignPreview preview_;
  OptionGroup units_;
  OptionButton optEnglish_{*this, units_, "optEnglish", "English", "Dimensions in inches"};
  OptionButton optMetric_{*this, units_, "optMetric", "Metric", "Dimensions in centimeters"};
  Label lblLineWidth_{*this, "lblLineWidth", "Plot line width"};
  Label lblLineWidthInput_{*this, "lblLineWidthInput", ""};
  Spin UpDown2_{*this, "UpDown2", "Plot line width", "Width of the traces of plots, 1 to 6"};
  Button cmdSeeNorms_{*this, "cmdSeeNorms", "See normalized values", "See the prototype of the design"};
  Button cmdManual_{*this, "cmdManual", "Restart: Manual", "Enter a network by hand"};
  Button cmdTitle_{*this, "cmdTitle", "Title", "Edit the title of the circuit"};
  Button cmdInfo_{*this, "cmdInfo", "Added info", "Edit the line of information that a design file carries"};
  Button cmdHelpFamily_{*this, "cmdHelpFamily", "Compare families", "See what each family is good for"};
  Button cmdAssistance_{*this, "cmdAssistance", "Entry assistance", "How numbers may be entered"};
};

}  // namespace quilm
