// The Tabulated page: the sweep as a table of text.
#pragma once

#include "desk/NavigationRow.h"
#include "shell/Page.h"

namespace quilm {

class frmTabulated : public Page {
 public:
  explicit frmTabulated(Session& session);
  void Load() override;
  void CloseBox() override;
  Layout MakeLayout() override;

 private:
  void Fill();
  void PrintResponses();
  bool PaperIsWanted();
  void SaveTable();

  NavigationRow navigation_;
  ListBox lstTabulatedOutput_{*this, "lstTabulatedOutput", "Tabulated responses"};
  Button cmdSaveTable_{*this, "cmdSaveTable", "Save as CSV",
                       "Save the table with all digits, for spreadsheets and programs (Ctrl+Shift+S)"};
};

}  // namespace quilm
