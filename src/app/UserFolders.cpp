#include "app/UserFolders.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include "shell/modWriteConfig.h"

namespace quilm {

namespace {

const QString windowPlace = QStringLiteral("window.ini");

// By the variable, not by QStandardPaths: that adds the names of organisation and program in its own way, and takes
// relative paths.
QString FolderFrom(const char* variable, const char* belowHome) {
  const QString given = qEnvironmentVariable(variable);
  const QString base = QDir::isAbsolutePath(given) ? given : QDir::homePath() + QString::fromLatin1(belowHome);
  return QDir::cleanPath(base) + QStringLiteral("/quilm");
}

// A file may lie on another file system than its new folder: rename copies it then.
void Move(const QString& name, const QString& from, const QString& to) {
  const QString source = from + '/' + name;
  const QString target = to + '/' + name;
  if (source != target && QFileInfo::exists(source) && !QFileInfo::exists(target)) QFile::rename(source, target);
}

void Make(const QString& folder) {
  if (QFileInfo::exists(folder)) return;
  const QDir parent = QFileInfo(folder).dir();
  QDir().mkpath(parent.path());
  QDir().mkdir(folder, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
}

}  // namespace

UserFolders UserFolders::OfDesktop() {
  return {FolderFrom("XDG_DATA_HOME", "/.local/share"), FolderFrom("XDG_CONFIG_HOME", "/.config"),
          FolderFrom("XDG_STATE_HOME", "/.local/state")};
}

UserFolders UserFolders::Within(const QString& folder) {
  const QString path = QDir::cleanPath(QDir().absoluteFilePath(folder));
  return {path, path, path};
}

void PrepareFolders(const UserFolders& folders) {
  for (const QString& folder : {folders.data, folders.preferences, folders.state}) Make(folder);
  Move(QString::fromLatin1(configurationFile), folders.data, folders.preferences);
  Move(windowPlace, folders.data, folders.state);
}

QString WindowPlaceFile(const UserFolders& folders) { return folders.state + '/' + windowPlace; }

}  // namespace quilm
