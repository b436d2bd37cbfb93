#include "shell/HeadlessPlatform.h"

#include <ctime>

#include "core/Fault.h"
#include "shell/Page.h"

namespace quilm {

namespace {

template <class T>
std::optional<T> TakeFirst(std::deque<T>& queue) {
  if (queue.empty()) return std::nullopt;
  T first = std::move(queue.front());
  queue.pop_front();
  return first;
}

}  // namespace

void SheetPrinter::NewPage() {
  Picture sheet(CurrentScale());
  Replay(sheet);
  sheets_.push_back(std::move(sheet));
  Clear();
}

void SheetPrinter::EndDoc() {
  NewPage();
  ended_ = true;
  if (onEnd) onEnd();
}

Answer HeadlessPlatform::MessageBox(const std::string& text, Buttons buttons, Icon icon, const std::string& title) {
  const std::optional<Answer> queued = TakeFirst(answers);
  if (!queued && buttons == Buttons::YesNo) throw Fault("No answer is queued for the question: " + text);
  messages.push_back({text, title, buttons, icon, queued.value_or(Answer::Ok)});
  if (onMessage) onMessage(messages.back());
  return messages.back().answer;
}

std::optional<std::string> HeadlessPlatform::AskFile(FileAsked asked) {
  if (files.empty() || !files.front().Answers(asked.save)) {
    throw Fault("No answer is queued for the file dialog: " + asked.title);
  }
  asked.answer = files.front().path;
  files.pop_front();
  fileDialogs.push_back(asked);
  if (onFile) onFile(asked);
  return asked.answer;
}

std::optional<std::string> HeadlessPlatform::OpenDialog(const std::string& title, const std::string& filter) {
  return AskFile({false, title, filter, {}, {}});
}

std::optional<std::string> HeadlessPlatform::SaveDialog(const std::string& title, const std::string& filter,
                                                        const std::string& defaultName) {
  return AskFile({true, title, filter, defaultName, {}});
}

Canvas* HeadlessPlatform::PrintDialog(Orientation paper) {
  if (!TakeFirst(printers).value_or(false)) return nullptr;
  printer_ = SheetPrinter(paper);
  printer_.onEnd = [this] {
    if (onPrinted) onPrinted(printer_);
  };
  return &printer_;
}

void HeadlessPlatform::Beep() {
  ++beeps;
  if (onBeep) onBeep();
}

bool HeadlessPlatform::ShellOpen(const std::string& path) {
  opened.push_back(path);
  if (onShellOpen) onShellOpen(path);
  return hasBrowser;
}

bool HeadlessPlatform::ShowSystemInformation() {
  ShellOpen("system-information");
  return true;
}

void HeadlessPlatform::Yield() {
  if (onYield) onYield();
}

DateTime HeadlessPlatform::Now() {
  if (clock) return *clock;
  const std::time_t now = std::time(nullptr);
  std::tm parts{};
  localtime_r(&now, &parts);
  return {parts.tm_year + 1900, parts.tm_mon + 1, parts.tm_mday, parts.tm_hour, parts.tm_min, parts.tm_sec};
}

void HeadlessPlatform::Note(const char* event, const Page& page) {
  pageEvents.push_back(std::string(event) + " " + std::string(page.Name()));
  if (onPage) onPage(event, page);
}

void HeadlessPlatform::PageShown(Page& page) { Note("show", page); }

void HeadlessPlatform::PageUnloaded(Page& page) { Note("unload", page); }

void HeadlessPlatform::RunModal(Page& page) {
  Note("modal", page);
  if (const auto act = TakeFirst(modalActs)) (*act)(page);
  if (page.IsOpen()) page.CloseBox();
}

}  // namespace quilm
