// A small program for scripts to drive: a main page with one control of each kind, a form that opens over it or beside
// it, a second main page, and a page with a long run.
#pragma once

#include <gtest/gtest.h>

#include <cstdint>
#include <sstream>

#include "script/ScriptRun.h"
#include "shell/Page.h"
#include "support/DemoRunPage.h"

namespace quilm {

using Log = std::vector<std::string>;

class BenchPage : public Page {
 public:
  BenchPage(Session& session, Log& log);
  void CloseBox() override;
  Layout MakeLayout() override { return SidePlace(Column({})); }

  Log& log;
  Button cmdLog{*this, "cmdLog", "Log", "Writes a line"};
  Button cmdOther{*this, "cmdOther", "Other"};
  Button cmdForm{*this, "cmdForm", "Form"};
  Button cmdEnd{*this, "cmdEnd", "End"};
  Button cmdAsk{*this, "cmdAsk", "Ask"};
  Button cmdTell{*this, "cmdTell", "Tell"};
  Button cmdOpen{*this, "cmdOpen", "Open"};
  Button cmdSave{*this, "cmdSave", "Save"};
  Button cmdPrint{*this, "cmdPrint", "Print"};
  Button cmdRun{*this, "cmdRun", "Run"};
  Button cmdStop{*this, "cmdStop", "Stop"};
  Button cmdFault{*this, "cmdFault", "Fault"};
  Button cmdBeep{*this, "cmdBeep", "Beep"};
  Button cmdHelp{*this, "cmdHelp", "Help"};
  Button cmdFocus{*this, "cmdFocus", "Focus"};
  Button cmdRandom{*this, "cmdRandom", "Random"};
  Button cmdRuns{*this, "cmdRuns", "Runs"};
  Button cmdBeside{*this, "cmdBeside", "Beside"};
  Button cmdMeasure{*this, "cmdMeasure", "Measure"};
  Button cmdClock{*this, "cmdClock", "Clock"};
  Button cmdHidden{*this, "cmdHidden", "Hidden"};
  Button cmdDisabled{*this, "cmdDisabled", "Disabled"};
  OptionGroup group;
  OptionButton optOne{*this, group, "optOne", "One"};
  OptionButton optTwo{*this, group, "optTwo", "Two"};
  TextBox txtValue{*this, "txtValue", "Value"};
  TextBox txtShort{*this, "txtShort", "Short"};
  TextBox txtLeaves{*this, "txtLeaves", "Leaves the page at its second key"};
  Label lblValue{*this, "lblValue", "A label"};
  Spin UpDown1{*this, "UpDown1", "Order"};
  ListBox lstLines{*this, "lstLines", "Lines"};
  Timer Timer1{*this, "Timer1", 10};
  PictureBox picPlot{*this, "picPlot", "Plot"};
  PictureBox picHidden{*this, "picHidden", "Hidden plot"};

 private:
  void ConnectAreas();
  void ConnectDialogs();
  void ConnectPlatform();
  void ConnectEntries();
  void RunLong();
  bool stopped_ = false;
};

class BenchForm : public Page {
 public:
  BenchForm(Session& session, Log& log);
  void Load() override { SetFocus(txtEntry); }
  Layout MakeLayout() override { return Column({}); }
  TextBox txtEntry{*this, "txtEntry", "Entry"};
  Button cmdOk{*this, "cmdOk", "Ok"};
  Button cmdDeeper{*this, "cmdDeeper", "Deeper"};
  Button cmdEnd{*this, "cmdEnd", "End"};
};

class BenchOther : public Page {
 public:
  explicit BenchOther(Session& session);
  Layout MakeLayout() override { return Column({}); }
  Button cmdBack{*this, "cmdBack", "Back"};
};

// What a script did.
struct Outcome {
  std::vector<Json> events;  // as printed
  Log log;                   // what the handlers heard
  RunLog run;                // what the page with the long run did
  std::optional<ScriptError> error;

  // The events of a name.
  std::vector<Json> Of(const std::string& name) const;
  // The one event of a name; fails the test when there are more or none.
  Json One(const std::string& name) const;
  // A control of the one "page" event, null when it is not listed.
  Json Control(const std::string& name) const;
  std::string Reason() const { return error ? error->reason : std::string(); }
};

// Runs the text of a script over the small program. `prepare` sees the session before. After `mostEvents` no more can
// be printed.
Outcome RunText(const std::string& script, const std::function<void(Session&)>& prepare = {},
                std::size_t mostEvents = SIZE_MAX);

}  // namespace quilm
