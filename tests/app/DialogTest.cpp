// Message boxes and file dialogs.
#include <QAbstractButton>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QLineEdit>
#include <QMessageBox>

#include "DemoPages.h"

namespace quilm {
namespace {

class Dialogs : public DemoProgram {
 protected:
  static QMessageBox* Box() { return qobject_cast<QMessageBox*>(QApplication::activeModalWidget()); }
  void SetUp() override { QApplication::setAttribute(Qt::AA_DontUseNativeDialogs); }
  // Types a path into the dialog that is open and presses its button.
  static void Choose(const QString& path) {
    auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
    ASSERT_NE(dialog, nullptr);
    auto* box = dialog->findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
    ASSERT_NE(box, nullptr);
    box->setText(path);
    QTest::keyClick(box, Qt::Key_Return);
  }
  QString InFolder(const char* name) const { return folder.filePath(QString::fromLatin1(name)); }
};

TEST_F(Dialogs, AMessageBoxShowsItsTextTitleAndIcon) {
  Soon([] {
    ASSERT_NE(Box(), nullptr);
    EXPECT_EQ(Box()->text(), "First\nSecond");
    EXPECT_EQ(Box()->windowTitle(), "Error checker");
    EXPECT_EQ(Box()->icon(), QMessageBox::Critical);
    EXPECT_EQ(Box()->standardButtons(), QMessageBox::Ok);
    Box()->button(QMessageBox::Ok)->click();
  });
  EXPECT_EQ(desktop.platform.MessageBox("First\r\nSecond", Buttons::Ok, Icon::Critical, "Error checker"), Answer::Ok);
}

TEST_F(Dialogs, WithoutATitleItBearsTheProgramsName) {
  Soon([] {
    EXPECT_EQ(Box()->windowTitle(), "Quilm");
    Box()->reject();
  });
  desktop.platform.MessageBox("Text", Buttons::Ok, Icon::None, "");
}

TEST_F(Dialogs, AQuestionReturnsItsAnswer) {
  Soon([] { Box()->button(QMessageBox::Yes)->click(); });
  EXPECT_EQ(desktop.platform.MessageBox("Sure?", Buttons::YesNo, Icon::Question, ""), Answer::Yes);
  Soon([] { QTest::keyClick(Box(), Qt::Key_Escape); });
  EXPECT_EQ(desktop.platform.MessageBox("Sure?", Buttons::YesNo, Icon::Question, ""), Answer::No);
}

TEST_F(Dialogs, AFaultInAHandlerIsToldAndTheProgramGoesOn) {
  Demo().cmdGet.onClick = [] { throw Fault("No reason"); };
  Soon([] {
    EXPECT_TRUE(Box()->text().endsWith("No reason"));
    Box()->accept();
  });
  ClickOn("cmdGet");
  EXPECT_FALSE(desktop.session.ended);
  ClickOn("optOne");
  EXPECT_EQ(Demo().log.back(), "one");
}

TEST_F(Dialogs, ACancelledFileDialogReturnsNothing) {
  Soon([] { qobject_cast<QFileDialog*>(QApplication::activeModalWidget())->reject(); });
  EXPECT_FALSE(desktop.platform.OpenDialog("Open", "Quilm files (*.QLM)|*.QLM"));
}

TEST_F(Dialogs, SavingAddsTheExtension) {
  Soon([this] {
    EXPECT_EQ(QApplication::activeModalWidget()->windowTitle(), "Save");
    Choose(InFolder("MINE"));
  });
  const auto path = desktop.platform.SaveDialog("Save", "Quilm files (*.QLM)|*.QLM", "");
  ASSERT_TRUE(path);
  EXPECT_EQ(*path, InFolder("MINE.QLM").toStdString());
}

TEST_F(Dialogs, TheNextDialogOpensInTheLastFolder) {
  ASSERT_TRUE(QDir(folder.path()).mkdir("designs"));
  QFile file(InFolder("designs/A.QLM"));
  ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  file.close();
  Soon([this] { Choose(InFolder("designs/A.QLM")); });
  ASSERT_TRUE(desktop.platform.OpenDialog("Open", "Quilm files (*.QLM)|*.QLM"));
  Soon([this] {
    auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
    EXPECT_EQ(dialog->directory().absolutePath(), InFolder("designs"));
    dialog->reject();
  });
  desktop.platform.OpenDialog("Open", "Quilm files (*.QLM)|*.QLM");
}

TEST_F(Dialogs, TheProgramFolderIsMadeWhenItIsMissing) {
  const WindowPlatform platform(InFolder("deep/quilm"));
  EXPECT_TRUE(QDir(InFolder("deep/quilm")).exists());
}

TEST(UserDataFolder, FollowsTheDesktopsVariable) {
  qputenv("XDG_DATA_HOME", "/somewhere/data");
  EXPECT_EQ(UserDataFolder(), "/somewhere/data/quilm");
  qunsetenv("XDG_DATA_HOME");
  EXPECT_EQ(UserDataFolder(), QDir::homePath() + "/.local/share/quilm");
}

}  // namespace
}  // namespace quilm
