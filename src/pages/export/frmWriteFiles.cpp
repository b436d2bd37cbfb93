#include "pages/export/frmWriteFiles.h"

#include "analysis/modAnalysis.h"
#include "core/Network.h"
#include "core/Sweep.h"
#include "desk/Leaving.h"
#include "display/ResponseCurves.h"
#include "files/export/SaveExport.h"
#include "files/export/TabulatedData.h"
#include "shell/History.h"
#include "shell/Session.h"

namespace quilm {

namespace {

constexpr const char* tableTitle = "Quilm - write tabulated data file";
// The bracket that does not close is kept: scripts compare the filters that a dialog was given.
constexpr const char* tableFilter = "Tabulated-data files (*.DAT)|*.DAT|Text files (*.TXT|*.TXT|All files (*.*)|*.*";
constexpr const char* tableFailure = "A problem was encountered and so the tabulated-data file was not written";

constexpr ExportKind scientificTable{
    tableTitle, tableFilter, "Default.DAT", ".DAT", &ExportChoices::TabSciFileName, tableFailure,
};
constexpr ExportKind easyTable{
    tableTitle, tableFilter, "Default.DAT", ".DAT", &ExportChoices::TabEasyFileName, tableFailure,
};

}  // namespace

frmWriteFiles::frmWriteFiles(Session& session) : Page(session, PageId::WriteFiles, "File-writing routine") {
  lblHeading_.emphasised = true;
  cmdWriteSnP_.onClick = [this] { GoTo(PageId::GetSnPoptions); };
  cmdWriteTabulatedS_.onClick = [this] { WriteTable(scientificTable, ScientificTable); };
  cmdWriteTabulatedE_.onClick = [this] { WriteTable(easyTable, EasyTable); };
  cmdExit_.onClick = [this] { GoTo(PageId::Analyze); };
  cancelButton = &cmdExit_;
}

void frmWriteFiles::Load() {
  const bool hasNetwork = session_.network.Stages > 0;
  for (Button* button : {&cmdWriteSnP_, &cmdWriteTabulatedS_, &cmdWriteTabulatedE_}) button->enabled = hasNetwork;
  // Their files are still to come.
  for (Button* button : {&cmdWriteNetlist_, &cmdWriteSubcircuit_, &cmdWriteSpiceSchematic_, &cmdWriteSpiceSymbol_}) {
    button->enabled = false;
  }
  SetFocus(cmdWriteSnP_);
}

// The page stands in the place of a main page, and leaves the program as that does.
void frmWriteFiles::CloseBox() { LeaveByCloseBox(session_); }

void frmWriteFiles::WriteTable(const ExportKind& kind, std::string (*table)(const ResponseSpans&)) {
  const History::Following following(session_);
  if (!HaveResponses(session_)) {
    // The message of the sweep has brought up the Schematic page.
    session_.pages.UnloadPage(Id());
    return;
  }
  SaveExport(session_, kind, [this, table] {
    return ExportText{table(SpansOf(session_.responses, LastPoint(session_.sweep))), {}};
  });
}

void frmWriteFiles::GoTo(PageId target) {
  session_.pages.ShowPage(target);
  session_.pages.UnloadPage(Id());
}

Layout frmWriteFiles::MakeLayout() {
  const Layout responses = Group("Responses of the last sweep",
                                 Grid(1, {Put(cmdWriteSnP_), Put(cmdWriteTabulatedS_), Put(cmdWriteTabulatedE_)}));
  const Layout circuit = Group("Circuit", Grid(1, {Put(cmdWriteNetlist_), Put(cmdWriteSubcircuit_),
                                                   Put(cmdWriteSpiceSchematic_), Put(cmdWriteSpiceSymbol_)}));
  return Row({Space(), Column({Space(), Put(lblHeading_), responses, circuit, Row({Space(), Put(cmdExit_)}), Space()}),
              Space()});
}

}  // namespace quilm
