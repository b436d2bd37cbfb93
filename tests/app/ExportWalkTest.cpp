// Writing files for other programs in the real window, through the toolkit's own dialog.
#include <QAbstractButton>
#include <QFile>
#include <QFileDialog>
#include <QMessageBox>

#include "app/MessageWindow.h"
#include "app/WalkBench.h"
#include "core/DesignRecord.h"
#include "shell/Session.h"

namespace quilm {
namespace {

class ExportWalk : public Walk {
 protected:
  ExportWalk() {
    QApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    DesignLowpass();
    ClickOn("cmdAnalysis");
    ClickOn("cmdSpice");
    QApplication::processEvents();
  }

  static QFileDialog& Dialog() {
    auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
    if (dialog == nullptr) throw Fault("no file dialog");
    return *dialog;
  }

  static QLineEdit& NameBox() { return *Dialog().findChild<QLineEdit*>(QStringLiteral("fileNameEdit")); }

  static void Enter(const QString& path) {
    NameBox().setText(path);
    QTest::keyClick(&NameBox(), Qt::Key_Return);
  }

  QString Path(const char* name) const { return folder_.filePath(QString::fromLatin1(name)); }

  QByteArray Text(const char* name) const {
    QFile file(Path(name));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
  }
};

TEST_F(ExportWalk, AnSParameterFileIsWrittenByMouse) {
  ClickOn("cmdWriteSnP");
  ASSERT_EQ(Top().Id(), PageId::GetSnPoptions);
  ClickOn("Option8");
  ClickOn("Option2");
  ClickOn("Option4");
  WithModal("cmdContinue", [this] {
    EXPECT_EQ(Dialog().windowTitle(), "Quilm - write S-parameter file");
    EXPECT_EQ(NameBox().text(), "Default.S1P");
    Enter(Path("lowpass"));
  });
  EXPECT_TRUE(Text("lowpass.S1P").startsWith("! 1-port S-parameter file Version 2.0 by Quilm "));
  EXPECT_TRUE(Text("lowpass.S1P").contains("\r\n# kHz S DB R 50\r\n"));
  EXPECT_EQ(desktop_.session.note, "Wrote " + Path("lowpass.S1P").toStdString());
  EXPECT_EQ(Top().Id(), PageId::GetSnPoptions);
  ClickOn("cmdExit");
  EXPECT_EQ(Top().Id(), PageId::Analyze);
}

// By the letters of the buttons, the arrows in a group of options, Return and Escape.
TEST_F(ExportWalk, AnSParameterFileIsWrittenByKeys) {
  QWidget* focused = QApplication::focusWidget();
  ASSERT_NE(focused, nullptr);
  EXPECT_EQ(focused->objectName(), "cmdWriteSnP");
  PressKey(Qt::Key_Space);
  ASSERT_EQ(Top().Id(), PageId::GetSnPoptions);
  PressKey(Qt::Key_Down);  // from two ports to one
  QTimer::singleShot(100, &desktop_.window, [this] { Enter(Path("keys.S1P")); });
  PressKey(Qt::Key_Return);
  GiveKeyboardToWindow();
  EXPECT_TRUE(Text("keys.S1P").startsWith("! 1-port S-parameter file Version 1.0"));
  PressKey(Qt::Key_Escape);
  EXPECT_EQ(Top().Id(), PageId::Analyze);
}

TEST_F(ExportWalk, EveryButtonWritesItsFile) {
  const std::pair<const char*, const char*> files[] = {
      {"cmdWriteTabulatedS", "s.DAT"},     {"cmdWriteTabulatedE", "e.DAT"},     {"cmdWriteNetlist", "n.CIR"},
      {"cmdWriteSubcircuit", "n.SUB"},     {"cmdWriteSpiceSchematic", "n.ASC"}, {"cmdWriteSpiceSymbol", "n.ASY"},
      {"cmdWriteVerified", "verified.CIR"}};
  for (const auto& [button, name] : files) {
    WithModal(button, [this, file = name] { Enter(Path(file)); });
    EXPECT_FALSE(Text(name).isEmpty()) << button;
    EXPECT_EQ(Top().Id(), PageId::WriteFiles);
  }
}

// The dialog asks before it hands out the name of a file that is there.
TEST_F(ExportWalk, AFileThatIsThereIsAskedAbout) {
  QFile file(Path("a.DAT"));
  ASSERT_TRUE(file.open(QIODevice::WriteOnly) && file.write("old") == 3);
  file.close();
  WithModal("cmdWriteTabulatedS", [this] {
    QFileDialog& dialog = Dialog();
    QTimer::singleShot(100, &dialog, [&dialog] {
      auto* question = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
      ASSERT_NE(question, nullptr);
      QTest::mouseClick(question->button(QMessageBox::No), Qt::LeftButton);
      QTimer::singleShot(100, &dialog, [&dialog] { dialog.reject(); });
    });
    Enter(Path("a.DAT"));
  });
  EXPECT_EQ(Text("a.DAT"), "old");
}

TEST_F(ExportWalk, ACancelledDialogWritesTheOfferedNameOnce) {
  WithModal("cmdWriteTabulatedE", [] { QTest::keyClick(&Dialog(), Qt::Key_Escape); });
  const QString offered = QString::fromStdString(desktop_.session.exports.TabEasyFileName);
  EXPECT_TRUE(offered.endsWith("/Default.DAT"));
  EXPECT_TRUE(QFile::exists(offered));
  WithModal("cmdWriteTabulatedE", [] { QTest::keyClick(&Dialog(), Qt::Key_Escape); });
  EXPECT_EQ(desktop_.session.note, "Nothing was written: the dialog was cancelled, and Default.DAT is there already");
}

TEST_F(ExportWalk, EscapeGoesBackToTheAnalysis) {
  PressKey(Qt::Key_Escape);
  EXPECT_EQ(Top().Id(), PageId::Analyze);
}

}  // namespace
}  // namespace quilm
