#include "app/HelpPlace.h"

#include <QDir>
#include <QFileInfo>

namespace quilm {

namespace {

// Some folder may be called help and hold something else.
bool HoldsHelp(const QString& folder) { return QFileInfo::exists(folder + QStringLiteral("/design.htm")); }

}  // namespace

QString FindHelp(const QString& program, const QStringList& elsewhere) {
  QStringList places;
  for (const char* place : {"../share/quilm/help", "help", "../help"}) {
    places << QDir::cleanPath(QDir(program).filePath(QString::fromLatin1(place)));
  }
  places << elsewhere;
  for (const QString& place : places) {
    if (HoldsHelp(place)) return place;
  }
  return elsewhere.value(0);
}

QStringList OtherHelpPlaces() {
  return {QStringLiteral(QUILM_DATA_DIR "/help"), QStringLiteral(QUILM_BUILD_DIR "/help")};
}

}  // namespace quilm
