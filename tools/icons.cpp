// Writes the program's icons as an installation lays them out: quilm-icons DIR NAME makes DIR/scalable/apps/NAME.svg,
// DIR/48x48/apps/NAME.png and so on.
#include <QApplication>
#include <QDir>
#include <QFile>
#include <QIcon>
#include <QPixmap>
#include <cstdio>

#include "app/ProgramIcon.h"

namespace {

QString FileIn(const QString& folder, const QString& size, const QString& name) {
  const QString place = folder + '/' + size + QStringLiteral("/apps");
  QDir().mkpath(place);
  return place + '/' + name;
}

bool WriteSvg(const QString& path) {
  QFile file(path);
  return file.open(QIODevice::WriteOnly) && file.write(quilm::ProgramIconSvg()) > 0;
}

}  // namespace

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  const QApplication app(argc, argv);
  const QStringList words = QApplication::arguments();
  if (words.size() != 3) {
    std::fputs("usage: quilm-icons DIR NAME\n", stderr);
    return 2;
  }
  bool written = WriteSvg(FileIn(words[1], QStringLiteral("scalable"), words[2] + QStringLiteral(".svg")));
  for (const int side : {48, 64, 128, 256}) {
    const QPixmap pixmap = quilm::ProgramIcon().pixmap(QSize(side, side));
    const QString size = QStringLiteral("%1x%1").arg(side);
    written = pixmap.save(FileIn(words[1], size, words[2] + QStringLiteral(".png"))) && written;
  }
  return written ? 0 : 1;
}
