// The limit areas of all plots as a list, to be changed by number.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "core/LimitArea.h"
#include "shell/Page.h"

namespace quilm {

// A line of the list: "Transmission      Shape: 1  DC up to 1M   top: -3  bottom: -300".
std::string LimitLine(int type, const LimitArea& area);

class frmEditLimits : public Page {
 public:
  explicit frmEditLimits(Session& session);
  void Load() override;
  PageId Home() const override { return PageId::Plotted; }
  Layout MakeLayout() override;

  ListBox lstSelect{*this, "lstSelect", "Limit areas"};
  Label lblNone{*this, "lblNone", "There are no limits to edit"};
  Label lblIdle{*this, "lblIdle", "Click on a limit to edit it"};
  Label lblEdit{*this, "lblEdit", "Edit this one"};
  std::vector<std::unique_ptr<PictureBox>> shapePictures;  // cmdShape1 to cmdShape9
  Label lblStart{*this, "lblStart", "Start:"};
  TextBox txtStart{*this, "txtStart", "Start, Hz", "The lower frequency of the area, or its only one"};
  Label lblStop{*this, "lblStop", "Stop:"};
  TextBox txtStop{*this, "txtStop", "Stop, Hz", "The upper frequency of the area"};
  Label lblUpper{*this, "lblUpper", "Top:"};
  TextBox txtUpper{*this, "txtUpper", "Top", "The upper edge of the area"};
  Label lblLower{*this, "lblLower", "Bottom:"};
  TextBox txtLower{*this, "txtLower", "Bottom", "The lower edge of the area"};
  Button cmdAccept{*this, "cmdAccept", "Accept values", "Change the area to these values"};
  Button cmdExit{*this, "cmdExit", "Return to Plot page", "Leave the limits as they are now"};

 private:
  // Where the area of a line stands in the tables.
  struct Listed {
    int type;
    int j;
  };

  void FillList();
  void ShowEditor(const LimitArea* area);
  void Choose();
  void BindBoxes(int type);
  void TakeFrequency();
  void TakeValue(const f32& from, f32& to, TextBox& box);
  void Accept();

  std::vector<Listed> rows_;
  LimitArea edited_;  // as the boxes have it, of the line that is chosen
};

}  // namespace quilm
