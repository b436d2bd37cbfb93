#include "script/Commands.h"

#include <charconv>

#include "shell/Page.h"

namespace quilm {

namespace {

template <class NumberType>
NumberType Parsed(const std::string& word, const char* kind) {
  NumberType value{};
  const char* first = word.data() + (word.starts_with('+') ? 1 : 0);
  const char* last = word.data() + word.size();
  const auto result = std::from_chars(first, last, value);
  if (result.ec != std::errc{} || result.ptr != last) throw CommandFailure{word + " is no " + kind};
  return value;
}

}  // namespace

void RunCommand(ScriptRun& run, const Command& command) {
  for (const CommandTable* table : {&ActCommands(), &QueueCommands(), &PrintCommands()}) {
    const auto at = table->find(command.name);
    if (at == table->end()) continue;
    at->second(run, command.arguments);
    return;
  }
  throw CommandFailure{"unknown command " + command.name};
}

std::vector<std::string> Arguments(const std::string& arguments, std::size_t least, std::size_t most,
                                   std::string_view form) {
  std::vector<std::string> words = Words(arguments);
  if (words.size() < least || words.size() > most) throw CommandFailure{"the form is: " + std::string(form)};
  return words;
}

std::string WholeArgument(const std::string& arguments, std::string_view form) {
  std::string text = WithoutBlanksAtEnd(arguments);
  if (text.empty()) throw CommandFailure{"the form is: " + std::string(form)};
  return text;
}

f32 NumberArgument(const std::string& word) {
  const f32 value = Parsed<f32>(word, "number");
  if (!(value - value == 0)) throw CommandFailure{word + " is no number"};  // "inf" and "nan"
  return value;
}

int CountArgument(const std::string& word, int least, int most) {
  const int value = Parsed<int>(word, "whole number");
  if (value < least || value > most) {
    throw CommandFailure{word + " is not within " + std::to_string(least) + " and " + std::to_string(most)};
  }
  return value;
}

Control& FindControl(ScriptRun& run, const std::string& name) {
  const Page& page = run.Top();
  Control* control = page.Find(name);
  if (control == nullptr) throw CommandFailure{"there is no " + name + " on " + std::string(page.Name())};
  return *control;
}

PictureBox& PagePicture(ScriptRun& run) {
  const Page& page = run.Top();
  for (Control* control : page.Controls()) {
    auto* box = dynamic_cast<PictureBox*>(control);
    if (box != nullptr && box->Shown()) return *box;
  }
  throw CommandFailure{"there is no picture on " + std::string(page.Name())};
}

}  // namespace quilm
