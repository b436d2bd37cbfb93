#include "script/Listing.h"

#include <algorithm>

#include "script/Commands.h"
#include "shell/Page.h"

namespace quilm {

namespace {

constexpr std::size_t effectColumn = 28;
constexpr std::size_t lineWidth = 80;

std::string Padded(std::string_view text, std::size_t width) {
  std::string padded(text);
  padded.resize(std::max(width, text.size()), ' ');
  return padded;
}

// The form at the left, the effect in a column of its own, from the next line on where the form reaches into it.
std::string Listed(const CommandRow& row) {
  std::string text;
  std::string line(row.form);
  if (line.size() + 2 > effectColumn) {
    text = line + '\n';
    line.clear();
  }
  line = Padded(line, effectColumn);
  bool begun = false;
  for (const std::string& word : Words(row.effect)) {
    if (begun && line.size() + 1 + word.size() > lineWidth) {
      text += line + '\n';
      line = Padded({}, effectColumn);
      begun = false;
    }
    if (begun) line += ' ';
    line += word;
    begun = true;
  }
  return text + line + '\n';
}

// The caption in one line.
std::string Shown(const Control& control) {
  std::string shown = control.caption.empty() ? control.SpokenName() : control.caption;
  if (shown == control.name) return {};
  std::ranges::replace_if(
      shown, [](char c) { return c == '\r' || c == '\n'; }, ' ');
  return shown;
}

std::string Listed(const Page& page) {
  std::string text = std::string(page.Name()) + ": " + page.title + '\n';
  std::size_t widest = 0;
  for (const Control* control : page.Controls()) widest = std::max(widest, control->name.size());
  for (const Control* control : page.Controls()) {
    if (control->kind == ControlKind::Timer) continue;  // never seen
    std::string line = "  " + Padded(control->name, widest + 2) + Padded(KindName(control->kind), 9) + Shown(*control);
    text += WithoutBlanksAtEnd(line) + '\n';
  }
  return text;
}

}  // namespace

std::string CommandListing() {
  std::string text;
  for (const CommandRow& row : AllCommands()) text += Listed(row);
  return text;
}

std::string ControlListing(const PageDirectory& directory, const std::string& form) {
  HeadlessPlatform platform({});
  Session session(platform, directory);
  std::string text;
  for (const auto& [id, make] : directory) {
    if (!form.empty() && form != FormName(id)) continue;
    text += Listed(*make(session));
  }
  if (text.empty()) throw CommandFailure{"there is no page " + form};
  return text;
}

}  // namespace quilm
