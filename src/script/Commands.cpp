#include "script/Commands.h"

#include <algorithm>
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

std::vector<PictureBox*> PicturesOf(const Page& page) {
  std::vector<PictureBox*> boxes;
  for (Control* control : page.Controls()) {
    if (auto* box = dynamic_cast<PictureBox*>(control)) boxes.push_back(box);
  }
  return boxes;
}

}  // namespace

CommandRows AllCommands() {
  CommandRows all;
  for (const CommandRows* rows : {&ActCommands(), &QueueCommands(), &PrintCommands()}) {
    all.insert(all.end(), rows->begin(), rows->end());
  }
  return all;
}

void RunCommand(ScriptRun& run, const Command& command) {
  static const CommandRows all = AllCommands();
  const auto row = std::ranges::find(all, command.name, &CommandRow::Name);
  if (row == all.end()) throw CommandFailure{"unknown command " + command.name};
  try {
    row->run(run, command.arguments);
  } catch (const WrongForm&) {
    throw CommandFailure{"the form is: " + std::string(row->form)};
  }
}

std::vector<std::string> Arguments(const std::string& arguments, std::size_t least, std::size_t most) {
  std::vector<std::string> words = Words(arguments);
  if (words.size() < least || words.size() > most) throw WrongForm{};
  return words;
}

std::string WholeArgument(const std::string& arguments) {
  std::string text = WithoutBlanksAtEnd(arguments);
  if (text.empty()) throw WrongForm{};
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

std::vector<Page*> PagesInSight(ScriptRun& run) {
  std::vector<Page*> pages{&run.Top()};
  if (Page* beside = run.session.pages.Beside()) pages.push_back(beside);
  return pages;
}

Control* LookUpControl(ScriptRun& run, const std::string& name) {
  for (const Page* page : PagesInSight(run)) {
    if (Control* control = page->Find(name)) return control;
  }
  return nullptr;
}

Control& FindControl(ScriptRun& run, const std::string& name) {
  Control* control = LookUpControl(run, name);
  if (control == nullptr) throw CommandFailure{"there is no " + name + " on " + std::string(run.Top().Name())};
  return *control;
}

PictureBox* LookUpArea(ScriptRun& run, const std::string& name) {
  PictureBox* hidden = nullptr;
  for (const Page* page : PagesInSight(run)) {
    for (PictureBox* box : PicturesOf(*page)) {
      if (box->FindArea(name) == nullptr) continue;
      if (box->Shown()) return box;
      hidden = box;
    }
  }
  return hidden;
}

PictureBox& PagePicture(ScriptRun& run) {
  const std::vector<Page*> pages = PagesInSight(run);
  if (pages.size() > 1) {
    for (PictureBox* box : PicturesOf(*pages.back())) {
      if (box->Usable()) return *box;
    }
  }
  for (const Page* page : pages) {
    for (PictureBox* box : PicturesOf(*page)) {
      if (box->Shown()) return *box;
    }
  }
  throw CommandFailure{"there is no picture on " + std::string(run.Top().Name())};
}

}  // namespace quilm
