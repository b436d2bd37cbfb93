// The commands of a script by name.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "script/Parser.h"
#include "script/ScriptPlatform.h"
#include "script/ScriptRun.h"

namespace quilm {

class Control;
class Page;
class PictureBox;

// Does the command. Throws CommandFailure, or a std::exception of whatever it called, when it cannot be done.
void RunCommand(ScriptRun& run, const Command& command);

// The arguments are not written as the command's form says. Thrown by a command before it has done anything; whoever
// runs the command tells its form.
struct WrongForm {};

// What is to be said of a command: how it is written, its name first, and what it does, in one sentence.
struct CommandRow {
  std::string_view form;
  std::string_view effect;
  void (*run)(ScriptRun& run, const std::string& arguments);

  std::string_view Name() const { return form.substr(0, form.find(' ')); }
};

using CommandRows = std::vector<CommandRow>;

const CommandRows& ActCommands();    // what a user does: press, type, spin, choose, mouse, close, undo, at-yield
const CommandRows& QueueCommands();  // what is prepared: answer, file, printer, seed, date
const CommandRows& PrintCommands();  // what is printed or written: record, responses, page, canvas, ...

// All of them, in that order.
CommandRows AllCommands();

// The words of the arguments, from `least` to `most` of them. Throws WrongForm for more and for fewer.
std::vector<std::string> Arguments(const std::string& arguments, std::size_t least, std::size_t most);

// One argument that runs to the line's end. Throws WrongForm when it is empty.
std::string WholeArgument(const std::string& arguments);

// A number in plain decimal or exponent form, a whole number.
f32 NumberArgument(const std::string& word);
int CountArgument(const std::string& word, int least, int most);

// The page on top and, where it is a tool that stands beside another page, that one.
std::vector<Page*> PagesInSight(ScriptRun& run);

// The control of the page on top, or of the page that it stands beside; nullptr for none. FindControl fails instead.
Control* LookUpControl(ScriptRun& run, const std::string& name);
Control& FindControl(ScriptRun& run, const std::string& name);

// The picture with an area of that name on these pages, one that is seen before one that is hidden; nullptr for none.
PictureBox* LookUpArea(ScriptRun& run, const std::string& name);

template <class Kind>
Kind& FindKind(ScriptRun& run, const std::string& name, std::string_view kind) {
  auto* control = dynamic_cast<Kind*>(&FindControl(run, name));
  if (control == nullptr) throw CommandFailure{name + " is no " + std::string(kind)};
  return *control;
}

// The picture that the mouse is for and that is printed without a name: the one left free on the page beside which a
// tool stands, else the first one seen of the page on top, else of the page beside.
PictureBox& PagePicture(ScriptRun& run);

}  // namespace quilm
