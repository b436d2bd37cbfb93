// Pictures as files and on the clipboard.
#include "app/PictureFiles.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QApplication>
#include <QFile>
#include <QImageReader>
#include <QPalette>
#include <QTemporaryDir>

#include "support/PdfTools.h"

namespace quilm {
namespace {

// 4 by 2 inches, its left half red, with a text for the screen and one for paper.
Picture HalfRed() {
  Picture picture(Scale{0, 0, 5760, 2880});
  picture.Rectangle(0, 0, 2880, 2880, colorRed, true);
  picture.ShowOn = Medium::Screen;
  picture.PrintAt(3000, 600, "Mousedown");
  picture.ShowOn = Medium::Paper;
  picture.PrintAt(3000, 1200, "On paper");
  return picture;
}

class PictureInAFolder : public testing::Test {
 protected:
  QString Path(const char* name) const { return folder.filePath(QString::fromLatin1(name)); }
  QByteArray Bytes(const char* name) const {
    QFile file(Path(name));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
  }
  QImage Png(int width) {
    EXPECT_EQ(SavePicture(HalfRed(), Path("a.png"), width).failure, "");
    return QImage(Path("a.png"));
  }
  QTemporaryDir folder;
};

TEST_F(PictureInAFolder, APngHas300PixelsToTheInch) {
  const QImage image = Png(0);
  EXPECT_EQ(image.size(), QSize(1200, 600));
  EXPECT_EQ(image.dotsPerMeterX(), 11811);
  EXPECT_EQ(image.pixelColor(300, 300), QColor(Qt::red));
  EXPECT_EQ(image.pixelColor(1190, 300), QColor(Qt::white));
}

TEST_F(PictureInAFolder, APngHasTheWidthThatWasChosen) {
  for (const int width : {100, 1999, 8000}) {
    const QImage image = Png(width);
    EXPECT_EQ(image.width(), width);
    EXPECT_NEAR(image.height(), width / 2.0, 0.51);
    EXPECT_NEAR(image.dotsPerMeterX() * 0.0254 * 4, width, 0.1);
  }
}

// A dark palette paints windows dark, never paper.
TEST_F(PictureInAFolder, ThePaletteIsNotInIt) {
  std::vector<QByteArray> light;
  std::vector<QByteArray> dark;
  const QPalette usual = QApplication::palette();
  for (std::vector<QByteArray>* kinds : {&light, &dark}) {
    if (kinds == &dark) QApplication::setPalette(QPalette(QColor(40, 40, 40)));
    for (const char* name : {"p.png", "p.svg"}) {
      EXPECT_EQ(SavePicture(HalfRed(), Path(name)).failure, "");
      kinds->push_back(Bytes(name));
    }
  }
  QApplication::setPalette(usual);
  EXPECT_EQ(light, dark);
}

TEST_F(PictureInAFolder, APdfHasItsTextsAndItsSize) {
  EXPECT_EQ(SavePicture(HalfRed(), Path("a.pdf")).failure, "");
  const std::string path = Path("a.pdf").toStdString();
  EXPECT_EQ(PdfInfo(path, "Pages"), "1");
  EXPECT_EQ(PdfInfo(path, "Page size"), "288 x 144 pts");
  EXPECT_THAT(PdfWords(path), testing::HasSubstr("On paper"));
  EXPECT_THAT(PdfWords(path), testing::Not(testing::HasSubstr("Mousedown")));
}

TEST_F(PictureInAFolder, AFailureTellsWhyAndLeavesTheOldFile) {
  EXPECT_EQ(SavePicture(HalfRed(), QStringLiteral("/nowhere/a.png")).failure, "there is no such folder");
  ASSERT_TRUE(QDir(folder.path()).mkdir(QStringLiteral("b.png")));
  EXPECT_EQ(SavePicture(HalfRed(), Path("b.png")).failure, "it is a folder");
  QFile old(Path("c.jpg"));
  ASSERT_TRUE(old.open(QIODevice::WriteOnly));
  old.write("kept");
  old.close();
  EXPECT_NE(SavePicture(HalfRed(), Path("c.jpg")).failure, "");
  EXPECT_EQ(Bytes("c.jpg"), "kept");
}

TEST_F(PictureInAFolder, NothingElseIsLeftInItsFolder) {
  for (const char* name : {"a.png", "a.svg", "a.pdf", "a.png"}) SavePicture(HalfRed(), Path(name));
  EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files | QDir::Hidden).size(), 3);
}

TEST(ClipboardForms, AreVectorsAndAnImage) {
  const auto forms = ClipboardForms(HalfRed());
  EXPECT_TRUE(forms->data(QStringLiteral("image/svg+xml")).contains("On paper"));
  const QImage png = QImage::fromData(forms->data(QStringLiteral("image/png")), "PNG");
  EXPECT_EQ(png.size(), QSize(1200, 600));
  EXPECT_EQ(qvariant_cast<QImage>(forms->imageData()).size(), QSize(1200, 600));
}

}  // namespace
}  // namespace quilm
