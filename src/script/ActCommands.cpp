// What a user does to the page on top.
#include <limits>

#include "core/modGeneral.h"
#include "script/Commands.h"
#include "shell/Acts.h"
#include "shell/HelpPages.h"
#include "shell/Page.h"

namespace quilm {

namespace {

// Takes the focus to the control, which leaves the text box that had it. What its handler does may lead elsewhere.
void GoTo(ScriptRun& run, const std::string& name) {
  if (LookUpArea(run, name) == nullptr) FindControl(run, name);
  run.focus.MoveTo(run.Top(), name);
  run.focus.FollowWish();
}

void Press(ScriptRun& run, const std::string& arguments) {
  const std::string name = Arguments(arguments, 1, 1).front();
  GoTo(run, name);
  PictureBox* picture = LookUpControl(run, name) == nullptr ? LookUpArea(run, name) : nullptr;
  if (picture != nullptr) {
    PressArea(run.session, *picture, name);
  } else {
    Click(run.session, FindControl(run, name));
  }
}

// The first character of UTF-8 text with the bytes that belong to it.
std::string_view FirstCharacter(std::string_view text) {
  std::size_t length = 1;
  while (length < text.size() && (static_cast<unsigned char>(text[length]) & 0xC0) == 0x80) ++length;
  return text.substr(0, length);
}

// The first key replaces the selected text, the others go to the end of what the box holds by then. A full box takes no
// more of them.
void TypeKeys(ScriptRun& run, TextBox& box, std::string_view keys) {
  const Page& page = run.Top();
  std::string before;
  while (!keys.empty()) {
    const std::string_view key = FirstCharacter(keys);
    keys.remove_prefix(key.size());
    const std::string longer = before + std::string(key);
    if (FirstCharacters(longer, static_cast<std::size_t>(box.maxLength)) != longer) return;
    Type(run.session, box, longer);
    if (run.session.ended) return;
    if (run.session.pages.Top() != &page) break;
    before = box.text;
  }
  if (!keys.empty()) throw CommandFailure{"the page was left while typing"};
}

void TypeText(ScriptRun& run, const std::string& arguments) {
  const FirstWord split = SplitFirst(arguments);
  if (split.word.empty()) throw WrongForm{};
  GoTo(run, split.word);
  TextBox& box = FindKind<TextBox>(run, split.word, "text box");
  if (box.Usable()) run.focus.Give(run.Top(), box);
  if (split.rest.empty()) {
    Type(run.session, box, "");
  } else {
    TypeKeys(run, box, split.rest);
  }
}

void SpinButtons(ScriptRun& run, const std::string& arguments) {
  const auto words = Arguments(arguments, 2, 3);
  if (words[1] != "up" && words[1] != "down") throw WrongForm{};
  const int count = words.size() == 3 ? CountArgument(words[2], 1, std::numeric_limits<int>::max()) : 1;
  GoTo(run, words[0]);
  const Page& page = run.Top();
  for (int i = 0; i < count && !run.session.ended; ++i) {
    if (run.session.pages.Top() != &page) throw CommandFailure{"the page was left while spinning"};
    Step(run.session, FindKind<Spin>(run, words[0], "spin control"), words[1] == "up" ? +1 : -1);
  }
}

void ChooseLine(ScriptRun& run, const std::string& arguments) {
  const auto words = Arguments(arguments, 2, 2);
  const int line = CountArgument(words[1], 1, std::numeric_limits<int>::max());
  GoTo(run, words[0]);
  Choose(run.session, FindKind<ListBox>(run, words[0], "list"), line);
}

void MouseOnPicture(ScriptRun& run, const std::string& arguments) {
  const std::map<std::string_view, MouseAct> acts{
      {"down", MouseAct::Down}, {"move", MouseAct::Move}, {"up", MouseAct::Up}};
  const std::map<std::string_view, MouseButton> buttons{{"left", MouseButton::Left}, {"right", MouseButton::Right}};
  const auto words = Arguments(arguments, 3, 4);
  const auto act = acts.find(words[0]);
  const auto button = buttons.find(words.size() == 4 ? std::string_view(words[3]) : "left");
  if (act == acts.end() || button == buttons.end()) throw WrongForm{};
  Mouse(run.session, PagePicture(run), act->second, NumberArgument(words[1]), NumberArgument(words[2]), button->second);
}

void ClosePage(ScriptRun& run, const std::string& arguments) {
  Arguments(arguments, 0, 0);
  Page& page = run.Top();
  run.focus.MoveTo(page, {});
  if (run.session.pages.Top() != &page) throw CommandFailure{"the page was left before it could be closed"};
  PressCloseBox(run.session, page);
}

// The keys of undo and redo leave the box that has the focus, as in the window.
void StepInHistory(ScriptRun& run, void (*step)(Session&)) {
  run.focus.MoveTo(run.Top(), {});
  step(run.session);
}

void UndoStep(ScriptRun& run, const std::string& arguments) {
  Arguments(arguments, 0, 0);
  StepInHistory(run, Undo);
}

void RedoStep(ScriptRun& run, const std::string& arguments) {
  Arguments(arguments, 0, 0);
  StepInHistory(run, Redo);
}

// F1.
void Help(ScriptRun& run, const std::string& arguments) {
  Arguments(arguments, 0, 0);
  OpenHelp(run.session, run.Top().Id());
}

void RunAtYield(ScriptRun& run, const std::string& arguments) {
  const FirstWord split = SplitFirst(arguments);
  const auto command = ParseLine(split.rest, run.Present().line);
  if (split.word.empty() || !command) throw WrongForm{};
  run.AtYield(CountArgument(split.word, 1, std::numeric_limits<int>::max()), *command);
}

}  // namespace

const CommandRows& ActCommands() {
  static const CommandRows rows{
      {"press NAME", "click a button or option of the page on top, or a named area of its picture", Press},
      {"type NAME TEXT", "select all in the box and type TEXT, which runs to the line's end", TypeText},
      {"spin NAME up|down [COUNT]", "press the upper or lower button of a spin control, once or COUNT times",
       SpinButtons},
      {"choose NAME N", "click line N of a list, from 1", ChooseLine},
      {"mouse down|move|up X Y [left|right]",
       "press, move or release the mouse on the page's picture, X and Y in the picture's scale", MouseOnPicture},
      {"close", "press the page's close box", ClosePage},
      {"undo", "take back the last change of the design", UndoStep},
      {"redo", "make the change again that was taken back last", RedoStep},
      {"help", "open the help page of the page on top, as F1 does", Help},
      {"at-yield N COMMAND", "run COMMAND inside the N-th pause of a long run from now", RunAtYield}};
  return rows;
}

}  // namespace quilm
