// Modal pages in nested event loops, and the end of the program from inside them.
#include <QAbstractButton>
#include <QDesktopServices>
#include <QElapsedTimer>
#include <QTextBrowser>
#include <QTimer>

#include "DemoPages.h"

namespace quilm {
namespace {

using testing::Contains;
using testing::Not;

class ModalPage : public DemoProgram {
 protected:
  // Opens the form, does `act` to it, and returns when the press that opened it has returned.
  void WithForm(const std::function<void()>& act) {
    Soon(act);
    ClickOn("cmdAsk");
  }
  DemoForm* Form() { return static_cast<DemoForm*>(desktop.session.pages.Find(PageId::EnterWidth)); }
};

TEST_F(ModalPage, TheCallerGoesOnWhenThePageHasClosed) {
  WithForm([this] {
    ASSERT_NE(Form(), nullptr);
    EXPECT_THAT(Demo().log, Not(Contains("asked")));
    QTest::keyClicks(Widget("txtValue"), "25");
    ClickOn("cmdOk");
  });
  EXPECT_THAT(Demo().log, Contains("asked"));
  EXPECT_EQ(desktop.session.note, "ok 25");
  EXPECT_EQ(Form(), nullptr);
}

// Stands for the desktop's browser.
class Browser {
 public:
  Browser() { QDesktopServices::setUrlHandler(QStringLiteral("file"), &view_, "setSource"); }
  ~Browser() { QDesktopServices::unsetUrlHandler(QStringLiteral("file")); }
  Browser(const Browser&) = delete;
  Browser& operator=(const Browser&) = delete;
  QString Shows() const { return view_.source().fileName(); }

 private:
  QTextBrowser view_;
};

TEST_F(ModalPage, TheHelpKeyShowsThePageOnTop) {
  const Browser browser;
  QTest::keyClick(&desktop.window, Qt::Key_F1);
  EXPECT_EQ(browser.Shows(), QStringLiteral("design.htm"));
  WithForm([&] {
    QTest::keyClick(Widget("txtValue"), Qt::Key_F1);
    EXPECT_EQ(browser.Shows(), QStringLiteral("missing-entries.htm"));
    ClickOn("cmdOk");
  });
}

TEST_F(ModalPage, ItsFirstBoxHasTheFocus) {
  WithForm([this] {
    EXPECT_EQ(desktop.TopView()->focusWidget(), Widget("txtValue"));
    ClickOn("cmdOk");
  });
}

TEST_F(ModalPage, ItsFirstBoxHasItsTextSelected) {
  desktop.session.note = "0.01";
  WithForm([this] {
    QTest::keyClicks(Widget("txtValue"), "50");
    ClickOn("cmdOk");
  });
  EXPECT_EQ(desktop.session.note, "ok 50");
}

TEST_F(ModalPage, ReturnPressesTheAcceptButton) {
  WithForm([this] {
    QTest::keyClicks(Widget("txtValue"), "9");
    QTest::keyClick(Widget("txtValue"), Qt::Key_Return);
  });
  EXPECT_EQ(desktop.session.note, "ok 9");
}

TEST_F(ModalPage, EscapeFirstRestoresTheTextThenIgnores) {
  WithForm([this] {
    QTest::keyClicks(Widget("txtValue"), "9");
    QTest::keyClick(Widget("txtValue"), Qt::Key_Escape);
    ASSERT_NE(Form(), nullptr);
    EXPECT_EQ(Form()->txtValue.text, "");
    QTest::keyClick(Widget("txtValue"), Qt::Key_Escape);
  });
  EXPECT_EQ(desktop.session.note, "ignored");
}

TEST_F(ModalPage, ItsCloseBoxClosesItAlone) {
  WithForm([this] { desktop.TopView()->window()->close(); });
  EXPECT_THAT(Demo().log, Contains("asked"));
  EXPECT_EQ(desktop.session.note, "");
  EXPECT_FALSE(desktop.session.ended);
}

TEST_F(ModalPage, ItsWindowBearsThePagesTitle) {
  WithForm([this] {
    EXPECT_EQ(desktop.TopView()->window()->windowTitle(), "Enter width");
    ClickOn("cmdOk");
  });
}

TEST_F(ModalPage, TheEndOfTheProgramUnwindsEverything) {
  int ends = 0;
  desktop.onEnded = [&ends] { ++ends; };
  WithForm([this] { ClickOn("cmdEnd"); });
  EXPECT_TRUE(desktop.session.ended);
  EXPECT_EQ(ends, 1);
  EXPECT_EQ(desktop.session.handlerDepth, 0);
  EXPECT_THAT(Demo().log, Not(Contains("asked")));
}

TEST_F(ModalPage, TheMainCloseBoxIsOutOfReachUnderIt) {
  WithForm([this] {
    desktop.platform.Stage().PressCloseBox();
    EXPECT_FALSE(desktop.session.ended);
    ClickOn("cmdIgnore");
  });
  EXPECT_THAT(Demo().log, Contains("asked"));
}

// A letter and a screen reader press a button a tenth of a second later.
TEST_F(ModalPage, APressThatComesWhenThePageHasOpenedIsRefused) {
  constexpr int untilItComes = 200;
  auto* ask = Widget<QAbstractButton>("cmdAsk");
  auto* get = Widget<QAbstractButton>("cmdGet");
  ask->animateClick();
  get->animateClick();
  QTimer::singleShot(untilItComes, qApp, [this] { ClickOn("cmdIgnore"); });
  ask->click();
  EXPECT_THAT(Demo().log, testing::ElementsAre("asked"));
  EXPECT_EQ(desktop.session.handlerDepth, 0);
}

TEST_F(ModalPage, AHandlerInsideYieldMayEndTheProgram) {
  bool wentOn = false;
  Demo().cmdGet.onClick = [&] {
    Soon([this] { desktop.window.close(); });
    while (!desktop.session.ended) desktop.platform.Yield();
    wentOn = true;
  };
  ClickOn("cmdGet");
  EXPECT_TRUE(desktop.session.ended);
  EXPECT_FALSE(wentOn);
}

TEST_F(ModalPage, YieldLetsThePressOfAnotherButtonIn) {
  Demo().cmdRepair.onClick = [&] {
    QTimer::singleShot(0, qApp, [this] { ClickOn("optTwo"); });
    for (int trial = 0; trial < 1000 && Demo().log.empty(); ++trial) desktop.platform.Yield();
  };
  ClickOn("cmdRepair");
  EXPECT_THAT(Demo().log, Contains("two"));
}

TEST_F(ModalPage, APauseTakesItsTimeAndShowsThePage) {
  QElapsedTimer clock;
  clock.start();
  Demo().txtRipple.text = "7";
  desktop.platform.Pause(0.05);
  EXPECT_GE(clock.elapsed(), 45);
  EXPECT_EQ(Widget("txtRipple")->property("text").toString(), "7");
}

}  // namespace
}  // namespace quilm
