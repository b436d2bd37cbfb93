// The platform of the window: answers what the pages ask with the toolkit's dialogs, printer and desktop.
#pragma once

#include <QPrinter>
#include <QString>
#include <memory>
#include <utility>

#include "app/PageStage.h"
#include "app/UserFolders.h"
#include "shell/Platform.h"

class QFileDialog;

namespace quilm {

class WindowPlatform : public Platform {
 public:
  // Keeps its files in `folder`, which is made when missing; an empty one stands for the folders of the user's desktop.
  explicit WindowPlatform(const QString& folder = {});
  ~WindowPlatform() override;

  PageStage& Stage() { return stage_; }

  Answer MessageBox(const std::string& text, Buttons buttons, Icon icon, const std::string& title) override;
  std::optional<std::string> OpenDialog(const std::string& title, const std::string& filter) override;
  std::optional<std::string> SaveDialog(const std::string& title, const std::string& filter,
                                        const std::string& defaultName) override;
  Canvas* PrintDialog(Orientation paper) override;
  void Beep() override;
  bool ShellOpen(const std::string& path) override;
  bool ShowSystemInformation() override;
  void Yield() override { stage_.RunEvents(); }
  f64 YieldInterval() const override { return 0.01; }
  void Pause(f64 seconds) override;
  std::string ProgramFolder() override { return folders_.data.toStdString(); }
  std::string PreferencesFolder() override { return folders_.preferences.toStdString(); }
  std::string HelpFolder() override;
  DateTime Now() override;
  void PageShown(Page& page) override { stage_.Show(page); }
  void PageUnloaded(Page& page) override { stage_.Unload(page); }
  void RunModal(Page& page) override { stage_.RunModal(page); }
  void RunBeside(Page& tool, Page& main) override { stage_.RunBeside(tool, main); }

  // The answer of the next OpenDialog, for a file that the user has named in another way; an empty one takes it back.
  void GiveFile(std::string path) { given_ = std::move(path); }

  // The file that keeps the window's place.
  QString SettingsPath() const { return WindowPlaceFile(folders_); }

 private:
  std::optional<std::string> AskFile(QFileDialog& dialog);
  bool MayReplace(const QString& path, const std::string& title);

  UserFolders folders_;
  std::string given_;
  PageStage stage_;
  std::unique_ptr<Canvas> printer_;
};

}  // namespace quilm
