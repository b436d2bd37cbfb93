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

char Capital(char c) { return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c; }

// Whether the dialog has a filter for the extension, in capitals or not.
bool IsOffered(const std::string& filter, std::string extension) {
  std::transform(extension.begin(), extension.end(), extension.begin(), Capital);
  const std::string pattern = "*" + extension;
  for (std::size_t at = filter.find(pattern); at != std::string::npos; at = filter.find(pattern, at + 1)) {
    const std::size_t end = at + pattern.size();
    if (end == filter.size() || !(IsLetter(filter[end]) || IsDigit(filter[end]))) return true;
  }
  return false;
}

std::string WithExtension(std::string path, const char* extension) {
  path.resize(path.size() - ExtensionOf(path).size());
  return path + extension;
}

std::string OfferedPath(Session& session, const ExportKind& kind) {
  const ExportChoices& choices = session.exports;
  std::string path = choices.*kind.path;
  if (path.empty()) {
    path = (choices.folder.empty() ? session.platform.ProgramFolder() : choices.folder) + "/" + kind.defaultName;
  }
  return WithExtension(path, kind.extension);
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
  std::optional<std::string> chosen = session.platform.SaveDialog(kind.title, kind.filter, offered);
  if (!chosen) {
    if (!IsThere(offered)) return offered;
    session.note = "Nothing was written: the dialog was cancelled, and " + NameOf(offered) + " is there already";
    return std::nullopt;
  }
  const std::string extension = ExtensionOf(*chosen);
  if (!extension.empty() && IsOffered(kind.filter, extension)) return chosen;
  const std::string path = WithExtension(*chosen, kind.extension);
  return MayReplace(session, kind, path) ? std::optional(path) : std::nullopt;
}

void Remember(Session& session, const ExportKind& kind, const std::string& path) {
  session.exports.*kind.path = path;
  std::error_code unknown;
  session.exports.folder = fs::absolute(path, unknown).parent_path().string();
}

void TellFailure(Session& session, const ExportKind& kind, const std::string& path, const std::string& reason) {
  const std::string message = kind.failure;
  const std::string withReason = path + " was not written.\r\nThe reason: " + reason;
  session.platform.MessageBox(message.empty() ? withReason : message, Buttons::Ok, Icon::Exclamation, "");
}

// A text that is not whole is written only where what there is of it is kept.
void WriteExport(Session& session, const ExportKind& kind, const std::string& path, const ExportText& made) {
  const bool whole = made.failure.empty();
  const WriteOutcome outcome = whole || kind.kept == OnFailure::KeepWhatWasWritten
                                   ? WriteTextFile(path, made.text, kind.kept)
                                   : WriteOutcome{made.failure};
  if (!outcome) {
    session.note = NameOf(path) + " was not written: " + outcome.failure;
    TellFailure(session, kind, path, outcome.failure);
  } else if (!whole) {
    session.note = path + " ends early: " + made.failure;
    TellFailure(session, kind, path, made.failure);
  } else {
    session.note = "Wrote " + path;
  }
}

}  // namespace

void SaveExport(Session& session, const ExportKind& kind, const std::function<ExportText()>& make) {
  const std::optional<std::string> path = AskPath(session, kind);
  if (!path) return;
  Remember(session, kind, *path);
  WriteExport(session, kind, *path, make());
}

}  // namespace quilm
