// Message boxes and file dialogs.
#include <QAbstractButton>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QLineEdit>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>

#include "DemoPages.h"
#include "app/MessageWindow.h"

namespace quilm {
namespace {

class Dialogs : public DemoProgram {
 protected:
  static MessageWindow* Box() { return qobject_cast<MessageWindow*>(QApplication::activeModalWidget()); }
  static QAbstractButton* ButtonOf(const char* caption) {
    for (auto* button : Box()->findChildren<QPushButton*>()) {
      if (button->text().remove(QLatin1Char('&')) == QLatin1String(caption)) return button;
    }
    return nullptr;
  }
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
    EXPECT_EQ(Box()->Text(), "First\nSecond");
    EXPECT_EQ(Box()->windowTitle(), "Error checker");
    EXPECT_EQ(Box()->findChildren<QPushButton*>().size(), 1);
    ButtonOf("OK")->click();
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
  Soon([] { ButtonOf("Yes")->click(); });
  EXPECT_EQ(desktop.platform.MessageBox("Sure?", Buttons::YesNo, Icon::Question, ""), Answer::Yes);
  Soon([] { QTest::keyClick(Box(), Qt::Key_Escape); });
  EXPECT_EQ(desktop.platform.MessageBox("Sure?", Buttons::YesNo, Icon::Question, ""), Answer::No);
}

std::string Lines(int count) {
  std::string text;
  for (int i = 1; i <= count; ++i) text += "line " + std::to_string(i) + "\r\n";
  return text;
}

TEST_F(Dialogs, AMessageLongerThanTheScreenScrollsWithItsButtonInSight) {
  for (const std::string& text : {Lines(500), std::string(100000, 'x'), Lines(200) + std::string(5000, 'x')}) {
    Soon([] {
      const QRect screen = Box()->screen()->availableGeometry();
      EXPECT_LT(Box()->height(), screen.height());
      EXPECT_LT(Box()->width(), screen.width());
      const QRect button(ButtonOf("OK")->mapTo(Box(), QPoint()), ButtonOf("OK")->size());
      EXPECT_TRUE(Box()->rect().contains(button));
      QTest::keyClick(Box(), Qt::Key_Return);
    });
    desktop.platform.MessageBox(text, Buttons::Ok, Icon::Exclamation, "");
  }
}

TEST_F(Dialogs, ALongMessageScrollsByKey) {
  Soon([] {
    const QScrollBar* bar = Box()->findChild<QScrollArea*>()->verticalScrollBar();
    EXPECT_GT(bar->maximum(), 0);
    QTest::keyClick(ButtonOf("OK"), Qt::Key_PageDown);
    EXPECT_GT(bar->value(), 0);
    QTest::keyClick(ButtonOf("OK"), Qt::Key_End);
    EXPECT_EQ(bar->value(), bar->maximum());
    ButtonOf("OK")->click();
  });
  desktop.platform.MessageBox(Lines(500), Buttons::Ok, Icon::None, "");
}

TEST_F(Dialogs, AShortMessageIsShownWhole) {
  for (const char* text :
       {"Text",
        "One line that is longer than most and is broken where a line ends, so that the box stays as wide as a "
        "person reads easily, and not wider than the screen in any case.",
        "First\r\nSecond\r\nThird"}) {
    Soon([] {
      const auto* area = Box()->findChild<QScrollArea*>();
      EXPECT_EQ(area->verticalScrollBar()->maximum(), 0);
      EXPECT_EQ(area->horizontalScrollBar()->maximum(), 0);
      Box()->accept();
    });
    desktop.platform.MessageBox(text, Buttons::Ok, Icon::Information, "");
  }
}

// Return, and nothing else, as one presses it who goes on typing.
TEST_F(Dialogs, ReturnAnswersAQuestionWithNo) {
  Soon([] {
    QWidget* box = QApplication::activeModalWidget();
    QWidget* focused = box->focusWidget();
    QTest::keyClick(focused == nullptr ? box : focused, Qt::Key_Return);
  });
  EXPECT_EQ(desktop.platform.MessageBox("Sure?", Buttons::YesNo, Icon::Question, ""), Answer::No);
}

TEST_F(Dialogs, AFaultInAHandlerIsToldAndTheProgramGoesOn) {
  Demo().cmdGet.onClick = [] { throw Fault("No reason"); };
  Soon([] {
    EXPECT_TRUE(Box()->Text().endsWith("No reason"));
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

}  // namespace
}  // namespace quilm
