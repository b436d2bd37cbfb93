#include "app/Palettes.h"

#include <QApplication>
#include <QPainter>
#include <QProxyStyle>
#include <QStyleOption>
#include <cmath>
#include <initializer_list>

#include "app/QtText.h"

namespace quilm {

namespace {

constexpr double leastOfDisabled = 3;  // contrast of what need not be read to work
constexpr double leastOfText = 4.5;    // and of what must
constexpr QPalette::ColorRole captions[] = {QPalette::WindowText, QPalette::Text, QPalette::ButtonText};

struct Tones {
  QRgb window, base, alternate, button, light, mid, dark, text, quiet, faint, highlight, highlightText;
};

QPalette Make(const Tones& tones) {
  QPalette palette;
  palette.setColor(QPalette::Window, tones.window);
  palette.setColor(QPalette::Base, tones.base);
  palette.setColor(QPalette::AlternateBase, tones.alternate);
  palette.setColor(QPalette::Button, tones.button);
  palette.setColor(QPalette::Light, tones.light);
  palette.setColor(QPalette::Midlight, tones.light);
  palette.setColor(QPalette::Mid, tones.mid);
  palette.setColor(QPalette::Dark, tones.dark);
  palette.setColor(QPalette::Shadow, tones.dark);
  palette.setColor(QPalette::ToolTipBase, tones.base);
  palette.setColor(QPalette::Highlight, tones.highlight);
  palette.setColor(QPalette::HighlightedText, tones.highlightText);
  for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::ToolTipText,
                          QPalette::BrightText, QPalette::PlaceholderText}) {
    palette.setColor(role, tones.text);
    palette.setColor(QPalette::Disabled, role, tones.faint);
  }
  palette.setColor(QPalette::PlaceholderText, tones.quiet);
  palette.setColor(QPalette::Disabled, QPalette::PlaceholderText, tones.faint);
  palette.setColor(QPalette::Disabled, QPalette::Base, tones.window);
  palette.setColor(QPalette::Disabled, QPalette::Highlight, tones.mid);
  palette.setColor(QPalette::Link, tones.highlight);
  return palette;
}

double Luminance(const QColor& color) {
  const auto linear = [](double part) {
    return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
  };
  return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
}

QColor Mixed(const QColor& one, const QColor& other, double share) {
  const auto part = [share](float a, float b) { return static_cast<float>(a + (b - a) * share); };
  return QColor::fromRgbF(part(one.redF(), other.redF()), part(one.greenF(), other.greenF()),
                          part(one.blueF(), other.blueF()));
}

// The text's colour faded towards the window as far as the contrast to all fields allows.
QColor Faded(const QPalette& colors, double least) {
  const QColor text = colors.color(QPalette::Active, QPalette::WindowText);
  const QColor window = colors.color(QPalette::Active, QPalette::Window);
  constexpr int steps = 64;
  for (int step = steps - 1; step > 0; --step) {
    const QColor faded = Mixed(text, window, static_cast<double>(step) / steps);
    const auto seenOn = [&](QPalette::ColorRole field) {
      return Contrast(faded, colors.color(QPalette::Active, field)) >= least;
    };
    if (seenOn(QPalette::Window) && seenOn(QPalette::Base) && seenOn(QPalette::Button)) return faded;
  }
  return text;
}

// The toolkit's style, but for the marks of options, whose ring it draws in a shade of the window that nobody sees in
// the dark.
class InstrumentStyle : public QProxyStyle {
 public:
  InstrumentStyle() : QProxyStyle(QStringLiteral("Fusion")) {}

  void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override {
    if (element != PE_IndicatorRadioButton) return QProxyStyle::drawPrimitive(element, option, painter, widget);
    const QPalette& colors = option->palette;
    const bool enabled = (option->state & State_Enabled) != 0;
    const QPalette::ColorGroup group = enabled ? QPalette::Active : QPalette::Disabled;
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    constexpr double inset = 1;
    const QRectF ring = QRectF(option->rect).adjusted(inset, inset, -inset, -inset);
    painter->setPen(QPen(RingColor(colors, group), 1.25));
    const bool down = (option->state & State_Sunken) != 0;
    painter->setBrush(colors.color(group, down ? QPalette::Midlight : QPalette::Base));
    painter->drawEllipse(ring);
    if ((option->state & State_On) != 0) {
      const double quarter = ring.width() / 4;
      painter->setPen(Qt::NoPen);
      painter->setBrush(colors.color(group, QPalette::WindowText));
      painter->drawEllipse(ring.adjusted(quarter, quarter, -quarter, -quarter));
    }
    painter->restore();
  }
};

}  // namespace

double Contrast(const QColor& one, const QColor& other) {
  constexpr double glare = 0.05;
  const double first = Luminance(one) + glare;
  const double second = Luminance(other) + glare;
  return first > second ? first / second : second / first;
}

QColor RingColor(const QPalette& palette, QPalette::ColorGroup group) {
  if (group == QPalette::Disabled) return palette.color(QPalette::Disabled, QPalette::WindowText);
  // A thin line loses a part of its contrast where it is smoothed.
  return Faded(palette, leastOfText);
}

QPalette Legible(const QPalette& system) {
  QPalette palette;
  const QColor faint = Faded(system, leastOfDisabled);
  for (const QPalette::ColorRole caption : captions) palette.setColor(QPalette::Disabled, caption, faint);
  palette.setColor(QPalette::Disabled, QPalette::PlaceholderText, faint);
  const QColor quiet = Faded(system, leastOfText);
  palette.setColor(QPalette::Active, QPalette::PlaceholderText, quiet);
  palette.setColor(QPalette::Inactive, QPalette::PlaceholderText, quiet);
  return palette;
}

QPalette LightPalette() {
  return Make({.window = 0xffeff0f2,
               .base = 0xffffffff,
               .alternate = 0xfff6f7f8,
               .button = 0xffe9ebee,
               .light = 0xfff8f9fa,
               .mid = 0xffb4b9c0,
               .dark = 0xff8d939b,
               .text = 0xff1c2127,
               .quiet = 0xff5f656e,
               .faint = 0xff7a8088,
               .highlight = 0xff2b68b0,
               .highlightText = 0xffffffff});
}

QPalette DarkPalette() {
  return Make({.window = 0xff2e3237,
               .base = 0xff1a1c1f,
               .alternate = 0xff24272b,
               .button = 0xff3a3f46,
               .light = 0xff4a5058,
               .mid = 0xff5a616a,
               .dark = 0xff121315,
               .text = 0xffe4e7ea,
               .quiet = 0xffa9b0b8,
               .faint = 0xff939aa3,
               .highlight = 0xff4f90dd,
               .highlightText = 0xff0d1116});
}

QPalette MarkedGround(Color ground, QPalette::ColorRole behind, QPalette::ColorRole letters) {
  QPalette colors;
  if (ground == colorWhite) return colors;
  colors.setColor(behind, ToQt(ground));
  colors.setColor(letters, Qt::black);
  return colors;
}

void SetAppearance(const QString& palette) {
  QGuiApplication::setLayoutDirection(Qt::LeftToRight);
  QApplication::setStyle(new InstrumentStyle);
  if (palette == QLatin1String("dark")) {
    QApplication::setPalette(DarkPalette());
  } else if (palette == QLatin1String("light")) {
    QApplication::setPalette(LightPalette());
  } else {
    QApplication::setPalette(Legible(QApplication::palette()));
  }
}

}  // namespace quilm
