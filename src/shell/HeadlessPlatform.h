// A machine without a window: it answers what the pages ask from queues and records everything that was asked of it.
// The script and the page tests run on it.
#pragma once

#include <deque>
#include <functional>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "shell/Picture.h"
#include "shell/Platform.h"

namespace quilm {

struct MessageShown {
  std::string text;
  std::string title;
  Buttons buttons = Buttons::Ok;
  Icon icon = Icon::None;
  Answer answer = Answer::Ok;
};

struct FileAsked {
  bool save = false;
  std::string title;
  std::string filter;
  std::string defaultName;
  std::optional<std::string> answer;
};

// The answer to a coming file dialog: a path, or nothing for a cancelled one.
struct FileAnswer {
  enum class For { Any, Open, Save };

  FileAnswer(std::optional<std::string> answer, For dialog) : path(std::move(answer)), kind(dialog) {}
  FileAnswer(std::string answer) : path(std::move(answer)) {}
  FileAnswer(const char* answer) : path(answer) {}
  FileAnswer(std::nullopt_t) {}

  bool Answers(bool save) const { return kind == For::Any || (kind == For::Save) == save; }

  std::optional<std::string> path;
  For kind = For::Any;  // the only kind of dialog that it is meant for
};

// The printer of a machine without one: keeps the sheets of the document.
class SheetPrinter : public Picture {
 public:
  // The paper is US letter, in twips.
  explicit SheetPrinter(Orientation paper = Orientation::Portrait)
      : Picture(paper == Orientation::Portrait ? Scale{0, 0, 12240, 15840} : Scale{0, 0, 15840, 12240}),
        paper_(paper) {}
  Orientation Paper() const { return paper_; }
  void NewPage() override;
  void EndDoc() override;
  // The finished document, valid after EndDoc.
  const std::vector<Picture>& Sheets() const { return sheets_; }
  bool Ended() const { return ended_; }
  std::function<void()> onEnd;

 private:
  Orientation paper_;
  std::vector<Picture> sheets_;
  bool ended_ = false;
};

class HeadlessPlatform : public Platform {
 public:
  explicit HeadlessPlatform(std::string programFolder) : folder_(std::move(programFolder)) {}

  // Answers waiting for the next questions. A message box without one answers Ok; a Yes/No box without one is a Fault,
  // and so is a file dialog, or one whose answer is meant for the other kind. PrintDialog without one is cancelled.
  std::deque<Answer> answers;
  std::deque<FileAnswer> files;
  std::deque<bool> printers;

  // What to do while the next modal pages, or tools beside a page, are open, one function a page. A page that is still
  // open afterwards gets its close box pressed.
  std::deque<std::function<void(Page&)>> modalActs;

  // Runs in every Yield. A long run yields at each step, so that the number of a yield is that of its step.
  std::function<void()> onYield;
  f64 yieldInterval = 0;

  // Called after each event was recorded, for whoever prints them.
  std::function<void(const MessageShown&)> onMessage;
  std::function<void(const FileAsked&)> onFile;
  std::function<void(const char* event, const Page&)> onPage;  // "show", "modal", "unload"
  std::function<void()> onBeep;
  std::function<void(const std::string&)> onShellOpen;
  std::function<void(const SheetPrinter&)> onPrinted;

  bool hasBrowser = true;         // whether ShellOpen finds a program
  std::optional<DateTime> clock;  // the machine's own when not set

  // What happened.
  std::vector<MessageShown> messages;
  std::vector<FileAsked> fileDialogs;
  std::vector<std::string> opened;      // by ShellOpen
  std::vector<std::string> pageEvents;  // "show frmDesign", ...
  int beeps = 0;
  f64 paused = 0;  // seconds asked for in all
  const SheetPrinter& Printer() const { return printer_; }

  Answer MessageBox(const std::string& text, Buttons buttons, Icon icon, const std::string& title) override;
  std::optional<std::string> OpenDialog(const std::string& title, const std::string& filter) override;
  std::optional<std::string> SaveDialog(const std::string& title, const std::string& filter,
                                        const std::string& defaultName) override;
  Canvas* PrintDialog(Orientation paper) override;
  void Beep() override;
  bool ShellOpen(const std::string& path) override;
  bool ShowSystemInformation() override;
  void Yield() override;
  f64 YieldInterval() const override { return yieldInterval; }
  void Pause(f64 seconds) override { paused += seconds; }
  std::string ProgramFolder() override { return folder_; }
  std::string PreferencesFolder() override { return folder_; }
  std::string HelpFolder() override { return folder_ + "/help"; }
  DateTime Now() override;
  void PageShown(Page& page) override;
  void PageUnloaded(Page& page) override;
  void RunModal(Page& page) override;
  void RunBeside(Page& tool, Page& /*main*/) override { RunModal(tool); }  // who looks at pages needs no place for them

 private:
  std::optional<std::string> AskFile(FileAsked asked);
  void Note(const char* event, const Page& page);

  std::string folder_;
  SheetPrinter printer_;
};

}  // namespace quilm
