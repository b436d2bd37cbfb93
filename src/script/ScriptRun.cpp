#include "script/ScriptRun.h"

#include <algorithm>
#include <exception>
#include <utility>

#include "script/Commands.h"
#include "shell/Acts.h"
#include "shell/Page.h"

namespace quilm {

namespace {

// The script is at its end while a modal page is open: unwinds the handler that opened it.
struct ScriptEnd {};

}  // namespace

ScriptRun::ScriptRun(std::istream& script, std::string folder, PageDirectory directory, EventSink emit)
    : platform(std::move(folder)),
      session(platform, std::move(directory)),
      focus(session),
      source_(script),
      emit_(std::move(emit)) {
  Connect();
}

void ScriptRun::Connect() {
  platform.onMessage = [this](const MessageShown& message) { Emit(MessageEvent(message)); };
  platform.onFile = [this](const FileAsked& asked) { Emit(FileEvent(asked)); };
  platform.onPage = [this](const char* event, const Page& page) {
    if (std::string_view(event) == "unload") focus.Forget(page);
    Emit({{"event", event}, {"page", page.Name()}});
  };
  platform.onBeep = [this] { Emit(NamedEvent("beep")); };
  platform.onShellOpen = [this](const std::string& path) { Emit({{"event", "shell-open"}, {"path", path}}); };
  platform.onPrinted = [this](const SheetPrinter& printer) {
    Emit({{"event", "printed"}, {"sheets", printer.Sheets().size()}});
  };
  platform.onModal = [this](Page& page) { RunModal(page); };
  platform.onYield = [this] { Yielded(); };
}

void ScriptRun::Run(const std::function<void(Session&)>& start) {
  const Command opening{0, "(start)", {}, {}};
  present_ = &opening;
  try {
    RunHandler(session, [&] { start(session); });
    focus.FollowWish();
    while (!session.ended) {
      const auto command = source_.Next();
      if (!command) return;
      Execute(*command);
    }
    Emit(NamedEvent("exit"));
  } catch (const ScriptEnd&) {
    return;
  } catch (const CommandFailure& failure) {
    throw ScriptError{opening.line, opening.text, failure.reason};
  }
}

Page& ScriptRun::Top() {
  Page* page = session.pages.Top();
  if (page == nullptr) throw CommandFailure{"no page is open"};
  return *page;
}

// Whatever fails while the command runs is told with the command's line.
void ScriptRun::Execute(const Command& command) {
  const Command* outer = std::exchange(present_, &command);
  try {
    RunCommand(*this, command);
    focus.FollowWish();
  } catch (const CommandFailure& failure) {
    Fail({command.line, command.text, failure.reason});
  } catch (const ActRefused& refused) {
    Fail({command.line, command.text, refused.what()});
  } catch (const std::exception& fault) {
    Fail({command.line, command.text, fault.what(), true});
  }
  present_ = outer;
}

void ScriptRun::Fail(const ScriptError& error) const {
  if (!goesOn || !goesOn(error)) throw error;
}

void ScriptRun::RunModal(Page& page) {
  focus.FollowWish();
  while (page.IsOpen()) {
    const auto command = source_.Next();
    if (!command) throw ScriptEnd{};
    Execute(*command);
  }
}

// Commands whose yield has come run in the order in which they were given.
void ScriptRun::Yielded() {
  for (Pending& pending : pending_) --pending.yields;
  const auto due =
      std::stable_partition(pending_.begin(), pending_.end(), [](const Pending& p) { return p.yields > 0; });
  const std::vector<Pending> now(due, pending_.end());
  pending_.erase(due, pending_.end());
  for (const Pending& pending : now) Execute(pending.command);
}

}  // namespace quilm
