#include "script/ScriptBench.h"

#include "core/Fault.h"

namespace quilm {

BenchPage::BenchPage(Session& session, Log& heard) : Page(session, PageId::Design, "Bench"), log(heard) {
  cmdHidden.visible = false;
  cmdDisabled.enabled = false;
  cmdLog.onClick = [this] { log.push_back("log"); };
  cmdFault.onClick = [] { throw Fault("out of paper"); };
  cmdEnd.onClick = [] { throw ProgramEnd{}; };
  cmdOther.onClick = [this] {
    session_.pages.ShowPage(PageId::Plotted);
    session_.pages.UnloadPage(Id());
  };
  cmdForm.onClick = [this] {
    session_.pages.ShowModal(PageId::EnterWidth);
    log.push_back("form closed");
  };
  cmdRuns.onClick = [this] {
    session_.pages.ShowPage(PageId::Schematic);
    session_.pages.UnloadPage(Id());
  };
  cmdBeside.onClick = [this] {
    session_.pages.ShowBeside(PageId::EnterWidth);
    log.push_back("beside closed");
  };
  cmdMeasure.onClick = [this] { session_.pages.ShowBeside(PageId::EnterWidth, {&picPlot, &cmdLog}); };
  cmdFocus.onClick = [this] { SetFocus(txtValue); };
  picPlot.picture.SetScale({0, 0, 100, 50});
  ConnectDialogs();
  ConnectPlatform();
  ConnectEntries();
  ConnectAreas();
}

void BenchPage::ConnectAreas() {
  picHidden.visible = false;
  picHidden.areas = {{"T1", {0, 0}, {1, 1}, "", true, [] {}}};
  picPlot.areas = {{"L1", {60, 10}, {70, 30}, "Inductor 1", true, [this] { log.push_back("area L1"); }},
                   {"C2", {75, 10}, {85, 30}, "", true, {}},
                   {"R3", {90, 10}, {96, 30}, "", false, [this] { log.push_back("area R3"); }}};
}

void BenchPage::ConnectDialogs() {
  cmdAsk.onClick = [this] {
    const Answer answer = session_.platform.MessageBox("Really?\r\nSure?", Buttons::YesNo, Icon::Question, "Ask");
    log.push_back(answer == Answer::Yes ? "yes" : "no");
  };
  cmdTell.onClick = [this] { session_.platform.MessageBox("Done", Buttons::Ok, Icon::Information, "Tell"); };
  cmdOpen.onClick = [this] {
    log.push_back(session_.platform.OpenDialog("Get", "Quilm files (*.QLM)|*.QLM").value_or("cancelled"));
  };
  cmdSave.onClick = [this] {
    log.push_back(session_.platform.SaveDialog("Write", "All|*", "a.QLM").value_or("cancelled"));
  };
  cmdPrint.onClick = [this] {
    Canvas* sheet = session_.platform.PrintDialog(Orientation::Portrait);
    log.push_back(sheet == nullptr ? "no printer" : "printer");
    if (sheet == nullptr) return;
    sheet->Print("one");
    sheet->NewPage();
    sheet->Print("two");
    sheet->EndDoc();
  };
}

void BenchPage::ConnectPlatform() {
  cmdBeep.onClick = [this] { session_.platform.Beep(); };
  cmdHelp.onClick = [this] { session_.platform.ShellOpen("help.htm"); };
  cmdRandom.onClick = [this] { log.push_back(std::to_string(session_.random.Next())); };
  cmdClock.onClick = [this] {
    const DateTime now = session_.platform.Now();
    log.push_back(std::to_string(now.year) + " " + std::to_string(now.month) + " " + std::to_string(now.day) + " " +
                  std::to_string(now.hour) + " " + std::to_string(now.minute) + " " + std::to_string(now.second));
  };
  cmdRun.onClick = [this] { RunLong(); };
  cmdStop.onClick = [this] { stopped_ = true; };
}

void BenchPage::ConnectEntries() {
  txtValue.onChange = [this] { log.push_back("change [" + txtValue.text + "]"); };
  txtValue.onLeave = [this] { log.push_back("leave [" + txtValue.text + "]"); };
  txtShort.maxLength = 3;
  txtShort.onChange = [this] {
    // As a limit does: what is above 50 reads 50.
    if (txtShort.text == "51") txtShort.text = "50";
  };
  txtLeaves.onChange = [this] {
    if (txtLeaves.text.size() == 2) cmdOther.onClick();
  };
  for (OptionButton* option : {&optOne, &optTwo}) option->onClick = [this, option] { log.push_back(option->name); };
  UpDown1.onUp = [this] { log.push_back("up"); };
  UpDown1.onDown = [this] { log.push_back("down"); };
  lstLines.items = {"first", "second"};
  lstLines.onClick = [this] { log.push_back("line " + std::to_string(lstLines.selected)); };
  const auto heard = [this](const char* act) {
    return [this, act](f32 x, f32 y, MouseButton button) {
      std::ostringstream text;
      text << act << ' ' << x << ' ' << y << (button == MouseButton::Left ? " left" : " right");
      log.push_back(text.str());
    };
  };
  picPlot.onMouseDown = heard("down");
  picPlot.onMouseMove = heard("move");
  picPlot.onMouseUp = heard("up");
}

void BenchPage::RunLong() {
  stopped_ = false;
  constexpr int trials = 10;
  int done = 0;
  while (done < trials && !stopped_) {
    ++done;
    session_.platform.Yield();
  }
  log.push_back("ran " + std::to_string(done));
}

void BenchPage::CloseBox() {
  log.push_back("close box");
  throw ProgramEnd{};
}

BenchForm::BenchForm(Session& session, Log& log) : Page(session, PageId::EnterWidth, "Form") {
  txtEntry.onLeave = [this, &log] { log.push_back("left entry [" + txtEntry.text + "]"); };
  cmdOk.onClick = [this] { session_.pages.UnloadPage(Id()); };
  cmdDeeper.onClick = [this] { session_.pages.ShowModal(PageId::Plotted); };
  cmdEnd.onClick = [] { throw ProgramEnd{}; };
}

BenchOther::BenchOther(Session& session) : Page(session, PageId::Plotted, "Other") {
  cmdBack.onClick = [this] { session_.pages.UnloadPage(Id()); };
}

std::vector<Json> Outcome::Of(const std::string& name) const {
  std::vector<Json> found;
  for (const Json& event : events) {
    if (event["event"] == name) found.push_back(event);
  }
  return found;
}

Json Outcome::One(const std::string& name) const {
  const std::vector<Json> found = Of(name);
  EXPECT_EQ(found.size(), 1U) << "events named " << name;
  return found.empty() ? Json() : found.front();
}

Json Outcome::Control(const std::string& name) const {
  const Json page = One("page");
  for (const Json& control : page["controls"]) {
    if (control["name"] == name) return control;
  }
  return nullptr;
}

Outcome RunText(const std::string& script, const std::function<void(Session&)>& prepare, std::size_t mostEvents) {
  Outcome outcome;
  std::istringstream text(script);
  const PageDirectory pages{
      {PageId::Design, [&](Session& session) { return std::make_unique<BenchPage>(session, outcome.log); }},
      {PageId::EnterWidth, [&](Session& session) { return std::make_unique<BenchForm>(session, outcome.log); }},
      {PageId::Plotted, [](Session& session) { return std::make_unique<BenchOther>(session); }},
      {PageId::Schematic,
       [&](Session& session) { return std::make_unique<DemoRunPage>(session, PageId::Schematic, outcome.run); }}};
  // Read back, as whoever uses the lines does.
  ScriptRun run(text, "/nowhere", pages, [&](const Json& event) {
    if (outcome.events.size() == mostEvents) throw CommandFailure{"the pipe is shut"};
    outcome.events.push_back(Json::parse(JsonLine(event)));
  });
  if (prepare) prepare(run.session);
  try {
    run.Run([](Session& session) { session.pages.ShowPage(PageId::Design); });
  } catch (const ScriptError& error) {
    outcome.error = error;
  }
  return outcome;
}

}  // namespace quilm
