#include "app/PrinterCanvas.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QTemporaryDir>

#include "shell/Picture.h"

namespace quilm {
namespace {

class PrintToFile : public testing::Test {
 protected:
  std::unique_ptr<QPrinter> Printer() const {
    auto printer = std::make_unique<QPrinter>(QPrinter::HighResolution);
    printer->setOutputFormat(QPrinter::PdfFormat);
    printer->setOutputFileName(Path());
    printer->setPageSize(QPageSize(QPageSize::A4));
    return printer;
  }
  QString Path() const { return folder.filePath("report.pdf"); }
  QByteArray Document() const {
    QFile file(Path());
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
  }
  QTemporaryDir folder;
};

TEST_F(PrintToFile, ADocumentHasTheSheetsThatWereEnded) {
  PrinterCanvas canvas(Printer());
  ASSERT_TRUE(canvas.IsReady());
  canvas.Print("First sheet");
  canvas.NewPage();
  canvas.Print("Second sheet");
  canvas.Line(0, 0, 1440, 1440, colorBlue);
  canvas.EndDoc();
  const QByteArray document = Document();
  EXPECT_TRUE(document.startsWith("%PDF"));
  EXPECT_EQ(document.count("/Type /Page\n"), 2) << "sheets in the file";
}

TEST_F(PrintToFile, TheScaleIsTheSheetInTwips) {
  const PrinterCanvas canvas(Printer());
  // A4 is 210 by 297 mm; the printable part is a little smaller.
  constexpr f32 twipsPerMillimetre = 1440 / 25.4F;
  EXPECT_LE(canvas.ScaleWidth, 210 * twipsPerMillimetre + 20);
  EXPECT_GT(canvas.ScaleWidth, 180 * twipsPerMillimetre);
  EXPECT_LE(canvas.ScaleHeight, 297 * twipsPerMillimetre + 20);
  EXPECT_GT(canvas.ScaleHeight, 265 * twipsPerMillimetre);
}

TEST_F(PrintToFile, ANewSheetBeginsAtItsUpperLeftCorner) {
  PrinterCanvas canvas(Printer());
  canvas.Print("text");
  canvas.CurrentX = 300;
  canvas.NewPage();
  EXPECT_EQ(canvas.CurrentX, 0);
  EXPECT_EQ(canvas.CurrentY, 0);
  canvas.EndDoc();
}

TEST_F(PrintToFile, ADocumentIsClosedOnce) {
  PrinterCanvas canvas(Printer());
  canvas.Print("text");
  canvas.EndDoc();
  EXPECT_NO_THROW(canvas.EndDoc());
}

TEST_F(PrintToFile, APrinterThatCannotBeginIsNotReady) {
  auto printer = Printer();
  printer->setOutputFileName(folder.filePath("no/such/folder/report.pdf"));
  PrinterCanvas canvas(std::move(printer));
  EXPECT_FALSE(canvas.IsReady());
}

TEST_F(PrintToFile, APictureDrawsIntoAPartOfTheSheet) {
  Picture picture;
  picture.Circle(6500, 4000, 3000, colorRed);
  PrinterCanvas canvas(Printer());
  picture.ReplayInto(canvas, {1000, 1000}, {9000, 6000});
  canvas.EndDoc();
  EXPECT_GT(Document().size(), 500);
}

}  // namespace
}  // namespace quilm
