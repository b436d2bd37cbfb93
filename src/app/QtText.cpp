#include "app/QtText.h"

#include <algorithm>

namespace quilm {

QString ToQt(const std::string& text) {
  QString shown = QString::fromStdString(text);
  shown.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
  return shown.replace(QLatin1Char('\r'), QLatin1Char('\n'));
}

QString LiteralCaption(const std::string& caption) {
  return ToQt(caption).replace(QLatin1Char('&'), QStringLiteral("&&"));
}

QColor ToQt(Color color) {
  return QColor(static_cast<int>(color & 0xFF), static_cast<int>(color >> 8 & 0xFF),
                static_cast<int>(color >> 16 & 0xFF));
}

QColor ReadableOn(const QColor& background, const QColor& text, Color color) {
  if (color == colorBlack) return text;
  const QColor plain = ToQt(color);
  constexpr int darkBelow = 128;
  if (background.lightness() >= darkBelow) return plain;
  constexpr int lightEnough = 190;
  return QColor::fromHsl(plain.hslHue(), plain.hslSaturation(), std::max(plain.lightness(), lightEnough));
}

}  // namespace quilm
