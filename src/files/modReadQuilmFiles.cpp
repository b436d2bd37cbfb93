#include "files/modReadQuilmFiles.h"

#include <fstream>

#include "files/ReadDesign.h"
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

// Files that stop before the last blocks were written by older versions.
void TakeOldLayout(Session& session, FileLayout layout) {
  session.record.DesignChanged = 1;
  if (layout == FileLayout::WithoutZeros) session.record.MarkersShown = 0;
  if (session.pages.Has(PageId::Schematic)) session.pages.ShowPage(PageId::Schematic);
}

}  // namespace

void modReadQuilmFiles(Session& session, std::string& path) {
  if (path.empty()) return;
  ClearCircuit(session.record, session.responses);
  UnloadDesignPages(session);
  std::ifstream in(path, std::ios::binary);
  const ReadOutcome outcome = ReadDesign(in, session.record);
  session.familyOption = session.record.Family;
  if (outcome.failed) {
    TellFailure(session, outcome);
    path.clear();
  } else if (outcome.layout != FileLayout::Current) {
    TakeOldLayout(session, outcome.layout);
  }
}

Got GetDesign(Session& session, const std::string& title) {
  const std::optional<std::string> chosen = session.platform.OpenDialog(title, quilmFileFilter);
  if (!chosen) return Got::Nothing;
  if (!std::ifstream(*chosen, std::ios::binary)) {
    session.platform.MessageBox("The file " + *chosen + " cannot be opened.", Buttons::Ok, Icon::Exclamation, title);
    return Got::Nothing;
  }
  std::string path = *chosen;
  modReadQuilmFiles(session, path);
  if (path.empty()) return Got::Failure;
  session.record.DesignFileName = path;
  session.note = "Read " + path;
  return Got::Design;
}

void GetDesignFor(Session& session, PageId page) {
  const Got got = GetDesign(session, "Read Quilm File");
  if (got == Got::Nothing) return;
  session.pages.ShowPage(got == Got::Design ? page : PageId::Design);
  // The reader takes the pages of the old design away, but for those that it does not know of.
  if (got == Got::Failure && page != PageId::Design) session.pages.UnloadPage(page);
}

}  // namespace quilm
