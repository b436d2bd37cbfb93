#include "desk/modCheckEntries.h"

#include "desk/ReturnToDesign.h"
#include "shell/Page.h"
#include "shell/Session.h"
#include "synthesis/EntryRules.h"

namespace quilm {

namespace {

void ShowEntry(Session& session, const RepairedEntry& box) {
  const Page* page = session.pages.Find(box.page);
  Control* control = page == nullptr ? nullptr : page->Find(box.control);
  if (auto* text = dynamic_cast<TextBox*>(control)) text->Repair(box.text);
  if (auto* label = dynamic_cast<Label*>(control)) label->caption = box.text;
  if (auto* option = dynamic_cast<OptionButton*>(control)) option->Set();
}

}  // namespace

bool CheckEntries(Session& session) {
  const EntryReport report = ExamineEntries(session.record, session.configuration);
  for (const RepairedEntry& box : report.boxes) ShowEntry(session, box);
  for (const EntryFinding& finding : report.findings) {
    session.platform.MessageBox(finding.text, Buttons::Ok, Icon::Exclamation, finding.title);
  }
  if (!report.Passed()) ReturnToDesign(session, report.findings.back().focus);
  return report.Passed();
}

}  // namespace quilm
