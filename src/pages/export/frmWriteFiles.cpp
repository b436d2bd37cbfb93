#include "pages/export/frmWriteFiles.h"

#include "analysis/modAnalysis.h"
#include "core/DesignRecord.h"
#include "desk/Leaving.h"
#include "display/ResponseCurves.h"
#include "files/export/LtspiceSchematic.h"
#include "files/export/LtspiceSymbol.h"
#include "files/export/SaveExport.h"
#include "files/export/TabulatedData.h"
#include "files/export/VerifiedNetlist.h"
#include "shell/History.h"
#include "shell/Session.h"
#include "shell/ShortDate.h"

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

constexpr const char* netlistFailure = "A problem was encountered and so we were unable to write the SPICE netlist";

constexpr ExportKind netlist{
    "Quilm - write Spice netlist file",
    "Spice files (*.CIR) | *.CIR",
    "Default.CIR",
    ".CIR",
    &ExportChoices::SpiceCirFileName,
    netlistFailure,
    OnFailure::KeepWhatWasWritten,
};
constexpr ExportKind subcircuit{
    "Quilm - write Spice subcircuit file",
    "Spice subcircuit files (*.SUB) | *.SUB",
    "Default.SUB",
    ".SUB",
    &ExportChoices::SpiceSubFileName,
    netlistFailure,
    OnFailure::KeepWhatWasWritten,
};
constexpr ExportKind schematic{
    "Quilm - write LTspice schematic",
    "LTspice files (*.ASC)|*.ASC",
    "Default.ASC",
    ".ASC",
    &ExportChoices::SpiceSchematicFileName,
    "A problem was encountered and so we did not write the LTspice schematic file",
};
constexpr ExportKind symbol{
    "Quilm - write LTspice symbol file", "LTspice symbol files (*.ASY) | *.ASY", "Filter.ASY", ".ASY",
    &ExportChoices::SpiceSymbolFileName,
};
constexpr ExportKind verifiedNetlist{
    "Quilm - write verified netlist",        "Verified netlists (*.CIR)|*.CIR", "Verified.CIR", ".CIR",
    &ExportChoices::VerifiedNetlistFileName,
};

}  // namespace

frmWriteFiles::frmWriteFiles(Session& session) : Page(session, PageId::WriteFiles, "File-writing routine") {
  lblHeading_.emphasised = true;
  cmdWriteSnP_.onClick = [this] { GoTo(PageId::GetSnPoptions); };
  cmdWriteTabulatedS_.onClick = [this] { WriteTable(scientificTable, ScientificTable); };
  cmdWriteTabulatedE_.onClick = [this] { WriteTable(easyTable, EasyTable); };
  cmdWriteNetlist_.onClick = [this] { WriteSpice(netlist, SpiceFileKind::CIR); };
  cmdWriteSubcircuit_.onClick = [this] { WriteSpice(subcircuit, SpiceFileKind::SUB); };
  cmdWriteSpiceSchematic_.onClick = [this] {
    SaveExport(session_, schematic, [this] { return LtspiceSchematic(session_.record); });
  };
  cmdWriteSpiceSymbol_.onClick = [this] {
    SaveExport(session_, symbol, [] { return ExportText{LtspiceSymbol(), {}}; });
  };
  optNgspice_.onClick = [this] { session_.exports.netlistForLTspice = false; };
  optLTspice_.onClick = [this] { session_.exports.netlistForLTspice = true; };
  cmdWriteVerified_.onClick = [this] { WriteVerified(); };
  cmdExit_.onClick = [this] { GoTo(PageId::Analyze); };
  cancelButton = &cmdExit_;
}

// The symbol is the same for every network, and so for none.
void frmWriteFiles::Load() {
  const bool hasNetwork = session_.network.Stages > 0;
  for (Button* button : {&cmdWriteSnP_, &cmdWriteTabulatedS_, &cmdWriteTabulatedE_, &cmdWriteNetlist_,
                         &cmdWriteSubcircuit_, &cmdWriteSpiceSchematic_, &cmdWriteVerified_}) {
    button->enabled = hasNetwork;
  }
  (session_.exports.netlistForLTspice ? optLTspice_ : optNgspice_).Set();
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

void frmWriteFiles::WriteSpice(const ExportKind& kind, SpiceFileKind file) {
  SaveExport(session_, kind,
             [this, file] { return SpiceNetlist(session_.record, file, ShortDate(session_.platform.Now())); });
}

void frmWriteFiles::WriteVerified() {
  SaveExport(session_, verifiedNetlist, [this] {
    const SpiceDialect dialect = session_.exports.netlistForLTspice ? SpiceDialect::LTspice : SpiceDialect::Ngspice;
    return VerifiedNetlist(session_.record, dialect, ShortDate(session_.platform.Now()));
  });
}

void frmWriteFiles::GoTo(PageId target) {
  session_.pages.ShowPage(target);
  session_.pages.UnloadPage(Id());
}

Layout frmWriteFiles::MakeLayout() {
  const Layout responses =
      Group("Responses of the sweep", Grid(1, {Put(cmdWriteSnP_), Put(cmdWriteTabulatedS_), Put(cmdWriteTabulatedE_)}));
  const Layout verified =
      Group("Verified netlist",
            Column({Put(lblWhich_), Row({Put(optNgspice_), Put(optLTspice_)}), Grid(1, {Put(cmdWriteVerified_)})}));
  const Layout spice = Group("SPICE", Grid(1, {Put(cmdWriteNetlist_), Put(cmdWriteSubcircuit_)}));
  const Layout ltspice = Group("LTspice", Grid(1, {Put(cmdWriteSpiceSchematic_), Put(cmdWriteSpiceSymbol_)}));
  return Row({Space(),
              Column({Space(), Put(lblHeading_), responses, Row({spice, ltspice}), verified,
                      Row({Space(), Put(cmdExit_)}), Space()}),
              Space()});
}

}  // namespace quilm
