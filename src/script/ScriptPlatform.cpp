#include "script/ScriptPlatform.h"

namespace quilm {

void ScriptPlatform::Ask(Asks what) const {
  if (onAsked) onAsked(what);
}

void ScriptPlatform::RequireAnswer(const std::string& text, Buttons buttons) const {
  if (answers.empty()) {
    if (buttons == Buttons::YesNo) throw CommandFailure{"no answer is queued for the question: " + text};
    return;
  }
  if (buttons == Buttons::YesNo && answers.front() == Answer::Ok) {
    throw CommandFailure{"the question takes yes or no, and ok is queued: " + text};
  }
  if (buttons == Buttons::Ok && answers.front() != Answer::Ok) {
    throw CommandFailure{"the message takes ok alone, and yes or no is queued: " + text};
  }
}

void ScriptPlatform::RequireFile(const std::string& title, bool save) const {
  if (files.empty()) throw CommandFailure{"no answer is queued for the file dialog: " + title};
  if (files.front().Answers(save)) return;
  const std::string queued = files.front().path.value_or("cancel");
  throw CommandFailure{"the dialog " + std::string(save ? "saves" : "opens") + ", and " + queued + " is queued to " +
                       std::string(save ? "open" : "save") + ": " + title};
}

Answer ScriptPlatform::MessageBox(const std::string& text, Buttons buttons, Icon icon, const std::string& title) {
  Ask(buttons == Buttons::YesNo ? Asks::Question : Asks::Message);
  RequireAnswer(text, buttons);
  return HeadlessPlatform::MessageBox(text, buttons, icon, title);
}

std::optional<std::string> ScriptPlatform::OpenDialog(const std::string& title, const std::string& filter) {
  Ask(Asks::OpenFile);
  RequireFile(title, false);
  return HeadlessPlatform::OpenDialog(title, filter);
}

std::optional<std::string> ScriptPlatform::SaveDialog(const std::string& title, const std::string& filter,
                                                      const std::string& defaultName) {
  Ask(Asks::SaveFile);
  RequireFile(title, true);
  return HeadlessPlatform::SaveDialog(title, filter, defaultName);
}

Canvas* ScriptPlatform::PrintDialog(Orientation paper) {
  Ask(Asks::Printer);
  return HeadlessPlatform::PrintDialog(paper);
}

void ScriptPlatform::RunModal(Page& page) {
  if (onPage) onPage("modal", page);
  onModal(page);
}

}  // namespace quilm
