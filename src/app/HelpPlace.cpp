#include "app/HelpPlace.h"

#include <QDir>
#include <QFileInfo>
#include <QStringList>

namespace quilm {

namespace {

// Some folder may be called help and hold something else.
bool HoldsHelp(const QString& folder) { return QFileInfo::exists(folder + QStringLiteral("/design.htm")); }

}  // namespace

QString FindHelp(const QString& program) {
  QStringList places;
  for (const char* place : {QUILM_DATA_FROM_PROGRAM "/help", "help", "../help"}) {
    places << QDir::cleanPath(QDir(program).filePath(QString::fromLatin1(place)));
  }
  for (const QString& place : places) {
    if (HoldsHelp(place)) return place;
  }
  return places.front();
}

}  // namespace quilm
