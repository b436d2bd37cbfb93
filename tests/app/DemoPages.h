// A small program of its own for the window tests: a main page with one control of each kind, a second main page, and a
// modal form.
#pragma once

#include <gtest/gtest.h>

#include <QTemporaryDir>
#include <QTest>
#include <cmath>
#include <functional>
#include <memory>

#include "app/Desktop.h"
#include "shell/Page.h"

namespace quilm {

// The main page. It stands under the Design page's name, so that it has the keys of one.
class DemoPage : public Page {
 public:
  explicit DemoPage(Session& session);
  void CloseBox() override;
  Layout MakeLayout() override;

  std::vector<std::string> log;  // what the handlers heard

  Button cmdHere{*this, "cmdHere", "Design"};
  Button cmdPlot{*this, "cmdPlot", "Plot", "Plot the responses"};
  Button cmdGet{*this, "cmdGet", "Get"};
  Button cmdHelp{*this, "cmdHelp", "Help"};
  OptionGroup family;
  OptionButton optOne{*this, family, "optOne", "One"};
  OptionButton optTwo{*this, family, "optTwo", "Two"};
  Label lblWidth{*this, "lblWidth", "Width"};
  TextBox txtWidth{*this, "txtWidth", "Width"};
  Label lblRipple{*this, "lblRipple", "Ripple"};
  TextBox txtRipple{*this, "txtRipple", "Ripple"};
  Label lblLoad{*this, "lblLoad", "Load"};
  TextBox txtLoad{*this, "txtLoad", "Load"};
  Spin UpDown{*this, "UpDown", "Order"};
  ListBox lstLines{*this, "lstLines", "Lines"};
  Frame fraLoads{*this, "fraLoads", "Loads"};
  Button cmdAsk{*this, "cmdAsk", "Stepsize %"};
  Button cmdTool{*this, "cmdTool", "Tool"};
  Button cmdRepair{*this, "cmdRepair", "R & D"};
  Timer Timer1{*this, "Timer1", 5};
  PictureBox picPlot{*this, "picPlot", "Response"};
};

class OtherPage : public Page {
 public:
  explicit OtherPage(Session& session);
  Layout MakeLayout() override { return Column({Put(cmdDesign), Put(lstTable)}); }
  Button cmdDesign{*this, "cmdDesign", "Design"};
  ListBox lstTable{*this, "lstTable", "Table"};
};

class DemoForm : public Page {
 public:
  explicit DemoForm(Session& session);
  Layout MakeLayout() override {
    return Column({Put(txtValue), Row({Space(), Put(cmdOk), Put(cmdIgnore), Put(cmdEnd)})});
  }
  TextBox txtValue{*this, "txtValue", "Value"};
  Button cmdOk{*this, "cmdOk", "Ok"};
  Button cmdIgnore{*this, "cmdIgnore", "Ignore"};
  Button cmdEnd{*this, "cmdEnd", "End"};
};

// One program, its window shown and its main page loaded.
class DemoProgram : public testing::Test {
 protected:
  DemoProgram();

  DemoPage& Demo() { return static_cast<DemoPage&>(*desktop.session.pages.Find(PageId::Design)); }
  template <class WidgetType = QWidget>
  WidgetType* Widget(const char* name) {
    PageView* view = desktop.TopView();
    return view == nullptr ? nullptr : qobject_cast<WidgetType*>(view->Find(QString::fromLatin1(name)));
  }
  void ClickOn(const char* name) { QTest::mouseClick(Widget(name), Qt::LeftButton); }

  // Runs `act` as soon as the event loop turns, as a user would while something waits for him.
  static void Soon(std::function<void()> act);

  QTemporaryDir folder;
  Desktop desktop;
};

}  // namespace quilm
