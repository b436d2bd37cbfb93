#include "pages/tabulate/frmTabulated.h"

#include <cmath>

#include "analysis/modAnalysis.h"
#include "core/Fault.h"
#include "core/NumberText.h"
#include "core/Sweep.h"
#include "core/TextFile.h"
#include "desk/Leaving.h"
#include "display/modTabulate.h"
#include "files/export/CsvTable.h"
#include "files/modReadQuilmFiles.h"
#include "files/modWriteQuilmFile.h"
#include "reports/PrintTable.h"
#include "reports/Report.h"
#include "shell/PictureName.h"
#include "shell/Session.h"

namespace quilm {

frmTabulated::frmTabulated(Session& session)
    : Page(session, PageId::Tabulated, "Tabulate"),
      navigation_(*this, session, NavigationRow::WithSoundEntries(session)) {
  navigation_.onGet = [&session] { GetDesignFor(session, PageId::Tabulated); };
  navigation_.onSave = [&session] { SaveDesign(session, "Save Quilm File"); };
  navigation_.onPrint = [this] { PrintResponses(); };
  lstTabulatedOutput_.table = true;
  lstTabulatedOutput_.columns = TableCaptions();
  lstTabulatedOutput_.menu = {&cmdSaveTable_};
  cmdSaveTable_.onClick = [this] { SaveTable(); };
  SetFocus(lstTabulatedOutput_);
}

// The table always shows a fresh sweep.
void frmTabulated::Load() {
  navigation_.Load();
  AnalyzeSweep(session_);
  Fill();
}

void frmTabulated::Fill() {
  try {
    lstTabulatedOutput_.items = TabulatedRows(session_.record, session_.responses);
  } catch (const Fault& fault) {
    session_.platform.MessageBox(std::string("Tabulated 126\r\n") + fault.what(), Buttons::Ok, Icon::Critical, "");
  }
}

void frmTabulated::CloseBox() { LeaveByCloseBox(session_); }

// More than a sheet is asked for twice.
bool frmTabulated::PaperIsWanted() {
  const f32 intervals = session_.sweep.NrIntervals;
  if (!(intervals > rowsPerSheet)) return true;
  session_.platform.Beep();
  const std::string lines = ShortText(intervals, LeadingZero::Keep);
  const std::string sheets = std::to_string(static_cast<int>(std::floor(intervals / rowsPerSheet)));
  return session_.platform.MessageBox("We have " + lines + " lines of data and so will use about " + sheets +
                                          " sheets of paper. \r\n"
                                          "Are you sure you want to continue and print out the data?",
                                      Buttons::YesNo, Icon::Question, "Caution") == Answer::Yes;
}

void frmTabulated::PrintResponses() {
  if (!PaperIsWanted()) return;
  PrintReport(session_.platform, "We had a printer problem",
              [this](Canvas& printer) { PrintTable(session_.record, session_.responses, printer); });
}

void frmTabulated::SaveTable() {
  const std::optional<std::string> path = session_.platform.SaveDialog(
      "Save table", "Comma-separated values (*.csv)|*.csv", PictureName(session_.identity, "table") + ".csv");
  if (!path) return;
  const WriteOutcome outcome = WriteTextFile(*path, CsvTable(session_.sweep, session_.responses));
  if (outcome) {
    session_.note = "Wrote " + *path;
  } else {
    session_.platform.MessageBox(*path + " was not written: " + outcome.failure, Buttons::Ok, Icon::Exclamation,
                                 "Save table");
  }
}

Layout frmTabulated::MakeLayout() {
  return Column({navigation_.MakeLayout(), quilm::Fill(Put(lstTabulatedOutput_)), Row({Space(), Put(cmdSaveTable_)})});
}

}  // namespace quilm
