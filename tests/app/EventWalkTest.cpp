// What happens between two acts that follow each other too quickly. A key that presses a button shows it pressed for a
// tenth of a second before it acts, in which a hand can open a menu or another page.
#include <QDialog>
#include <QElapsedTimer>
#include <QLineEdit>
#include <QTimer>

#include "app/RealEvents.h"
#include "app/WalkBench.h"

namespace quilm {
namespace {

constexpr int untilKeysHaveActed = 400;  // milliseconds

class QuickHands : public Walk {
 protected:
  QuickHands() {
    desktop_.window.activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&desktop_.window));
  }

  QDialog* OpenDialog() { return qobject_cast<QDialog*>(QApplication::activeModalWidget()); }

  QAbstractButton& ButtonOf(const char* name) { return dynamic_cast<QAbstractButton&>(*Find(name)); }
};

TEST_F(QuickHands, AMenuThatOpensWhileAKeyLeavesThePageGoesWithIt) {
  DesignLowpass();
  ClickOn("cmdPlot");
  for (const char* page : {"cmdDesign", "cmdAnalysis", "cmdTabulate"}) {
    Send(Mnemonic(ButtonOf(page)) + PointTo(Plot()) + Press(3) + Key("1"));
    QTest::qWait(untilKeysHaveActed);
    EXPECT_NE(Top().Id(), PageId::Plotted) << page;
    EXPECT_EQ(QApplication::activePopupWidget(), nullptr) << page;
    ClickOn("cmdPlot");
    ASSERT_EQ(Top().Id(), PageId::Plotted);
  }
}

TEST_F(QuickHands, WhatIsTypedAsAMessageOpensStaysOutOfItsBox) {
  DesignLowpass();
  auto& box = dynamic_cast<QLineEdit&>(*Find("txtBandwidth"));
  const QString before = box.text();
  bool typed = false;
  QTimer::singleShot(100, qApp, [&] {
    QTest::sendKeyEvent(QTest::Press, &box, Qt::Key_7, QStringLiteral("7"), {});
    typed = true;
    EXPECT_EQ(box.text(), before);
    OpenDialog()->accept();
  });
  desktop_.platform.Stage().Perform(
      [](Session& session) { session.platform.MessageBox("Wait", Buttons::Ok, Icon::Information, ""); });
  EXPECT_TRUE(typed);
  EXPECT_EQ(box.text(), before);
}

TEST_F(QuickHands, AModalPageThatIsAskedForTwiceOpensOnce) {
  DesignLowpass();
  int windows = 0;
  // From within the loop of the modal page, when what was on its way has come.
  QElapsedTimer open;
  QTimer watch;
  QObject::connect(&watch, &QTimer::timeout, [&] {
    QDialog* page = OpenDialog();
    if (page == nullptr) return;
    if (!open.isValid()) open.start();
    if (open.elapsed() < untilKeysHaveActed) return;
    ++windows;
    EXPECT_EQ(Top().Id(), PageId::Mderived);
    QTest::mouseClick(page->findChild<QAbstractButton*>(QStringLiteral("cmdIgnore")), Qt::LeftButton);
  });
  watch.start(20);
  // The button's letter in the same instant, as a letter and a screen reader press it: it acts a tenth of a second
  // later.
  QAbstractButton& option = ButtonOf("optMderived");
  QObject::connect(
      &option, &QAbstractButton::pressed, &option, [&option] { option.animateClick(); }, Qt::SingleShotConnection);
  Send(PointTo(option, QPoint(10, option.height() / 2)) + Press(1));
  EXPECT_TRUE(QTest::qWaitFor([&] { return windows > 0; }));
  QTest::qWait(untilKeysHaveActed);
  EXPECT_EQ(windows, 1);
  EXPECT_EQ(Top().Id(), PageId::Design);
  EXPECT_EQ(desktop_.session.handlerDepth, 0);
}

}  // namespace
}  // namespace quilm
