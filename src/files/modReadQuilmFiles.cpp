#include "files/modReadQuilmFiles.h"

#include "core/Configuration.h"
#include "core/DesignRecord.h"
#include "core/TextFile.h"
#include "files/ReadDesign.h"
#include "shell/History.h"
#include "shell/Session.h"

namespace quilm {

namespace {

void UnloadDesignPages(Session& session) {
  for (const PageId page : {PageId::Design, PageId::Analyze, PageId::Plotted, PageId::Schematic}) {
    session.pages.UnloadPage(page);
  }
}

void TellFailure(Session& session, const ReadOutcome& outcome) {
  session.platform.MessageBox("ReadQuilmFiles line 706; StagesMax: " + std::to_string(session.record.StagesMax) +
                                  "\r\nEntire last line which was read: " + outcome.lastLine + "\r\nError string: " +
                                  outcome.marker + "\r\nErrorDescription: " + outcome.description,
                              Buttons::Ok, Icon::None, "");
}

// Half a file is no design: what it says of sweep and scales gives way to the user's settings, and its name to none.
void TakeFailure(Session& session, const ReadOutcome& outcome) {
  TellFailure(session, outcome);
  TakePreferences(session.record, session.configuration);
  session.configuration.sourceOfBrokenFile = session.record.Rsource[1];
  session.record.DesignFileName.clear();
}

// Files that stop before the last blocks were written by older versions.
void TakeOldLayout(Session& session, FileLayout layout) {
  session.record.DesignChanged = 1;
  if (layout == FileLayout::WithoutZeros) session.record.MarkersShown = 0;
  session.pages.ShowPage(PageId::Schematic);
}

Got TakeDesign(Session& session, std::istream& in, std::string& path) {
  ClearCircuit(session.record, session.responses);
  UnloadDesignPages(session);
  const ReadOutcome outcome = ReadDesign(in, session.record);
  session.familyOption = session.record.Family;
  if (outcome.failed) {
    TakeFailure(session, outcome);
    path.clear();
    return Got::Failure;
  }
  session.configuration.sourceOfBrokenFile = 0;
  session.record.DesignFileName = path;
  session.history.MarkSaved(session);
  if (outcome.layout == FileLayout::Current) return Got::Design;
  TakeOldLayout(session, outcome.layout);
  return Got::OlderDesign;
}

Got ReadFrom(Session& session, std::string& path, const std::string& title) {
  std::ifstream in = OpenTextFile(path);
  if (in) return TakeDesign(session, in, path);
  session.platform.MessageBox("The file " + path + " cannot be opened.", Buttons::Ok, Icon::Exclamation, title);
  return Got::Nothing;
}

}  // namespace

Got modReadQuilmFiles(Session& session, std::string& path) {
  return path.empty() ? Got::Nothing : ReadFrom(session, path, "");
}

Got GetDesign(Session& session, const std::string& title) {
  const std::optional<std::string> chosen = session.platform.OpenDialog(title, quilmFileFilter);
  if (!chosen) return Got::Nothing;
  std::string path = *chosen;
  const Got got = ReadFrom(session, path, title);
  if (got == Got::Nothing || got == Got::Failure) return got;
  session.note = "Read " + path;
  return got;
}

void GetDesignFor(Session& session, PageId page) { GetDesignFor(session, page, page); }

void GetDesignFor(Session& session, PageId page, PageId target) {
  const Got got = GetDesign(session, "Read Quilm File");
  if (got == Got::Nothing) return;
  if (got == Got::Design) {
    session.pages.ShowPage(target);
    if (page != target) session.pages.UnloadPage(page);
    return;
  }
  const PageId instead = got == Got::Failure ? PageId::Design : PageId::Schematic;
  if (got == Got::Failure) {
    session.pages.ShowPage(instead);
    session.note = "The design could not be read; Ctrl+Z brings the former design back";
  }
  // The reader takes the pages of the old design away, but for those that it does not know of.
  if (page != instead) session.pages.UnloadPage(page);
}

}  // namespace quilm
