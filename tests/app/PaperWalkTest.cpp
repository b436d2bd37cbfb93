// Out of the window: printing to PDF through the print dialog, and the menus and keys of pictures and of the table.
#include <gmock/gmock.h>

#include <QClipboard>
#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QInputDialog>
#include <QMenu>
#include <QMimeData>
#include <QPrintDialog>
#include <QPushButton>
#include <QSpinBox>
#include <QTableView>
#include <QTimer>

#include "RealEvents.h"
#include "WalkBench.h"
#include "app/MessageWindow.h"
#include "core/DesignRecord.h"
#include "support/PdfTools.h"

namespace quilm {
namespace {

class PaperWalk : public Walk {
 protected:
  void SetUp() override { QApplication::setAttribute(Qt::AA_DontUseNativeDialogs); }

  // Runs `act` when a dialog of this kind stands in front, as a user would who waits for it.
  template <class Dialog>
  void When(const std::function<void(Dialog&)>& act, int tries = 100) {
    QTimer::singleShot(20, &desktop_.window, [this, act, tries] {
      auto* dialog = qobject_cast<Dialog*>(QApplication::activeModalWidget());
      if (dialog != nullptr && dialog->isVisible()) {
        act(*dialog);
      } else if (tries > 0) {
        When<Dialog>(act, tries - 1);
      } else {
        ADD_FAILURE() << "no dialog came";
      }
    });
  }

  QString Path(const char* name) const { return folder_.filePath(QString::fromLatin1(name)); }

  void Choose(const QString& path) {
    When<QFileDialog>([path](QFileDialog& dialog) {
      auto* box = dialog.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
      box->setText(path);
      QTest::keyClick(box, Qt::Key_Return);
    });
  }

  // The print dialog's own PDF.
  void PrintTo(const QString& path, const char* button = "cmdPrint") {
    When<QPrintDialog>([path](QPrintDialog& dialog) {
      for (auto* printers : dialog.findChildren<QComboBox*>(QStringLiteral("printers"))) {
        const int pdf = printers->findText(QStringLiteral("PDF"), Qt::MatchContains);
        if (pdf >= 0) printers->setCurrentIndex(pdf);
      }
      auto* name = dialog.findChild<QLineEdit*>(QStringLiteral("filename"));
      if (name == nullptr) {
        ADD_FAILURE() << "the dialog has no box for a file";
        dialog.reject();
        return;
      }
      name->setText(path);
      dialog.accept();
    });
    ClickOn(button);
  }

  QByteArray Bytes(const char* name) const {
    QFile file(Path(name));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
  }

  // The file is there and the dialog gone; the keyboard is the window's again.
  bool Saved(const char* name) {
    const bool there =
        QTest::qWaitFor([&] { return QFile::exists(Path(name)) && QApplication::activeModalWidget() == nullptr; });
    GiveKeyboardToWindow();
    QTest::qWait(20);
    return there;
  }

  PictureView& Picture(const char* name) { return dynamic_cast<PictureView&>(*Find(name)); }

