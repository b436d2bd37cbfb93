// The system ends the program, whatever is open just then.
#include <QFile>
#include <QFileDialog>
#include <QLineEdit>

#include "DemoPages.h"

namespace quilm {
namespace {

class SystemEnd : public DemoProgram {
 protected:
  void SetUp() override { QApplication::setAttribute(Qt::AA_DontUseNativeDialogs); }

  // Does `act` in a handler, which does not go on when the program ends meanwhile.
  void InAHandler(const std::function<void()>& act) {
    Demo().cmdGet.onClick = [this, act] {
      act();
      wentOn = true;
    };
    ClickOn("cmdGet");
  }
  void EndSoon() {
    Soon([this] { desktop.platform.Stage().EndBySystem(last); });
  }

  // Keeps what there is, tells that something failed, ends.
  std::function<void(Session&)> last = [](Session& session) {
    session.note = "kept";
    session.platform.MessageBox("The configuration was not written.", Buttons::Ok, Icon::Exclamation, "");
    throw ProgramEnd{};
  };
  bool wentOn = false;
};

TEST_F(SystemEnd, AMessageBoxDoesNotKeepIt) {
  EndSoon();
  InAHandler([this] { desktop.platform.MessageBox("Read me", Buttons::Ok, Icon::None, ""); });
  EXPECT_TRUE(desktop.session.ended);
  EXPECT_EQ(desktop.session.note, "kept");
  EXPECT_FALSE(wentOn);
  EXPECT_EQ(desktop.session.handlerDepth, 0);
  EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
}

TEST_F(SystemEnd, AQuestionWithinAFileDialogDoesNotKeepIt) {
  const QString path = folder.filePath(QStringLiteral("THERE.QLM"));
  QFile file(path);
  ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  file.close();
  Soon([this, path] {
    auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
    ASSERT_NE(dialog, nullptr);
    EndSoon();
    auto* box = dialog->findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
    box->setText(path);
    QTest::keyClick(box, Qt::Key_Return);  // asks whether to replace the file
  });
  InAHandler([this] { desktop.platform.SaveDialog("Save", "Quilm files (*.QLM)|*.QLM", ""); });
  EXPECT_TRUE(desktop.session.ended);
  EXPECT_EQ(desktop.session.note, "kept");
  EXPECT_FALSE(wentOn);
}

TEST_F(SystemEnd, AModalPageDoesNotKeepIt) {
  EndSoon();
  ClickOn("cmdAsk");
  EXPECT_TRUE(desktop.session.ended);
  EXPECT_EQ(desktop.session.note, "kept");
  EXPECT_TRUE(Demo().log.empty());
}

TEST_F(SystemEnd, APauseDoesNotKeepIt) {
  EndSoon();
  InAHandler([this] { desktop.platform.Pause(60); });
  EXPECT_TRUE(desktop.session.ended);
  EXPECT_FALSE(wentOn);
}

TEST_F(SystemEnd, NothingIsAskedAnyMore) {
  last = [this](Session& session) {
    EXPECT_EQ(session.platform.MessageBox("Sure?", Buttons::YesNo, Icon::Question, ""), Answer::No);
    EXPECT_FALSE(session.platform.OpenDialog("Get", "Quilm files (*.QLM)|*.QLM"));
    EXPECT_FALSE(session.platform.SaveDialog("Save", "Quilm files (*.QLM)|*.QLM", ""));
    session.platform.Pause(60);
    wentOn = true;
    throw ProgramEnd{};
  };
  desktop.platform.Stage().EndBySystem(last);
  EXPECT_TRUE(wentOn);
}

TEST_F(SystemEnd, AFaultOnTheWayOutDoesNotKeepIt) {
  int ends = 0;
  desktop.onEnded = [&ends] { ++ends; };
  last = [](Session&) { throw Fault("No reason"); };
  desktop.platform.Stage().EndBySystem(last);
  EXPECT_TRUE(desktop.session.ended);
  EXPECT_EQ(ends, 1);
}

TEST_F(SystemEnd, WithoutADisplayWhatThereIsIsKeptToo) {
  desktop.platform.Stage().EndWithoutDisplay(last);
  EXPECT_EQ(desktop.session.note, "kept");
}

// What was pressed before the dialog opened and comes only now.
TEST_F(SystemEnd, NoOtherActRunsWhileAHandlerWaitsForADialog) {
  Soon([this] {
    ClickOn("optTwo");
    EXPECT_TRUE(Demo().log.empty());
    qobject_cast<QDialog*>(QApplication::activeModalWidget())->reject();
  });
  InAHandler([this] { desktop.platform.MessageBox("Read me", Buttons::Ok, Icon::None, ""); });
  EXPECT_TRUE(wentOn);
  ClickOn("optTwo");
  EXPECT_THAT(Demo().log, testing::ElementsAre("two"));
}

}  // namespace
}  // namespace quilm
