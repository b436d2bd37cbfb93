#include "DemoPages.h"

#include <QTimer>

#include "shell/Session.h"

namespace quilm {

DemoPage::DemoPage(Session& session) : Page(session, PageId::Design, "Demo") {
  cmdHere.enabled = false;
  cmdHere.pressed = true;
  cmdHere.role = ButtonRole::Segment;
  cmdPlot.role = ButtonRole::Segment;
  cmdPlot.onClick = [this] {
    session_.pages.ShowPage(PageId::Plotted);
    session_.pages.UnloadPage(Id());
  };
  cmdGet.onClick = [this] { log.push_back("get"); };
  cmdHelp.enabled = false;
  optOne.onClick = [this] { log.push_back("one"); };
  optTwo.onClick = [this] { log.push_back("two"); };
  txtWidth.onChange = [this] { log.push_back("change " + txtWidth.text); };
  txtWidth.onLeave = [this] {
    log.push_back("leave");
    txtWidth.text += "Hz";
  };
  UpDown.onUp = [this] { log.push_back("up"); };
  UpDown.onDown = [this] { log.push_back("down"); };
  lstLines.items = {"first", "second", "third"};
  lstLines.onClick = [this] { log.push_back("line " + std::to_string(lstLines.selected)); };
  fraLoads.Hold({&lblLoad, &txtLoad});
  cmdAsk.onClick = [this] {
    session_.pages.ShowModal(PageId::EnterWidth);
    log.push_back("asked");
  };
  cmdTool.onClick = [this] {
    session_.pages.ShowBeside(PageId::EnterWidth, {&picPlot});
    log.push_back("tool closed");
  };
  cmdRepair.onClick = [this] { txtRipple.Repair("0.1"); };
  Timer1.onTick = [this] {
    log.push_back("tick");
    Timer1.enabled = false;
  };
  picPlot.picture.Line(0, 0, 13000, 8000, colorBlack);
  picPlot.onMouseDown = [this](f32 x, f32 y, MouseButton) {
    log.push_back("down " + std::to_string(std::lround(x / 100)) + " " + std::to_string(std::lround(y / 100)));
  };
  picPlot.onMouseUp = [this](f32, f32, MouseButton button) {
    log.push_back(button == MouseButton::Left ? "up left" : "up right");
  };
}

void DemoPage::CloseBox() {
  session_.note = "stored";
  throw ProgramEnd{};
}

Layout DemoPage::MakeLayout() {
  return Column({Row({Row({Put(cmdHere), Put(cmdPlot)}), Space(), Put(cmdGet), Put(cmdHelp)}),
                 Row({Column({Put(optOne), Put(optTwo)}),
                      Form({{Put(lblWidth), Row({Put(txtWidth), Put(UpDown)})}, {Put(lblRipple), Put(txtRipple)}}),
                      Group(fraLoads, Form({{Put(lblLoad), Put(txtLoad)}})), Put(lstLines)}),
                 Row({KeepPlace(Put(cmdAsk)), Put(cmdRepair), Put(cmdTool)}),
                 Fill(Row({Fill(Put(picPlot)), SidePlace(Column({}))}))});
}

OtherPage::OtherPage(Session& session) : Page(session, PageId::Plotted, "Other") {
  lstTable.table = true;
  lstTable.items = {"row 1", "row 2", "row 3"};
  cmdDesign.onClick = [this] {
    session_.pages.ShowPage(PageId::Design);
    session_.pages.UnloadPage(Id());
  };
}

DemoForm::DemoForm(Session& session) : Page(session, PageId::EnterWidth, "Enter width") {
  txtValue.text = session.note;
  cmdOk.onClick = [this] {
    session_.note = "ok " + txtValue.text;
    session_.pages.UnloadPage(Id());
  };
  cmdIgnore.onClick = [this] {
    session_.note = "ignored";
    session_.pages.UnloadPage(Id());
  };
  cmdEnd.onClick = [] { throw ProgramEnd{}; };
  acceptButton = &cmdOk;
  cancelButton = &cmdIgnore;
}

namespace {

PageDirectory DemoDirectory() {
  return {{PageId::Design, [](Session& session) { return std::make_unique<DemoPage>(session); }},
          {PageId::Plotted, [](Session& session) { return std::make_unique<OtherPage>(session); }},
          {PageId::EnterWidth, [](Session& session) { return std::make_unique<DemoForm>(session); }}};
}

}  // namespace

DemoProgram::DemoProgram() : desktop(DemoDirectory(), folder.path()) {
  desktop.window.summary = [] { return std::string("A demonstration"); };
  desktop.Start([](Session& session) { session.pages.ShowPage(PageId::Design); });
  QApplication::setActiveWindow(&desktop.window);
  QTest::qWait(0);
}

void DemoProgram::Soon(std::function<void()> act) {
  constexpr int milliseconds = 20;
  QTimer::singleShot(milliseconds, qApp, std::move(act));
}

}  // namespace quilm
