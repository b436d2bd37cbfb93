#include "app/WindowPlatform.h"

#include <QApplication>
#include <QDateTime>
#include <QDesktopServices>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QPageLayout>
#include <QPrintDialog>
#include <QProcess>
#include <QSettings>
#include <QStandardPaths>
#include <QUrl>
#include <cmath>
#include <utility>

#include "app/FileFilters.h"
#include "app/HelpPlace.h"
#include "app/MessageWindow.h"
#include "app/PrinterCanvas.h"
#include "app/QtText.h"
#include "core/Fault.h"

namespace quilm {

namespace {

const QString lastFolderKey = QStringLiteral("files/folder");

QString TitleOf(const std::string& title) { return title.empty() ? QStringLiteral("Quilm") : ToQt(title); }

}  // namespace

WindowPlatform::WindowPlatform(const QString& folder)
    : folders_(folder.isEmpty() ? UserFolders::OfDesktop() : UserFolders::Within(folder)) {
  PrepareFolders(folders_);
}

WindowPlatform::~WindowPlatform() = default;

Answer WindowPlatform::MessageBox(const std::string& text, Buttons buttons, Icon icon, const std::string& title) {
  int answer = QDialog::Rejected;
  if (!stage_.IsUnattended()) {
    MessageWindow box(TitleOf(title), ToQt(text), buttons, icon, stage_.FrontWindow());
    answer = stage_.RunDialog(box);
  }
  if (buttons == Buttons::Ok) return Answer::Ok;
  return answer == QDialog::Accepted ? Answer::Yes : Answer::No;
}

std::optional<std::string> WindowPlatform::AskFile(QFileDialog& dialog) {
  if (stage_.RunDialog(dialog) != QDialog::Accepted || dialog.selectedFiles().isEmpty()) return std::nullopt;
  const QString path = dialog.selectedFiles().constFirst();
  QSettings(SettingsPath(), QSettings::IniFormat).setValue(lastFolderKey, QFileInfo(path).absolutePath());
  return path.toStdString();
}

std::optional<std::string> WindowPlatform::OpenDialog(const std::string& title, const std::string& filter) {
  if (!given_.empty()) return std::exchange(given_, {});
  QFileDialog dialog(stage_.FrontWindow(), TitleOf(title),
                     QSettings(SettingsPath(), QSettings::IniFormat).value(lastFolderKey).toString());
  dialog.setFileMode(QFileDialog::ExistingFile);
  dialog.setNameFilters(NameFilters(ToQt(filter)));
  return AskFile(dialog);
}

std::optional<std::string> WindowPlatform::SaveDialog(const std::string& title, const std::string& filter,
                                                      const std::string& defaultName) {
  QFileDialog dialog(stage_.FrontWindow(), TitleOf(title),
                     QSettings(SettingsPath(), QSettings::IniFormat).value(lastFolderKey).toString());
  dialog.setAcceptMode(QFileDialog::AcceptSave);
  dialog.setFileMode(QFileDialog::AnyFile);
  dialog.setNameFilters(NameFilters(ToQt(filter)));
  dialog.setDefaultSuffix(SuffixOf(dialog.selectedNameFilter()));
  QObject::connect(&dialog, &QFileDialog::filterSelected, &dialog,
                   [&dialog](const QString& chosen) { dialog.setDefaultSuffix(SuffixOf(chosen)); });
  if (!defaultName.empty()) dialog.selectFile(ToQt(defaultName));
  while (true) {
    const std::optional<std::string> chosen = AskFile(dialog);
    if (!chosen) return std::nullopt;
    const QString path = WithRightEnding(ToQt(*chosen), dialog.nameFilters(), dialog.selectedNameFilter());
    if (path == ToQt(*chosen) || MayReplace(path, title)) return path.toStdString();
    dialog.selectFile(QFileInfo(path).fileName());
  }
}

// The dialog has asked for the name that it saw; another one that the ending makes of it needs the same question.
bool WindowPlatform::MayReplace(const QString& path, const std::string& title) {
  if (!QFileInfo::exists(path)) return true;
  const std::string question = path.toStdString() + " already exists.\r\nDo you want to replace it?";
  return MessageBox(question, Buttons::YesNo, Icon::Question, title) == Answer::Yes;
}

Canvas* WindowPlatform::PrintDialog(Orientation paper) {
  auto printer = std::make_unique<QPrinter>(QPrinter::HighResolution);
  printer->setPageOrientation(paper == Orientation::Portrait ? QPageLayout::Portrait : QPageLayout::Landscape);
  printer->setCreator(QStringLiteral("Quilm"));
  QPrintDialog dialog(printer.get(), stage_.FrontWindow());
  if (stage_.RunDialog(dialog) != QDialog::Accepted) return nullptr;
  auto canvas = std::make_unique<PrinterCanvas>(std::move(printer));
  if (!canvas->IsReady()) throw Fault("The printer did not take the document.");
  printer_ = std::move(canvas);
  return printer_.get();
}

void WindowPlatform::Beep() {
  if (!stage_.IsUnattended()) QApplication::beep();
}

bool WindowPlatform::ShellOpen(const std::string& path) {
  const QString document = ToQt(path);
  const bool file = QFileInfo::exists(document);
  return QDesktopServices::openUrl(file ? QUrl::fromLocalFile(QFileInfo(document).absoluteFilePath())
                                        : QUrl::fromUserInput(document));
}

bool WindowPlatform::ShowSystemInformation() {
  for (const char* tool : {"hardinfo2", "hardinfo", "kinfocenter", "gnome-system-monitor", "mate-system-monitor"}) {
    const QString program = QStandardPaths::findExecutable(QString::fromLatin1(tool));
    if (!program.isEmpty() && QProcess::startDetached(program, {})) return true;
  }
  return false;
}

void WindowPlatform::Pause(f64 seconds) {
  constexpr f64 millisecondsPerSecond = 1000;
  stage_.Wait(static_cast<int>(std::lround(seconds * millisecondsPerSecond)));
}

std::string WindowPlatform::HelpFolder() { return FindHelp(QCoreApplication::applicationDirPath()).toStdString(); }

DateTime WindowPlatform::Now() {
  const QDateTime now = QDateTime::currentDateTime();
  const QDate day = now.date();
  const QTime time = now.time();
  return {day.year(), day.month(), day.day(), time.hour(), time.minute(), time.second()};
}

}  // namespace quilm
