#include "app/Palettes.h"

#include <QApplication>
#include <QStyleFactory>

namespace quilm {

namespace {

struct Tones {
  QRgb window, base, alternate, button, light, mid, dark, text, faint, highlight, highlightText;
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
  palette.setColor(QPalette::PlaceholderText, tones.faint);
  palette.setColor(QPalette::Disabled, QPalette::Base, tones.window);
  palette.setColor(QPalette::Disabled, QPalette::Highlight, tones.mid);
  palette.setColor(QPalette::Link, tones.highlight);
  return palette;
}

}  // namespace

QPalette LightPalette() {
  return Make({.window = 0xffeff0f2,
               .base = 0xffffffff,
               .alternate = 0xfff6f7f8,
               .button = 0xffe9ebee,
               .light = 0xfff8f9fa,
               .mid = 0xffb4b9c0,
               .dark = 0xff8d939b,
               .text = 0xff1c2127,
               .faint = 0xff959ba3,
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
               .faint = 0xff7d848d,
               .highlight = 0xff4f90dd,
               .highlightText = 0xff0d1116});
}

void SetAppearance(const QString& palette) {
  QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
  if (palette == QLatin1String("dark")) QApplication::setPalette(DarkPalette());
  if (palette == QLatin1String("light")) QApplication::setPalette(LightPalette());
}

}  // namespace quilm
