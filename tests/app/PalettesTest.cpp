// Whether everything of the window can be seen, in the program's palettes and in the system's, and is read the right
// way.
#include "app/Palettes.h"

#include <QRadioButton>
#include <QStyle>
#include <QStyleOptionButton>
#include <QTranslator>

namespace quilm {
namespace {

// A palette of a desktop as the toolkit's own style has it, where captions of disabled buttons are all but gone.
QPalette ToolkitPalette() {
  QPalette palette(QColor(0xef, 0xef, 0xef));
  for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
    palette.setColor(QPalette::Active, role, Qt::black);
    palette.setColor(QPalette::Inactive, role, Qt::black);
    palette.setColor(QPalette::Disabled, role, QColor(0xbe, 0xbe, 0xbe));
  }
  return palette;
}

QPalette Mended() {
  const QPalette system = ToolkitPalette();
  return Legible(system).resolve(system);
}

TEST(Contrast, IsThatOfTheGuidelines) {
  EXPECT_NEAR(Contrast(Qt::black, Qt::white), 21, 1e-6);
  EXPECT_NEAR(Contrast(Qt::white, Qt::white), 1, 1e-6);
  // Worked by hand: 0x77 is 0.4667, linear 0.1845; 1.05 / 0.2345.
  EXPECT_NEAR(Contrast(QColor(0x77, 0x77, 0x77), Qt::white), 4.478, 0.001);
}

class Sight : public testing::TestWithParam<QPalette (*)()> {};

TEST_P(Sight, CaptionsOfWhatIsDisabledHaveAContrastOf3) {
  const QPalette palette = GetParam()();
  for (const auto caption : {QPalette::WindowText, QPalette::ButtonText, QPalette::Text}) {
    for (const auto field : {QPalette::Window, QPalette::Button, QPalette::Base}) {
      EXPECT_GE(Contrast(palette.color(QPalette::Disabled, caption), palette.color(QPalette::Active, field)), 3)
          << caption << ' ' << field;
    }
    EXPECT_LT(Contrast(palette.color(QPalette::Disabled, caption), palette.color(QPalette::Window)),
              Contrast(palette.color(QPalette::Active, caption), palette.color(QPalette::Window)))
        << "what cannot be used is fainter";
  }
}

TEST_P(Sight, UnitsAndHeadingsAreRead) {
  const QPalette palette = GetParam()();
  EXPECT_GE(Contrast(palette.color(QPalette::Active, QPalette::PlaceholderText), palette.color(QPalette::Window)), 4.5);
}

TEST_P(Sight, RingsOfOptionsHaveAContrastOf3) {
  const QPalette palette = GetParam()();
  for (const auto group : {QPalette::Active, QPalette::Disabled}) {
    for (const auto field : {QPalette::Window, QPalette::Base}) {
      EXPECT_GE(Contrast(RingColor(palette, group), palette.color(QPalette::Active, field)), 3)
          << group << ' ' << field;
    }
  }
}

INSTANTIATE_TEST_SUITE_P(Palettes, Sight, testing::Values(LightPalette, DarkPalette, Mended));

// The colour of the pixels themselves, where the ring is drawn.
TEST(RingOfAnOption, IsDrawnInItsColor) {
  const QPalette before = QApplication::palette();
  const QString style = QApplication::style()->name();
  SetAppearance(QStringLiteral("dark"));
  const QColor window = DarkPalette().color(QPalette::Window);
  QRadioButton option(QStringLiteral("Normal"));
  option.resize(option.sizeHint());
  const QImage image = option.grab().toImage();
  QStyleOptionButton place;
  place.initFrom(&option);
  const QRect mark = option.style()->subElementRect(QStyle::SE_RadioButtonIndicator, &place, &option);
  double best = 1;
  for (int x = mark.left(); x < mark.center().x() - 2; ++x) {
    best = std::max(best, Contrast(image.pixelColor(x, mark.center().y()), window));
  }
  EXPECT_GE(best, 3 * 0.95);  // smoothed by a twentieth at most
  QApplication::setStyle(style);
  QApplication::setPalette(before);
}

// As a desktop that speaks Arabic gives the toolkit its texts.
class TextsFromTheRight : public QTranslator {
 public:
  QString translate(const char* /*context*/, const char* source, const char* /*hint*/, int /*n*/) const override {
    return QLatin1String(source) == QLatin1String("QT_LAYOUT_DIRECTION") ? QStringLiteral("RTL") : QString();
  }
  bool isEmpty() const override { return false; }
};

// The toolkit would turn units before their numbers, and the digits of a table's numbers about their points.
TEST(Appearance, TheWindowRunsFromLeftToRightOnADesktopThatDoesNot) {
  const QPalette before = QApplication::palette();
  const QString style = QApplication::style()->name();
  QApplication::setLayoutDirection(Qt::LayoutDirectionAuto);
  TextsFromTheRight texts;
  QCoreApplication::installTranslator(&texts);
  QApplication::processEvents();
  ASSERT_EQ(QApplication::layoutDirection(), Qt::RightToLeft);
  SetAppearance(QStringLiteral("light"));
  EXPECT_EQ(QApplication::layoutDirection(), Qt::LeftToRight);
  EXPECT_EQ(QWidget().layoutDirection(), Qt::LeftToRight);
  // Also when the texts come late, or anew.
  QCoreApplication::removeTranslator(&texts);
  QCoreApplication::installTranslator(&texts);
  QApplication::processEvents();
  EXPECT_EQ(QApplication::layoutDirection(), Qt::LeftToRight);
  QCoreApplication::removeTranslator(&texts);
  QApplication::setStyle(style);
  QApplication::setPalette(before);
}

}  // namespace
}  // namespace quilm
