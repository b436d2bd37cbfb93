#include "app/FileFilters.h"

#include <QFileInfo>
#include <QRegularExpression>

namespace quilm {

namespace {

// As it is given first: a dialog takes the first for its own endings.
QString WithBothCases(const QString& pattern) {
  const QString other = pattern == pattern.toLower() ? pattern.toUpper() : pattern.toLower();
  return pattern == other ? pattern : pattern + QLatin1Char(' ') + other;
}

bool IsPictureEnding(const QString& ending) {
  static const QStringList endings{"jpg", "jpeg", "png",  "svg",  "pdf", "gif",
                                   "bmp", "tif",  "tiff", "webp", "eps", "ps"};
  return endings.contains(ending.toLower());
}

}  // namespace

QStringList NameFilters(const QString& filter) {
  const QStringList parts = filter.split(QLatin1Char('|'));
  QStringList filters;
  for (qsizetype i = 0; i + 1 < parts.size(); i += 2) {
    QString name = parts[i];
    // The patterns are written after the name anyway.
    name = name.left(name.indexOf(QLatin1Char('('))).trimmed();
    QStringList patterns;
    for (const QString& pattern : parts[i + 1].split(QLatin1Char(';'), Qt::SkipEmptyParts)) {
      patterns << WithBothCases(pattern.trimmed());
    }
    filters << name + QStringLiteral(" (") + patterns.join(QLatin1Char(' ')) + QLatin1Char(')');
  }
  return filters;
}

QString SuffixOf(const QString& nameFilter) {
  static const QRegularExpression extension(QStringLiteral("\\(\\*\\.([A-Za-z0-9]+)"));
  return extension.match(nameFilter).captured(1);
}

QString WithRightEnding(const QString& path, const QStringList& nameFilters, const QString& chosen) {
  if (nameFilters.size() < 2) return path;
  const QString ending = QFileInfo(path).suffix();
  for (const QString& filter : nameFilters) {
    if (!ending.isEmpty() && SuffixOf(filter).compare(ending, Qt::CaseInsensitive) == 0) return path;
  }
  if (SuffixOf(chosen).isEmpty()) return path;
  const QString stem = IsPictureEnding(ending) ? path.chopped(ending.size() + 1) : path;
  return stem + QLatin1Char('.') + SuffixOf(chosen);
}

}  // namespace quilm
