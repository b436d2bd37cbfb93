#include "app/FileFilters.h"

#include <QRegularExpression>

namespace quilm {

namespace {

QString WithBothCases(const QString& pattern) {
  const QString upper = pattern.toUpper();
  const QString lower = pattern.toLower();
  if (upper == lower) return pattern;
  return upper + QLatin1Char(' ') + lower;
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

}  // namespace quilm
