#include "pages/export/frmGetSnPoptions.h"

#include <memory>

#include "analysis/modAnalysis.h"
#include "core/DesignRecord.h"
#include "core/modGeneral.h"
#include "desk/Leaving.h"
#include "display/ResponseCurves.h"
#include "files/export/ReverseSweep.h"
#include "files/export/SaveExport.h"
#include "files/export/TouchstoneFile.h"
#include "network/DesignStanding.h"
#include "network/NetworkEdits.h"
#include "shell/History.h"
#include "shell/Session.h"
#include "shell/ShortDate.h"

namespace quilm {

namespace {

constexpr const char* title = "Quilm - write S-parameter file";

constexpr ExportKind onePort{
    title,
    "S-parameter files (*.S1P)|*.S1P|Text files (*.TXT)|*.TXT|All files (*.*)|*.*",
    "Default.S1P",
    ".S1P",
    &ExportChoices::SnPFileName,
    "A problem was encountered and so the S1P file was not written",
    OnFailure::KeepWhatWasWritten,
};
constexpr ExportKind twoPorts{
    title,
    "S-parameter files (*.S2P)|*.S2P|Text files (*.TXT)|*.TXT|All files (*.*)|*.*",
    "Default.S2P",
    ".S2P",
    &ExportChoices::SnPFileName,
    "A problem was encountered and so the S2P file was not written",
    OnFailure::KeepWhatWasWritten,
};

// The members of a group stand in the order of their numbers from 1 on.
void SetNth(const OptionGroup& group, i16 number) { group.Members().at(static_cast<std::size_t>(number - 1))->Set(); }

i16 NumberOf(const OptionGroup& group) {
  i16 number = 1;
  for (const OptionButton* option : group.Members()) {
    if (option->Value()) break;
    ++number;
  }
  return number;
}

}  // namespace

frmGetSnPoptions::frmGetSnPoptions(Session& session) : Page(session, PageId::GetSnPoptions, "Choose SnP File Options") {
  lblHeading_.emphasised = true;
  cmdContinue_.onClick = [this] { Continue(); };
  cmdExit_.onClick = [this] { Return(); };
  acceptButton = &cmdContinue_;
  cancelButton = &cmdExit_;
}

void frmGetSnPoptions::Load() {
  const SweepSettings& sweep = session_.sweep;
  lblStart_.caption = "Starting frequency: " + FormatFrequency(sweep.Fstart);
  lblStop_.caption = "Ending frequency: " + FormatFrequency(sweep.Fstop);
  lblNumber_.caption = "Number of frequencies: " + std::to_string(LastPoint(sweep) + 1);
  lblSweepMode_.caption = sweep.SweepMode == 1 ? "Linear sweep" : "Logarithmic sweep";
  cmdContinue_.enabled = session_.network.Stages > 0;
  ShowOptions();
  SetFocus(*ports_.Chosen());
}

// The page stands in the place of a main page, and leaves the program as that does.
void frmGetSnPoptions::CloseBox() { LeaveByCloseBox(session_); }

void frmGetSnPoptions::ShowOptions() {
  const ExportChoices& choices = session_.exports;
  (choices.SnPPorts == 2 ? Option7_ : Option8_).Set();
  SetNth(versions_, choices.SnPVersion);
  SetNth(units_, choices.SnPUnit);
  SetNth(formats_, choices.SnPFormat);
}

void frmGetSnPoptions::ReadOptions() {
  ExportChoices& choices = session_.exports;
  choices.SnPPorts = Option7_.Value() ? 2 : 1;
  choices.SnPVersion = NumberOf(versions_);
  choices.SnPUnit = NumberOf(units_);
  choices.SnPFormat = NumberOf(formats_);
}

// The network that is driven at its load needs a source that can stand there: it stays raised, and is nothing that the
// user did.
void frmGetSnPoptions::Continue() {
  const History::Following following(session_);
  ReadOptions();
  if (RaiseSource(session_.network)) ForgetResponses(session_.identity);
  const auto reverse = std::make_unique<ReverseResponses>();
  if (!HaveResponses(session_) || !HaveReverse(*reverse)) {
    // The message of the sweep has brought up the Schematic page.
    session_.pages.UnloadPage(Id());
    return;
  }
  SaveExport(session_, session_.exports.SnPPorts == 2 ? twoPorts : onePort, [this, &reverse] {
    return TouchstoneText(session_.record, SpansOf(session_.responses, LastPoint(session_.sweep)), *reverse,
                          session_.exports, ShortDate(session_.platform.Now()));
  });
}

bool frmGetSnPoptions::HaveReverse(ReverseResponses& reverse) {
  const std::string mark = SweepReverse(session_.record, reverse);
  if (!mark.empty()) TellOfFailedSweep(session_, mark);
  return mark.empty();
}

void frmGetSnPoptions::Return() {
  session_.pages.ShowPage(PageId::Analyze);
  session_.pages.UnloadPage(Id());
}

Layout frmGetSnPoptions::MakeLayout() {
  const Layout sweep = Group("Sweep", Column({Put(lblStart_), Put(lblStop_), Put(lblNumber_), Put(lblSweepMode_)}));
  const Layout options =
      Row({Group("Ports", Column({Put(Option7_), Put(Option8_), Space()})),
           Group("Version", Column({Put(Option1_), Put(Option2_), Space()})),
           Group("Frequency unit", Column({Put(Option3_), Put(Option4_), Put(Option5_), Put(Option6_), Space()})),
           Group("Magnitudes", Column({Put(Option9_), Put(Option10_), Space()}))});
  return Row(
      {Space(),
       Column({Space(), Put(lblHeading_), sweep, options, Row({Space(), Put(cmdContinue_), Put(cmdExit_)}), Space()}),
       Space()});
}

}  // namespace quilm
