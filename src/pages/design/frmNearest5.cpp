#include "pages/design/frmNearest5.h"

#include "core/DesignRecord.h"
#include "core/Fault.h"
#include "desk/ReturnToDesign.h"
#include "network/DesignStanding.h"
#include "pages/design/NearestTable.h"
#include "shell/Session.h"

namespace quilm {

namespace {

constexpr i32 rowsWithoutScrolling = 9;
constexpr i32 headingsIndent = 4;  // brings the words of the heading over the columns of the table

}  // namespace

frmNearest5::Way::Way(frmNearest5& page, NearestTransfer of, const char* buttonName, const char* caption,
                      const char* toolTip, const char* labelName, const char* done)
    : transfer(of), button(page, buttonName, caption, toolTip), label(page, labelName, done) {
  label.visible = false;
  button.onClick = [&page, this] { page.Transfer(*this); };
}

frmNearest5::frmNearest5(Session& session)
    : Page(session, PageId::Nearest5, "Nearest 5%"),
      all_(*this, NearestTransfer::All, "cmdAll", "Transfer all nearest-value parts to parts list",
           "Every capacitor and inductor takes its nearest value", "lblAll", "All parts now nearest 5% values"),
      caps_(*this, NearestTransfer::Capacitors, "cmdCaps", "Transfer capacitors only", "The inductors stay", "lblCaps",
            "Capacitors now nearest 5% values"),
      inductors_(*this, NearestTransfer::Inductors, "cmdInductors", "Transfer inductors only", "The capacitors stay",
                 "lblInductors", "Inductors now nearest 5% values"),
      capsRetuneInductors_(*this, NearestTransfer::CapacitorsRetuneInductors, "cmdCapsRetuneInductors",
                           "Transfer capacitors, retune inductors as needed", "Each stage keeps its resonance",
                           "lblCapsRetuneInductors", "Capacitors nearest value, inductors retuned"),
      inductorsRetuneCaps_(*this, NearestTransfer::InductorsRetuneCapacitors, "cmdInductorsRetuneCaps",
                           "Transfer inductors, retune capacitors as needed", "Each stage keeps its resonance",
                           "lblInductorsRetuneCaps", "Inductors nearest value, capacitors retuned") {
  lblHeading_.emphasised = true;
  lblOriginalValues_.fixedPitch = true;
  lblOriginalValues_.indent = headingsIndent;
  lstParts_.table = true;
  lstParts_.mostRows = rowsWithoutScrolling;
  cmdExit_.onClick = [this] { Return(); };
  cancelButton = &cmdExit_;
}

void frmNearest5::Load() {
  const Network& network = session_.network;
  nearest_ = RoundToNearest(network);
  lstParts_.items = NearestTable(network, nearest_);
  TellOfNegativeParts();
  lblScroll_.visible = network.Stages > rowsWithoutScrolling;
  SetFocus(lstParts_);
}

void frmNearest5::TellOfNegativeParts() {
  if (!HasNegativeLC(session_.network)) return;
  session_.note = "A negative part was not rounded sensibly: no value of the series is near it";
}

// One transfer an opening: the table and the rounded values are those of the parts as they were, and a second transfer
// would mix them with parts that have changed.
void frmNearest5::Transfer(Way& way) {
  TellOfNegativeParts();
  try {
    TransferNearest(session_.network, nearest_, way.transfer);
  } catch (const NumericFault&) {
    session_.note = "Nothing was transferred: a retuned part would leave the range of numbers";
    return;
  }
  session_.familyOption = familyManual;
  StandByHand(session_.record);
  way.label.visible = true;
  for (Way* each : {&all_, &caps_, &inductors_, &capsRetuneInductors_, &inductorsRetuneCaps_}) {
    each->button.enabled = false;
  }
  SetFocus(cmdExit_);
}

void frmNearest5::Return() {
  ReturnToDesign(session_);
  session_.pages.UnloadPage(Id());
}

Layout frmNearest5::MakeLayout() {
  const Layout table = Group("Parts", Column({Put(lblOriginalValues_), Put(lstParts_), KeepPlace(Put(lblScroll_))}));
  std::vector<Layout> ways;
  for (Way* way : {&all_, &caps_, &inductors_, &capsRetuneInductors_, &inductorsRetuneCaps_}) {
    ways.push_back(Put(way->button));
    ways.push_back(KeepPlace(Put(way->label)));
  }
  return Row({Space(),
              Column({Space(), Put(lblHeading_), table, Group("Transfer to the design", Grid(2, std::move(ways))),
                      Row({Space(), Put(cmdExit_)}), Space()}),
              Space()});
}

}  // namespace quilm
