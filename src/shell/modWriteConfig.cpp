#include "shell/modWriteConfig.h"

#include <cstdio>

#include "core/Configuration.h"
#include "core/Identity.h"
#include "core/TextFile.h"
#include "shell/Session.h"

namespace quilm {

namespace {

std::string DateAndTime(const DateTime& now) {
  char text[64];
  std::snprintf(text, sizeof text, "%04d-%02d-%02d %02d:%02d:%02d", now.year, now.month, now.day, now.hour, now.minute,
                now.second);
  return text;
}

}  // namespace

std::string InProgramFolder(Session& session, const std::string& name) {
  return session.platform.ProgramFolder() + "/" + name;
}

std::string PreferencesPath(Session& session) { return session.platform.PreferencesFolder() + "/" + configurationFile; }

void ReadConfig(Session& session) {
  std::ifstream file = OpenTextFile(PreferencesPath(session));
  if (file) {
    ReadConfiguration(file, session.record, session.configuration);
  } else {
    ApplyDefaults(session.record, session.configuration);
  }
}

void WriteConfig(Session& session) {
  const std::string text =
      FormatConfiguration(session.record, session.configuration, DateAndTime(session.platform.Now()));
  session.identity.DesignFileName = PreferencesPath(session);
  if (WriteTextFile(session.identity.DesignFileName, text)) return;
  session.platform.MessageBox(
      "The configuration file (QuilmConfiguration.CFG) was not written.\r\nThis is not a serious problem.", Buttons::Ok,
      Icon::Exclamation, "");
}

}  // namespace quilm
