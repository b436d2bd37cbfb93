#include "monkey/MonkeyActs.h"

#include <array>
#include <utility>
#include <vector>

#include "script/Commands.h"
#include "shell/Acts.h"
#include "shell/Page.h"

namespace quilm {

namespace {

// Sound entries of every magnitude, and what else people and pastes put into a box.
constexpr std::array numbers{"1M",   "2.5M",     "10M",   "1.5M", "50",   "75",   ".1",   ".5",   "3",     "1",
                             "2",    "5",        "20",    "40",   "60",   "1k",   "100k", "47p",  "100n",  "1.2345678M",
                             "0",    "",         "-5",    "-1M",  "1e9",  "1e10", "1e38", "9e99", "1e-12", "1e-40",
                             "-60",  "5000",     "0.001", "1,5k", "..5",  "--3",  "abc",  "nan",  "inf",   "50 Ohm",
                             "1e3k", "\xC2\xB5", "7u",    "1.1M", "0.9M", "3e6",  "20k",  "2049", "11",    "0.7"};
constexpr std::array words{"", "x", "My filter", "(aside)", "N", "#", "A title that goes on and on and on and on"};

// Where designs are kept, found, and cannot be.
constexpr std::array openPaths{"a.QLM",
                               "a.QLM",
                               "b.QLM",
                               "b.QLM",
                               "none.QLM",
                               "program",
                               "a.svg",
                               "program/LASTSESSION.QLM",
                               "program/QuilmConfiguration.CFG"};
constexpr std::array savePaths{"a.QLM", "a.QLM", "b.QLM", "none/c.QLM"};
constexpr std::array exportPaths{"a.txt", "b", "none/c.txt", "program"};

template <class Kind>
std::vector<const Kind*> Usable(ScriptRun& run) {
  std::vector<const Kind*> found;
  for (const Page* page : PagesInSight(run)) {
    for (const Control* control : page->Controls()) {
      const auto* kind = dynamic_cast<const Kind*>(control);
      if (kind != nullptr && kind->Usable()) found.push_back(kind);
    }
  }
  return found;
}

bool LeavesTheProgram(const std::string& name) { return name.find("Exit") != std::string::npos; }

}  // namespace

int MonkeyActs::Below(int count) { return static_cast<int>(random_() % static_cast<unsigned>(count)); }

std::string MonkeyActs::Next(ScriptRun& run) {
  std::string act = Choose(run);
  savesDesign_ = act == "press cmdSave";
  return act;
}

std::string MonkeyActs::Choose(ScriptRun& run) {
  if (!planned_.empty()) return std::exchange(planned_, {});
  if (undid_ && CanRedo(run.session) && !OneIn(3)) {
    undid_ = false;
    return "redo";
  }
  undid_ = false;
  const int kind = Below(100);
  std::string act;
  if (kind < 30) act = TypeText(run);
  if (kind >= 30 && kind < 42) act = TurnOrChoose(run);
  if (kind >= 42 && kind < 50) act = MouseOnPicture(run);
  if (kind >= 50 && kind < 53) act = PressArea(run);
  if (kind >= 53 && kind < 61 && CanUndo(run.session)) {
    undid_ = true;
    act = "undo";
  }
  if (kind >= 61 && kind < 63) act = LookAtSomething();
  if (kind == 63) act = "close";
  if (kind == 64) act = StopRun(run);
  return act.empty() ? Press(run) : act;
}

// The ways out of the program are taken now and then; out of a modal page there may be no other.
std::string MonkeyActs::Press(ScriptRun& run) {
  std::vector<std::string> names;
  for (const Button* button : Usable<Button>(run)) names.push_back(button->name);
  for (const OptionButton* option : Usable<OptionButton>(run)) names.push_back(option->name);
  if (names.empty()) return "close";
  std::string name = Any(names);
  for (int again = 0; again < 3 && LeavesTheProgram(name); ++again) name = Any(names);
  return "press " + name;
}

std::string MonkeyActs::Number() {
  if (!OneIn(4)) return Any(numbers);
  std::string text = std::to_string(Below(10000));
  text.insert(static_cast<std::size_t>(Below(static_cast<int>(text.size()) + 1)), ".");
  constexpr std::array units{"", "", "k", "M", "u", "p"};
  return text + Any(units);
}

std::string MonkeyActs::TypeText(ScriptRun& run) {
  std::vector<const TextBox*> boxes;
  for (const TextBox* box : Usable<TextBox>(run)) {
    if (!box->readOnly) boxes.push_back(box);
  }
  if (boxes.empty()) return {};
  const TextBox* box = Any(boxes);
  return "type " + box->name + " " + (box->stepsDigits ? Number() : std::string(Any(words)));
}

std::string MonkeyActs::TurnOrChoose(ScriptRun& run) {
  const auto spins = Usable<Spin>(run);
  std::vector<const ListBox*> lists;
  for (const ListBox* list : Usable<ListBox>(run)) {
    if (!list->items.empty()) lists.push_back(list);
  }
  if (!lists.empty() && (spins.empty() || OneIn(2))) {
    const ListBox* list = Any(lists);
    return "choose " + list->name + " " + std::to_string(1 + Below(static_cast<int>(list->items.size())));
  }
  if (spins.empty()) return {};
  constexpr std::array directions{" up ", " down "};
  return "spin " + Any(spins)->name + Any(directions) + std::to_string(1 + Below(OneIn(5) ? 30 : 3));
}

std::string MonkeyActs::MouseOnPicture(ScriptRun& run) {
  if (Usable<PictureBox>(run).empty()) return {};
  const Scale scale = PagePicture(run).picture.CurrentScale();
  // A little beyond the edges as well, where a mouse that is held goes.
  const auto at = [this](f32 from, f32 size) {
    return std::to_string(from + size * static_cast<f32>(Below(1200) - 100) / 1000);
  };
  constexpr std::array acts{"down ", "move ", "move ", "up "};
  return "mouse " + std::string(Any(acts)) + at(scale.left, scale.width) + " " + at(scale.top, scale.height) +
         (OneIn(5) ? " right" : "");
}

std::string MonkeyActs::PressArea(ScriptRun& run) {
  std::vector<std::string> names;
  for (const PictureBox* box : Usable<PictureBox>(run)) {
    for (const HitArea& area : box->areas) {
      if (area.enabled) names.push_back(area.name);
    }
  }
  return names.empty() ? std::string() : "press " + Any(names);
}

std::string MonkeyActs::LookAtSomething() {
  constexpr std::array commands{"page", "record", "responses 0", "canvas", "picture a.svg"};
  return Any(commands);
}

// A long run that one of its stop buttons ends at some trial: the press of that button first, then that of the run's
// own.
std::string MonkeyActs::StopRun(ScriptRun& run) {
  std::vector<std::string> runs;
  for (const Button* button : Usable<Button>(run)) {
    if (button->name == "cmdOptimize" || button->name == "cmdMonteCarlo") runs.push_back(button->name);
  }
  if (runs.empty()) return {};
  planned_ = "press " + Any(runs);
  return "at-yield " + std::to_string(1 + Below(100)) + (OneIn(2) ? " press cmdEnd" : " press cmdExtremes");
}

std::string MonkeyActs::Answer(Asks what) {
  switch (what) {
    case Asks::Message:
      return "answer ok";
    case Asks::Question:
      return OneIn(2) ? "answer yes" : "answer no";
    case Asks::OpenFile:
      return OneIn(6) ? "file cancel" : std::string("file open ") + Any(openPaths);
    case Asks::SaveFile:
      if (OneIn(6)) return "file cancel";
      return std::string("file save ") + (savesDesign_ ? Any(savePaths) : Any(exportPaths));
    case Asks::Printer:
      break;
  }
  return OneIn(2) ? "printer ok" : "printer cancel";
}

}  // namespace quilm
