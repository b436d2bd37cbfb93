// The commands of a script by name.
#pragma once

#include <initializer_list>
#include <map>
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

using CommandFunction = void (*)(ScriptRun& run, const std::string& arguments);
using CommandTable = std::map<std::string_view, CommandFunction>;

const CommandTable& ActCommands();    // what a user does: press, type, spin, choose, mouse, close, undo, at-yield
const CommandTable& QueueCommands();  // what is prepared: answer, file, printer, seed, date
const CommandTable& PrintCommands();  // what is printed or written: record, responses, page, canvas, ...

// The words of the arguments, from `least` to `most` of them; `form` is how the command is written.
std::vector<std::string> Arguments(const std::string& arguments, std::size_t least, std::size_t most,
                                   std::string_view form);

// One argument that runs to the line's end, which must not be empty.
std::string WholeArgument(const std::string& arguments, std::string_view form);

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
