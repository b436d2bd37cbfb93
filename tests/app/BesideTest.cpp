// Tools beside a page's picture, in one window.
#include <QApplication>
#include <QClipboard>

#include "DemoPages.h"
#include "app/PictureView.h"
#include "app/SideStack.h"

namespace quilm {
namespace {

using testing::Contains;
using testing::Not;

class Beside : public DemoProgram {
 protected:
  // Opens the tool, does `act` while it stands there, and returns when the press that opened it has returned.
  void WithTool(const std::function<void()>& act) {
    Soon(act);
    ClickOn("cmdTool");
  }
  QWidget* OfPage(const char* name) { return desktop.platform.Stage().ViewOf(Demo())->Find(QString::fromLatin1(name)); }
  PictureView& Plot() { return *qobject_cast<PictureView*>(OfPage("picPlot")); }
  SidePanel* Panel() { return desktop.window.findChild<SidePanel*>(); }
  static QRect PlaceOf(const QWidget& widget) { return {widget.mapToGlobal(QPoint(0, 0)), widget.size()}; }
};

TEST_F(Beside, TheToolStandsInTheWindowBesideThePicture) {
  const QSize before = desktop.window.size();
  const int wide = Plot().width();
  WithTool([&] {
    QTest::qWait(10);
    EXPECT_EQ(desktop.TopView()->window(), &desktop.window);
    EXPECT_EQ(desktop.window.size(), before);
    EXPECT_TRUE(Plot().isVisible());
    EXPECT_LT(Plot().width(), wide);
    EXPECT_GT(PlaceOf(*Panel()).left(), PlaceOf(Plot()).right());
    EXPECT_TRUE(PlaceOf(desktop.window).contains(PlaceOf(*Panel())));
    ClickOn("cmdOk");
  });
  QTest::qWait(10);
  EXPECT_THAT(Demo().log, Contains("tool closed"));
  EXPECT_EQ(Panel(), nullptr);
  EXPECT_EQ(Plot().width(), wide);
  EXPECT_EQ(desktop.window.size(), before);
}

TEST_F(Beside, TheControlsOfTheToolAreNotThoseOfThePage) {
  WithTool([&] {
    EXPECT_EQ(OfPage("cmdOk"), nullptr);
    EXPECT_TRUE(Panel()->isAncestorOf(Widget("cmdOk")));
    ClickOn("cmdOk");
  });
}

TEST_F(Beside, ThePageIsInertButForItsPicture) {
  WithTool([&] {
    for (const char* name : {"cmdGet", "cmdAsk", "txtWidth", "lstLines", "optOne"}) {
      EXPECT_FALSE(OfPage(name)->isEnabled()) << name;
    }
    EXPECT_TRUE(Plot().isEnabled());
    QTest::mouseClick(OfPage("cmdGet"), Qt::LeftButton);
    QTest::keyClick(&desktop.window, Qt::Key_O, Qt::ControlModifier);
    ClickOn("cmdOk");
  });
  EXPECT_THAT(Demo().log, Not(Contains("get")));
  EXPECT_TRUE(OfPage("cmdGet")->isEnabled());
  QTest::keyClick(&desktop.window, Qt::Key_O, Qt::ControlModifier);
  EXPECT_THAT(Demo().log, Contains("get"));
}

TEST_F(Beside, ThePictureHearsTheMouseAndIsDrawnAnewAfterEachHandler) {
  Demo().picPlot.onMouseDown = [this](f32 x, f32 y, MouseButton) {
    Demo().picPlot.picture.Rectangle(x - 500, y - 500, x + 500, y + 500, colorRed, true);
  };
  WithTool([&] {
    QTest::qWait(10);
    const QPoint middle = Plot().Paper().center().toPoint();
    QTest::mousePress(&Plot(), Qt::LeftButton, {}, middle);
    EXPECT_EQ(Plot().grab().toImage().pixelColor(middle), QColor(Qt::red));
    static_cast<DemoForm&>(*desktop.session.pages.Top()).cmdOk.onClick = [this] {
      Demo().picPlot.picture.Clear();
      Demo().picPlot.picture.Rectangle(0, 0, 13000, 8000, colorBlue, true);
    };
    ClickOn("cmdOk");
    EXPECT_EQ(Plot().grab().toImage().pixelColor(middle), QColor(Qt::blue));
    ClickOn("cmdIgnore");
  });
}

TEST_F(Beside, KeysAreThoseOfADialog) {
  WithTool([&] {
    EXPECT_EQ(QApplication::focusWidget(), Widget("txtValue"));
    QTest::keyClicks(Widget("txtValue"), "9");
    QTest::keyClick(Widget("txtValue"), Qt::Key_Return);
  });
  EXPECT_EQ(desktop.session.note, "ok 9");
  WithTool([&] { QTest::keyClick(Widget("txtValue"), Qt::Key_Escape); });
  EXPECT_EQ(desktop.session.note, "ignored");
}

TEST_F(Beside, EscapeClosesItFromThePictureToo) {
  WithTool([&] {
    Plot().setFocus();
    QTest::keyClick(&Plot(), Qt::Key_Escape);
  });
  EXPECT_EQ(desktop.session.note, "ignored");
}

TEST_F(Beside, EscapeIsTheCloseBoxOfAToolWithoutAnIgnoreButton) {
  WithTool([&] {
    desktop.session.pages.Top()->cancelButton = nullptr;
    QTest::keyClick(Widget("txtValue"), Qt::Key_Escape);
  });
  EXPECT_THAT(Demo().log, Contains("tool closed"));
  EXPECT_EQ(desktop.session.note, "");
}

TEST_F(Beside, ItHasACloseBox) {
  WithTool([&] { QTest::mouseClick(Panel()->findChild<QWidget*>("closeBox"), Qt::LeftButton); });
  EXPECT_THAT(Demo().log, Contains("tool closed"));
  EXPECT_EQ(desktop.session.note, "");
  EXPECT_FALSE(desktop.session.ended);
}

TEST_F(Beside, TheFocusReturnsToWhereItWas) {
  Widget("cmdTool")->setFocus();
  WithTool([&] { ClickOn("cmdOk"); });
  QTest::qWait(10);
  EXPECT_EQ(QApplication::focusWidget(), Widget("cmdTool"));
}

TEST_F(Beside, TheCopyKeyTakesThePictureBeside) {
  QApplication::clipboard()->clear();
  WithTool([&] {
    QTest::keyClick(Widget("cmdOk"), Qt::Key_C, Qt::ControlModifier);
    ClickOn("cmdOk");
  });
  EXPECT_FALSE(QApplication::clipboard()->image().isNull());
}

TEST_F(Beside, TheWindowsCloseBoxEndsTheProgramFromUnderIt) {
  WithTool([&] { desktop.window.close(); });
  EXPECT_TRUE(desktop.session.ended);
  EXPECT_EQ(desktop.session.note, "stored");
  EXPECT_THAT(Demo().log, Not(Contains("tool closed")));
}

TEST_F(Beside, AMessageOfTheToolStandsOverTheWindow) {
  bool told = false;
  WithTool([&] {
    static_cast<DemoForm&>(*desktop.session.pages.Top()).cmdOk.onClick = [this] {
      desktop.platform.MessageBox("Text", Buttons::Ok, Icon::None, "");
    };
    Soon([&] {
      told = true;
      QTest::keyClick(QApplication::activeModalWidget(), Qt::Key_Return);
    });
    ClickOn("cmdOk");
    ClickOn("cmdIgnore");
  });
  EXPECT_TRUE(told);
}

TEST_F(Beside, ItComesAgain) {
  for (int i = 0; i < 3; ++i) WithTool([&] { ClickOn("cmdOk"); });
  EXPECT_EQ(std::count(Demo().log.begin(), Demo().log.end(), "tool closed"), 3);
}

}  // namespace
}  // namespace quilm