  // Opens the menu by the right button and takes the entry that the letter stands for.
  void ChooseFromMenu(QWidget& widget, const char* letter) {
    QTest::qWait(QApplication::doubleClickInterval());  // the second click of two opens no menu
    Send(PointTo(widget) + Press(3));
    ASSERT_TRUE(QTest::qWaitFor([] { return QApplication::activePopupWidget() != nullptr; }));
    Send(Key(letter));
    ASSERT_TRUE(QTest::qWaitFor([] { return QApplication::activePopupWidget() == nullptr; }));
  }
};

TEST_F(PaperWalk, ThePlotIsPrintedToPdfTwiceAndUndoGoesOn) {
  DesignLowpass();
  ClickOn("cmdPlot");
  for (const char* name : {"plot.pdf", "again.pdf"}) {
    PrintTo(Path(name));
    const std::string path = Path(name).toStdString();
    EXPECT_EQ(PdfInfo(path, "Pages"), "1") << name;
    EXPECT_THAT(PdfWords(path), testing::HasSubstr("Transmission, dB")) << name;
    EXPECT_THAT(PdfWords(path), testing::HasSubstr("Quilm Version")) << name;
    EXPECT_THAT(PdfWords(path), testing::Not(testing::HasSubstr("Mousedown"))) << name;
  }
  f64 width = 0;
  f64 height = 0;
  ASSERT_EQ(std::sscanf(PdfInfo(Path("plot.pdf").toStdString(), "Page size").c_str(), "%lf x %lf", &width, &height), 2);
  EXPECT_GT(width, height) << "it lies crosswise";
  GiveKeyboardToWindow();
  Send(Key("ctrl+z"));
  EXPECT_TRUE(QTest::qWaitFor([this] { return Top().Id() == PageId::Design; }));
  EXPECT_EQ(Top().Id(), PageId::Design) << "what is taken back is the last entry, not the print";
}

TEST_F(PaperWalk, TheSchematicIsPrintedToPdf) {
  DesignLowpass();
  ClickOn("cmdSchematic");
  PrintTo(Path("schematic.pdf"));
  EXPECT_THAT(PdfWords(Path("schematic.pdf").toStdString()), testing::HasSubstr("15.9155uH"));
  EXPECT_THAT(PdfWords(Path("schematic.pdf").toStdString()), testing::HasSubstr("Family: "));
}

TEST_F(PaperWalk, TheMenuOfEachPagesPictureSavesIt) {
  DesignLowpass();
  const std::pair<const char*, const char*> pages[] = {
      {"cmdPlot", "picPlot"}, {"cmdSchematic", "picSchematic"}, {"cmdEdit", "picEdit"}};
  for (const auto& [page, picture] : pages) {
    ClickOn(page);
    QTest::qWait(20);
    const std::string name = std::string(picture) + ".svg";
    Choose(Path(name.c_str()));
    ChooseFromMenu(Picture(picture), "s");
    ASSERT_TRUE(Saved(name.c_str())) << name;
    EXPECT_TRUE(Bytes(name.c_str()).contains("</svg>"));
    QApplication::clipboard()->clear();
    ChooseFromMenu(Picture(picture), "c");
    const QMimeData* forms = QApplication::clipboard()->mimeData();
    EXPECT_TRUE(forms->hasFormat(QStringLiteral("image/svg+xml"))) << picture;
    EXPECT_TRUE(forms->hasImage()) << picture;
  }
}

TEST_F(PaperWalk, APngOfAChosenWidthIsSaved) {
  DesignLowpass();
  ClickOn("cmdPlot");
  When<QInputDialog>([this](QInputDialog& dialog) {
    EXPECT_EQ(dialog.intValue(), 2396) << "11500 twips at 300 to the inch";
    dialog.setIntValue(777);
    Choose(Path("wide.png"));
    dialog.accept();
  });
  ChooseFromMenu(Plot(), "w");
  ASSERT_TRUE(Saved("wide.png"));
  EXPECT_EQ(QImage(Path("wide.png")).width(), 777);
}

TEST_F(PaperWalk, TheKeysCopyAndSaveThePicture) {
  DesignLowpass();
  ClickOn("cmdPlot");
  QTest::qWait(20);
  QApplication::clipboard()->clear();
  Send(Key("ctrl+c"));
  EXPECT_TRUE(QTest::qWaitFor([] { return QApplication::clipboard()->mimeData()->hasImage(); }));
  Choose(Path("key.pdf"));
  Send(Key("ctrl+shift+s"));
  EXPECT_TRUE(Saved("key.pdf"));
  EXPECT_EQ(desktop_.window.StatusRight(), "Wrote " + Path("key.pdf"));
}

TEST_F(PaperWalk, AFailureNamesThePathAndTheReason) {
  DesignLowpass();
  ClickOn("cmdPlot");
  QString told;
  When<QFileDialog>([this, &told](QFileDialog& dialog) {
    When<MessageWindow>([&told](MessageWindow& box) {
      told = box.Text();
      box.accept();
    });
    auto* box = dialog.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
    box->setText(QStringLiteral("/proc/none.png"));
    QTest::keyClick(box, Qt::Key_Return);
  });
  ChooseFromMenu(Plot(), "s");
  EXPECT_TRUE(QTest::qWaitFor([&told] { return !told.isEmpty(); }));
  EXPECT_TRUE(told.startsWith("/proc/none.png was not written: ")) << told.toStdString();
}

TEST_F(PaperWalk, TheTablesMenuAndKeySaveIt) {
  DesignLowpass();
  ClickOn("cmdTabulate");
  auto& table = dynamic_cast<QTableView&>(*Find("lstTabulatedOutput"));
  Choose(Path("menu.csv"));
  ChooseFromMenu(*table.viewport(), "s");
  EXPECT_TRUE(Saved("menu.csv"));
  Choose(Path("key.csv"));
  Send(Key("ctrl+shift+s"));
  EXPECT_TRUE(Saved("key.csv"));
  EXPECT_EQ(Bytes("menu.csv"), Bytes("key.csv"));
  EXPECT_TRUE(Bytes("key.csv").startsWith("Frequency (Hz),Trans. (dB)"));
  ChooseFromMenu(*table.viewport(), "a");
  ChooseFromMenu(*table.viewport(), "c");
  const QStringList lines = QApplication::clipboard()->text().split('\n');
  EXPECT_EQ(lines.size(), static_cast<int>(Record().NrIntervals) + 2) << "headings and all rows";
  EXPECT_EQ(lines[0].count('\t'), 7);
}

}  // namespace
}  // namespace quilm
