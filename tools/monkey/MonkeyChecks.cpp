#include "monkey/MonkeyChecks.h"

#include <cmath>
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <memory>
#include <sstream>

#include "core/Responses.h"
#include "core/modGeneral.h"
#include "files/ReadDesign.h"
#include "files/WriteDesign.h"
#include "script/Commands.h"
#include "script/Json.h"
#include "shell/Page.h"

namespace quilm {

namespace {

// The formats show four to six significant digits, and five places behind the point of a small figure.
f32 DisplayError(f32 value) { return 5.1e-4F * std::fabs(value) + 5.1e-6F; }

// The formats of frequencies and resistances have no text for what is negative or too small: the box then says what
// they have.
bool SaysItsField(const Entry& entry) {
  if (entry.Box().text == entry.Shown()) return true;
  std::string text = entry.Box().text;
  f32 shown = 0;
  ParseEntry(text, shown);
  return std::fabs(shown - entry.Field()) <= DisplayError(entry.Field());
}

std::string CheckBoxesOf(const ScriptRun& run, Page& page) {
  for (const Entry& entry : page.entries.All()) {
    const TextBox& box = entry.Box();
    if (!box.Shown() || run.focus.Has(page, box) || SaysItsField(entry)) continue;
    std::ostringstream why;
    why << "box " << box.name << " of " << page.Name() << " does not say what the record holds";
    return why.str();
  }
  return {};
}

// The path of the first null, which is how a number that is not finite is printed.
std::string FirstNull(const Json& json, const std::string& path) {
  if (json.is_null()) return path;
  if (!json.is_structured()) return {};
  for (const auto& [key, value] : json.items()) {
    const std::string found = FirstNull(value, json.is_array() ? path : path.empty() ? key : path + "." + key);
    if (!found.empty()) return found;
  }
  return {};
}

// What is only known after a sweep, and how the design is looked at: the history makes no steps of these.
DesignRecord WithoutNotes(DesignRecord record) {
  record.ResponsesValid = 0;
  record.PlotCode = 0;
  record.LimitsShown = record.MarkersShown = 0;
  return record;
}

std::string Difference(const DesignRecord& one, const DesignRecord& other) {
  const Json a = RecordEvent(one, {});
  const Json b = RecordEvent(other, {});
  for (const char* part : {"record", "stages"}) {
    if (a.contains(part) && a[part].is_array() && a[part] != b[part]) return part;
    if (!a.contains(part) || !a[part].is_object()) continue;
    for (const auto& [key, value] : a[part].items()) {
      if (b[part][key] != value) return key;
    }
  }
  return "something that is not printed";
}

// Reading takes twelve characters of a number and holds it at 1E+10.
bool IsKept(const std::string& word, f64 value) {
  constexpr std::size_t longest = 12;
  constexpr f64 greatest = 1e10;
  return word.size() <= longest && std::fabs(value) <= greatest;
}

// Reading keeps a stopband at least a thousandth off the band, also that of an M-derived design, which has none.
bool IsHeldStopband(f64 read, f64 saved) {
  constexpr f64 least = 1.001;
  return saved < least && std::fabs(read - least) < 1e-6;
}

// Words alike, and the numbers of `other` that reading keeps, as far as the seven digits of a file tell 32 bits apart.
bool SameTexts(const std::string& one, const std::string& other) {
  constexpr f64 lastDigits = 2e-6;
  std::istringstream first(one);
  std::istringstream second(other);
  std::string a;
  std::string b;
  while (true) {
    const bool more = static_cast<bool>(first >> a);
    if (static_cast<bool>(second >> b) != more) return false;
    if (!more) return true;
    if (a == b) continue;
    char* end = nullptr;
    const f64 x = std::strtod(a.c_str(), &end);
    if (*end != 0) return false;
    const f64 y = std::strtod(b.c_str(), &end);
    if (*end != 0) return false;
    if (IsKept(b, y) && !IsHeldStopband(x, y) && !(std::fabs(x - y) <= lastDigits * std::fabs(x))) return false;
  }
}

// The line of an inductor alone has places for a capacitor, and the other way round; what stands there is not read.
std::string WithoutUnusedPart(const std::string& stageLine) {
  std::istringstream words(stageLine);
  std::string type;
  std::string L;
  std::string Ltolerance;
  std::string C;
  std::string Ctolerance;
  words >> type >> L >> Ltolerance >> C >> Ctolerance;
  if (type == "1" || type == "2") return type + " " + L + " " + Ltolerance + " 0 0";
  if (type == "3" || type == "4") return type + " 0 0 " + C + " " + Ctolerance;
  return stageLine;
}

// A Gaussian to 12 dB is read as a manual network.
std::string AsItIsRead(std::string saved) {
  constexpr std::string_view heading = "* Family, order, stages, topology, Cauer:\r\n 8 ";
  const std::size_t at = saved.find(heading);
  if (at != std::string::npos) saved.replace(at + heading.size() - 2, 1, "11");
  std::istringstream lines(saved);
  std::string read;
  bool isStage = false;
  for (std::string line; std::getline(lines, line);) {
    if (line.starts_with("*")) isStage = line.starts_with("* Element type") || (isStage && line.starts_with("*   "));
    read += (isStage && !line.starts_with("*") ? WithoutUnusedPart(line) : line) + "\n";
  }
  return read;
}

bool HasFocus(ScriptRun& run) {
  for (const Page* page : PagesInSight(run)) {
    for (const Control* control : page->Controls()) {
      const auto* box = dynamic_cast<const TextBox*>(control);
      if (box != nullptr && run.focus.Has(*page, *box)) return true;
    }
  }
  return false;
}

}  // namespace

std::string CheckBoxes(ScriptRun& run) {
  for (Page* page : PagesInSight(run)) {
    std::string why = CheckBoxesOf(run, *page);
    if (!why.empty()) return why;
  }
  return {};
}

std::string CheckNumbers(ScriptRun& run) {
  const std::string field = FirstNull(RecordEvent(run.session.record, {}), {});
  return field.empty() ? std::string() : "the record holds what is no number: " + field;
}

std::string CheckSavedFile(const std::string& path) {
  std::ifstream in(path, std::ios::binary);
  const std::string saved{std::istreambuf_iterator<char>(in), {}};
  const auto record = std::make_unique<DesignRecord>();
  const auto responses = std::make_unique<Responses>();
  ClearCircuit(*record, *responses);
  std::istringstream text(saved);
  const ReadOutcome outcome = ReadDesign(text, *record);
  if (outcome.failed) return "a saved design cannot be read: " + outcome.description;
  // Of a linear sweep the file holds the step, which tells nothing where the stop is not above the start.
  if (record->SweepMode == 1 && !(record->Fstart < record->Fstop)) return {};
  // The date is the third line, and the only thing in it that is not of the design.
  std::istringstream lines(saved);
  std::string date;
  for (int line = 0; line < 3; ++line) std::getline(lines, date);
  while (!date.empty() && date.back() == '\r') date.pop_back();
  return SameTexts(DesignText(*record, date), AsItIsRead(saved))
             ? std::string()
             : "a saved design is written otherwise when it was read";
}

std::string UndoCheck::After(ScriptRun& run, const std::string& act, bool refused) {
  const DesignRecord now = WithoutNotes(run.session.record);
  std::string why;
  if (act == "redo" && beforeUndo_ && !refused && !(*beforeUndo_ == now)) {
    why = "undo and redo change " + Difference(*beforeUndo_, now);
  }
  beforeUndo_.reset();
  if (act == "undo" && !refused && !typing_) beforeUndo_ = last_;
  last_ = now;
  typing_ = HasFocus(run);
  return why;
}

}  // namespace quilm
