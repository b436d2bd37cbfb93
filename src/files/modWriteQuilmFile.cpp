#include "files/modWriteQuilmFile.h"

#include <filesystem>

#include "core/Identity.h"
#include "core/Network.h"
#include "core/TextFile.h"
#include "files/WriteDesign.h"
#include "files/modReadQuilmFiles.h"
#include "shell/History.h"
#include "shell/Session.h"
#include "shell/ShortDate.h"
#include "shell/modWriteConfig.h"

namespace quilm {

namespace {

constexpr f64 emptySeconds = 2;
constexpr const char* unnamedDesign = "design.QLM";

// The configuration and session files are the program's own; a design is offered under its own name or a new one.
std::string OfferedName(Session& session) {
  const std::string& name = session.identity.DesignFileName;
  const bool own = name == PreferencesPath(session) || name == InProgramFolder(session, lastSessionFile);
  return name.empty() || own ? unnamedDesign : name;
}

}  // namespace

bool modWriteQuilmFile(Session& session) {
  if (session.network.Stages == 0) {
    session.platform.Pause(emptySeconds);
    throw ProgramEnd{};
  }
  const std::string text = DesignText(session.record, ShortDate(session.platform.Now()));
  const std::string& path = session.identity.DesignFileName;
  const WriteOutcome outcome = WriteTextFile(path, text);
  if (outcome) return true;
  session.note = "Nothing was written to " + std::filesystem::path(path).filename().string() + ": " + outcome.failure;
  session.platform.Beep();
  return false;
}

bool SaveDesign(Session& session, const std::string& title) {
  const std::optional<std::string> chosen = session.platform.SaveDialog(title, quilmFileFilter, OfferedName(session));
  if (!chosen) return false;
  session.identity.DesignFileName = *chosen;
  if (!modWriteQuilmFile(session)) return false;
  session.history.MarkSaved(session);
  session.note = "Saved " + *chosen;
  if (const int empty = StageWithoutLine(session.network)) {
    session.note += "; it cannot be read again as long as stage " + std::to_string(empty) + " has no element";
  }
  return true;
}

bool StoreLastSession(Session& session) {
  if (session.network.Stages == 0) return false;
  session.identity.DesignFileName = InProgramFolder(session, lastSessionFile);
  return modWriteQuilmFile(session);
}

}  // namespace quilm
