// What a script prepares: the answers to coming questions, the random sequence, the clock.
#include <chrono>
#include <limits>

#include "script/Commands.h"

namespace quilm {

namespace {

void QueueAnswer(ScriptRun& run, const std::string& arguments) {
  const std::string word = Arguments(arguments, 1, 1).front();
  for (const Answer answer : {Answer::Ok, Answer::Yes, Answer::No}) {
    if (word != AnswerWord(answer)) continue;
    run.platform.answers.push_back(answer);
    return;
  }
  throw WrongForm{};
}

// A file that happens to be called "open" is reached as "./open".
void QueueFile(ScriptRun& run, const std::string& arguments) {
  const FirstWord split = SplitFirst(arguments);
  const auto kind = split.word == "open"   ? FileAnswer::For::Open
                    : split.word == "save" ? FileAnswer::For::Save
                                           : FileAnswer::For::Any;
  const std::string path = WholeArgument(kind == FileAnswer::For::Any ? arguments : split.rest);
  const bool cancel = path == "cancel" && kind == FileAnswer::For::Any;
  run.platform.files.emplace_back(cancel ? std::nullopt : std::optional(path), kind);
}

void QueuePrinter(ScriptRun& run, const std::string& arguments) {
  const std::string word = Arguments(arguments, 1, 1).front();
  if (word != "ok" && word != "cancel") throw WrongForm{};
  run.platform.printers.push_back(word == "ok");
}

void Seed(ScriptRun& run, const std::string& arguments) {
  const std::string word = Arguments(arguments, 1, 1).front();
  run.session.random.Seed(static_cast<std::uint32_t>(CountArgument(word, 0, std::numeric_limits<int>::max())));
}

// The number that the digits of `text` from `first` on show.
int Digits(const std::string& text, std::size_t first, std::size_t count) {
  const std::string digits = text.substr(first, count);
  if (digits.find_first_not_of("0123456789") != std::string::npos) {
    throw WrongForm{};
  }
  return CountArgument(digits, 0, 9999);
}

void FixClock(ScriptRun& run, const std::string& arguments) {
  const auto words = Arguments(arguments, 2, 2);
  const std::string text = words[0] + " " + words[1];
  if (text.size() != 19 || text[4] != '-' || text[7] != '-' || text[13] != ':' || text[16] != ':') {
    throw WrongForm{};
  }
  const int year = Digits(text, 0, 4);
  const int month = Digits(text, 5, 2);
  const int day = Digits(text, 8, 2);
  const int hour = Digits(text, 11, 2);
  const int minute = Digits(text, 14, 2);
  const int second = Digits(text, 17, 2);
  const std::chrono::year_month_day date{std::chrono::year(year), std::chrono::month(static_cast<unsigned>(month)),
                                         std::chrono::day(static_cast<unsigned>(day))};
  if (!date.ok() || hour > 23 || minute > 59 || second > 59) {
    throw CommandFailure{text + " is no date"};
  }
  run.platform.clock = DateTime{year, month, day, hour, minute, second};
}

}  // namespace

const CommandRows& QueueCommands() {
  static const CommandRows rows{
      {"answer ok|yes|no", "queue the answer to the next message box", QueueAnswer},
      {"file [open|save] PATH, or file cancel",
       "queue the answer to the next file dialog; with open or save, a dialog of the other kind is an error",
       QueueFile},
      {"printer ok|cancel", "queue the answer to the next print dialog", QueuePrinter},
      {"seed N", "start the random numbers anew from N, so that a run can be repeated", Seed},
      {"date YYYY-MM-DD HH:MM:SS", "set the clock to this time and stop it", FixClock}};
  return rows;
}

}  // namespace quilm
