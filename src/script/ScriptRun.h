// One run of a script: the session that it drives, and the order in which its commands come.
#pragma once

#include <functional>
#include <istream>
#include <string>
#include <vector>

#include "script/Focus.h"
#include "script/Parser.h"
#include "script/ScriptEvents.h"
#include "script/ScriptPlatform.h"
#include "shell/Session.h"

namespace quilm {

class ScriptRun {
 public:
  // `folder` is the program's folder; every event goes to `emit` as it happens, which throws CommandFailure when it
  // cannot pass it on.
  ScriptRun(std::istream& script, std::string folder, PageDirectory directory, EventSink emit);

  // Starts the program and runs the script to its end, or to the program's own end, which is the event "exit". Throws
  // ScriptError at the first command that fails. A modal page that is open at the script's end stays so.
  void Run(const std::function<void(Session&)>& start);

  // What the commands use.
  Page& Top();
  void Emit(const Json& event) { emit_(event); }
  // Runs `command` in the count-th yield from now.
  void AtYield(int count, Command command) { pending_.push_back({count, std::move(command)}); }
  // The command that is being done, outermost or inside a modal page or a yield.
  const Command& Present() const { return *present_; }

  // Asked when a command fails: true goes on with the next one, as a user would who has found a button grey. Without it
  // the run ends.
  std::function<bool(const ScriptError&)> goesOn;

  ScriptPlatform platform;
  Session session;
  Focus focus;

 private:
  struct Pending {
    int yields = 0;
    Command command;
  };

  void Connect();
  void Execute(const Command& command);
  void Fail(const ScriptError& error) const;
  void RunModal(Page& page);
  void Yielded();

  ScriptSource source_;
  EventSink emit_;
  std::vector<Pending> pending_;
  const Command* present_ = nullptr;
};

}  // namespace quilm
