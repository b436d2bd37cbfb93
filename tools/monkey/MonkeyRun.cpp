#include "monkey/MonkeyRun.h"

#include <filesystem>
#include <istream>
#include <memory>
#include <streambuf>
#include <utility>

#include "core/Fault.h"
#include "files/WriteDesign.h"
#include "monkey/MonkeyChecks.h"
#include "script/Commands.h"
#include "script/ScriptRun.h"

namespace quilm {

namespace {

// A text whose next line is made when it is asked for.
class LinesOnDemand : public std::streambuf {
 public:
  explicit LinesOnDemand(std::function<std::optional<std::string>()> next) : next_(std::move(next)) {}

 protected:
  int_type underflow() override {
    const std::optional<std::string> line = next_();
    if (!line) return traits_type::eof();
    text_ = *line + "\n";
    setg(text_.data(), text_.data(), text_.data() + text_.size());
    return traits_type::to_int_type(text_.front());
  }

 private:
  std::function<std::optional<std::string>()> next_;
  std::string text_;
};

bool FitsTo(const std::string& answer, Asks what) {
  switch (what) {
    case Asks::Message:
      return answer == "answer ok";
    case Asks::Question:
      return answer == "answer yes" || answer == "answer no";
    case Asks::OpenFile:
      return answer == "file cancel" || answer.starts_with("file open ");
    case Asks::SaveFile:
      return answer == "file cancel" || answer.starts_with("file save ");
    case Asks::Printer:
      break;
  }
  return answer.starts_with("printer ");
}

// The run asks for its next line when the act before is done, or when it has opened a modal page: that is when it is
// looked at.
class Watched {
 public:
  Watched(const PageDirectory& pages, const MonkeyMind& mind, const std::function<void(const std::string&)>& watch)
      : mind_(mind),
        watch_(watch),
        lines_([this] { return Next(); }),
        in_(&lines_),
        run_(in_, "program", pages, [this](const Json& event) { Hear(event); }) {
    run_.platform.onAsked = [this](Asks what) { Answer(what); };
    run_.goesOn = [this](const ScriptError& error) { return Refused(error); };
    run_.session.random.Seed(1);
    run_.platform.clock = DateTime{2026, 1, 2, 3, 4, 5};
  }

  MonkeyReport Run(const std::function<void(Session&)>& start) {
    try {
      run_.Run(start);
    } catch (const ScriptError& error) {
      Find("the run ended: " + error.reason);
    } catch (const std::exception& fault) {
      Find(std::string("an exception escaped: ") + fault.what());
    }
    Look();
    return report_;
  }

 private:
  void Find(const std::string& what) {
    if (report_.finding.empty()) report_.finding = what;
  }

  void Look() {
    if (!report_.finding.empty()) return;
    if (run_.session.pages.Top() != nullptr && !run_.session.ended) {
      Find(CheckBoxes(run_));
      Find(CheckNumbers(run_));
      if (!act_.empty()) Find(undo_.After(run_, act_, refused_));
    }
    // What other buttons write is no design, whatever it is called. A save without a design ends the program.
    const std::string saved = std::exchange(saving_, {});
    if (StageWithoutLine(run_.session.network) != 0) return;  // a file that tells so and cannot be read
    if (!saved.empty() && act_ == "press cmdSave" && !(run_.session.ended && !std::filesystem::exists(saved)))
      Find(CheckSavedFile(saved));
  }

  std::optional<std::string> Next() {
    Look();
    if (!report_.finding.empty()) return std::nullopt;
    const std::optional<std::string> act = mind_.next(run_);
    if (!act) return std::nullopt;
    act_ = *act;
    refused_ = false;
    report_.steps.push_back({*act, {}});
    if (watch_) watch_("act " + *act);
    return act;
  }

  void Answer(Asks what) {
    const std::string answer = mind_.answer(what);
    if (!report_.steps.empty()) report_.steps.back().answers.push_back(answer);
    if (watch_) watch_("says " + answer);
    if (const auto command = ParseLine(answer, 0)) RunCommand(run_, *command);
  }

  bool Refused(const ScriptError& error) {
    if (error.fault) Find("an exception escaped: " + error.reason);
    if (error.fault) return false;
    refused_ = true;
    if (report_.steps.empty() || report_.steps.back().act != error.command) return true;
    report_.steps.back().refused = true;
    if (watch_) watch_("refused");
    return true;
  }

  void Hear(const Json& event) {
    const std::string kind = event["event"];
    if (kind == "message" && event["text"].get<std::string>().starts_with("This action could not be finished")) {
      Find("an exception left a handler: " + event["text"].get<std::string>());
    }
    if (kind == "file" && event["kind"] == "save" && event["answer"].is_string()) saving_ = event["answer"];
    if (kind == "beep") saving_.clear();
  }

  const MonkeyMind& mind_;
  const std::function<void(const std::string&)>& watch_;
  LinesOnDemand lines_;
  std::istream in_;
  MonkeyReport report_;
  UndoCheck undo_;
  std::string act_;  // the last one
  bool refused_ = false;
  std::string saving_;  // the file that was chosen for a save
  ScriptRun run_;
};

}  // namespace

MonkeyMind Repeating(Steps steps) {
  struct Place {
    Steps steps;
    std::size_t step = 0;  // the next one
    std::size_t answer = 0;
  };
  const auto place = std::make_shared<Place>(Place{std::move(steps)});
  MonkeyMind mind;
  mind.next = [place](ScriptRun&) -> std::optional<std::string> {
    if (place->step == place->steps.size()) return std::nullopt;
    place->answer = 0;
    return place->steps[place->step++].act;
  };
  mind.answer = [place](Asks what) -> std::string {
    static const std::string answers[] = {"answer ok", "answer no", "file cancel", "file cancel", "printer cancel"};
    const auto kind = static_cast<std::size_t>(what);
    if (place->step == 0) return answers[kind];
    const Step& step = place->steps[place->step - 1];
    if (place->answer == step.answers.size()) return answers[kind];
    const std::string& recorded = step.answers[place->answer++];
    return FitsTo(recorded, what) ? recorded : answers[kind];
  };
  return mind;
}

MonkeyReport RunMonkey(const PageDirectory& pages, const std::function<void(Session&)>& start, const MonkeyMind& mind,
                       const std::function<void(const std::string& line)>& watch) {
  return Watched(pages, mind, watch).Run(start);
}

}  // namespace quilm
