#include "files/export/SaveExport.h"

#include <algorithm>
#include <filesystem>
#include <optional>

#include "shell/Session.h"

namespace quilm {

namespace {

namespace fs = std::filesystem;

bool IsLetter(char c) { return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z'); }
bool IsDigit(char c) { return c >= '0' && c <= '9'; }

// What a name ends with, from its point on: a letter, and up to three letters and digits more. What else follows a
// point is a part of the name, as in "lowpass 1.5".
std::string ExtensionOf(const fs::path& path) {
  constexpr std::size_t longest = 5;
  const std::string extension = path.extension().string();
  const bool known =
      extension.size() >= 2 && extension.size() <= longest && IsLetter(extension[1]) &&
      std::all_of(extension.begin() + 1, extension.end(), [](char c) { return IsLetter(c) || IsDigit(c); });
  return known ? extension : std::string();
}

std::string OfferedPath(Session& session, const ExportKind& kind) {
  const ExportChoices& choices = session.exports;
  std::string path = choices.*kind.path;
  if (path.empty()) {
    path = (choices.folder.empty() ? session.platform.ProgramFolder() : choices.folder) + "/" + kind.defaultName;
  }
  path.resize(path.size() - ExtensionOf(path).size());
  return path + kind.extension;
}

bool IsThere(const std::string& path) {
  std::error_code unknown;
  return fs::exists(fs::symlink_status(path, unknown));
}

std::string NameOf(const std::string& path) { return fs::path(path).filename().string(); }

// The dialog has asked for the name that it saw; another one that the extension makes of it needs the same question.
bool MayReplace(Session& session, const ExportKind& kind, const std::string& path) {
  if (!IsThere(path)) return true;
  const std::string question = path + " already exists.\r\nDo you want to replace it?";
  if (session.platform.MessageBox(question, Buttons::YesNo, Icon::Question, kind.title) == Answer::Yes) return true;
  session.note = "Nothing was written: " + NameOf(path) + " stays as it is";
  return false;
}

// The path to write; nothing when there is none.
std::optional<std::string> AskPath(Session& session, const ExportKind& kind) {
  const std::string offered = OfferedPath(session, kind);
  const std::optional<std::string> chosen = session.platform.SaveDialog(kind.title, kind.filter, offered);
  if (!chosen) {
    if (!IsThere(offered)) return offered;
    session.note = "Nothing was written: the dialog was cancelled, and " + NameOf(offered) + " is there already";
    return std::nullopt;
  }
  if (!ExtensionOf(*chosen).empty()) return chosen;
  const std::string path = *chosen + kind.extension;
  return MayReplace(session, kind, path) ? std::optional(path) : std::nullopt;
}

void Remember(Session& session, const ExportKind& kind, const std::string& path) {
  session.exports.*kind.path = path;
  std::error_code unknown;
  session.exports.folder = fs::absolute(path, unknown).parent_path().string();
}

// A text that is not whole is written only where what there is of it is kept.
WriteOutcome WriteExport(const std::string& path, const ExportText& made, OnFailure kept) {
  if (!made.failure.empty() && kept == OnFailure::KeepOldFile) return {made.failure};
  const WriteOutcome outcome = WriteTextFile(path, made.text, kept);
  return outcome && !made.failure.empty() ? WriteOutcome{made.failure} : outcome;
}

}  // namespace

void SaveExport(Session& session, const ExportKind& kind, const std::function<ExportText()>& make) {
  const std::optional<std::string> path = AskPath(session, kind);
  if (!path) return;
  Remember(session, kind, *path);
  const WriteOutcome outcome = WriteExport(*path, make(), kind.kept);
  if (outcome) {
    session.note = "Wrote " + *path;
    return;
  }
  session.note = *path + " was not written whole: " + outcome.failure;
  const std::string message = kind.failure;
  session.platform.MessageBox(message.empty() ? *path + " was not written.\r\nThe reason: " + outcome.failure : message,
                              Buttons::Ok, Icon::Exclamation, "");
}

}  // namespace quilm
