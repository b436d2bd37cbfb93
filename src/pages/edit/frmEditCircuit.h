// The Edit page: the network is changed by hand, one stage at a time, with the strip of its stages in view.
//
// Three modes. Browsing: a press on the strip selects a cell, and the commands act on it. Editing values: boxes are
// open until they are accepted or another cell is selected. Choosing an element, for an insert or a change of topology:
// the palette is live and the strip selects nothing until the part is accepted; all of it is one step of the history.
#pragma once

#include <optional>
#include <vector>

#include "desk/NavigationRow.h"
#include "pages/edit/CircuitSheet.h"
#include "pages/edit/ValueBoxes.h"
#include "shell/History.h"
#include "shell/Page.h"

namespace quilm {

struct PartRule;

class frmEditCircuit : public Page {
 public:
  explicit frmEditCircuit(Session& session);
  void Load() override;
  void Reload() override;
  void CloseBox() override;
  Layout MakeLayout() override;

 private:
  void ConnectButtons();
  void Browse();
  void PlaceStrip();
  void CutTooManyStages();
  bool MayGoTo(PageId target);

  void Press(f32 x, f32 y);
  void Drag(f32 x);
  void MoveStrip(f32 distance);
  void Select(int cell);
  void BringIntoView(int cell);
  void ChooseElement(i16 element);

  void EditValues();
  void ShowTermination(f32 ohms);
  void ShowReference(const std::string& text);
  void InsertPart();
  void DeletePart();
  void ChangeTopology();
  void BeginChoosing(const char* what);
  void Accept();
  void TakeTerminations();
  void EndAccept(bool keepsEntry);
  void HideEntries();
  void LockCommands();
  void ShowRoom();
  void Tell(const std::string& text);
  void Draw();

  bool IsStage(int cell) const;

  i16 SelectedStage_ = 0;
  i16 PaletteActive_ = 0;
  f32 StripOrigin_ = 0;
  f32 StripLength_ = 0;
  std::vector<f32> StageEdge_;
  Color PaletteColor_ = paletteOff;
  bool marked_ = false;      // the selected cell has its mark
  bool enlarged_ = false;    // and its enlarged view
  bool inserting_ = false;   // the insert mark stands above the strip
  std::optional<f32> grip_;  // where the mouse holds the strip, from its origin
  std::optional<History::Group> change_;
  f32 reference_ = 0;  // what stands in its box

  NavigationRow navigation_;
  PictureBox picEdit_{*this, "picEdit", "Network and palette"};
  Label lblSelectStage_{*this, "lblSelectStage", "Mouseover and click on a stage to select it"};
  Label lblClickOn_{*this, "lblClickOn", "Click on an element to select it"};
  Label lblCantInsert_{*this, "lblCantInsert", "Insert no more components"};
  Label lblEmptyList_{*this, "lblEmptyList", "The parts list is empty"};
  Button cmdLeftLeft_{*this, "cmdLeftLeft", "<<", "Show much of what is further left"};
  Button cmdLeft_{*this, "cmdLeft", "<", "Show a little of what is further left"};
  Button cmdRight_{*this, "cmdRight", ">", "Show a little of what is further right"};
  Button cmdRightRight_{*this, "cmdRightRight", ">>", "Show much of what is further right"};
  Button cmdEditValues_{*this, "cmdEditValues", "Edit values of this stage"};
  Button cmdInsertPart_{*this, "cmdInsertPart", "Insert part prior to this stage", "Insert"};
  Button cmdDeletePart_{*this, "cmdDeletePart", "Delete this stage", "Delete"};
  Button cmdChangeTopology_{*this, "cmdChangeTopology", "Change topology of this stage"};
  Button cmdAccept_{*this, "cmdAccept", "Accept"};
  ValueBoxes boxes_;
  Label lblRetLossRef_{*this, "lblRetLossRef", "Return loss reference (ohms):"};
  TextBox txtRetLossRef_{*this, "txtRetLossRef", "Return loss reference (ohms)"};
  // Q belongs to the Analysis page; these two stand here for scripts that ask for them, and nothing shows them.
  TextBox txtQcapacitors_{*this, "txtQcapacitors", "Q value for capacitors:"};
  TextBox txtQinductors_{*this, "txtQinductors", "Q value for inductors:"};
  Button cmdAssistance_{*this, "cmdAssistance", "Entry assistance", "How numbers may be entered"};
};

}  // namespace quilm
