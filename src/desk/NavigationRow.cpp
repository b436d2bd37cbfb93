#include "desk/NavigationRow.h"

#include "desk/modCheckEntries.h"
#include "schematic/Icons.h"
#include "shell/HelpPages.h"
#include "shell/History.h"
#include "shell/Session.h"

namespace quilm {

namespace {

// As the page itself says where the user is.
std::string NameOf(PageId page, const std::string& caption) {
  return (page == PageId::Analyze ? std::string("analysis") : caption) + " page";
}

}  // namespace

// The letters are the row's own on every page; no other control of a page takes one of them.
NavigationRow::NavigationRow(Page& page, Session& session, Gate gate)
    : page_(page), session_(session), gate_(std::move(gate)) {
  AddSegment(PageId::Design, Sign::Design, 'D', "cmdDesign", "Design", "Go to the Design page");
  AddSegment(PageId::Schematic, Sign::Schematic, 'S', "cmdSchematic", "Schematic", "See the schematic");
  AddSegment(PageId::Edit, Sign::Edit, 'E', "cmdEdit", "Edit", "Edit the design");
  AddSegment(PageId::Analyze, Sign::Analysis, 'A', "cmdAnalysis", "Analysis", "Set up the analysis");
  AddSegment(PageId::Plotted, Sign::Plot, 'P', "cmdPlot", "Plot", "Plot the responses");
  AddSegment(PageId::Tabulated, Sign::Tabulate, 'T', "cmdTabulate", "Tabulate", "Tabulate the responses");
  cmdGet_ = &AddAction(Sign::Get, 'G', "cmdGet", "Get", "Get a design from disk", [this] { onGet(); });
  cmdSave_ = &AddAction(Sign::Save, 'v', "cmdSave", "Save", "Save the design to disk", [this] {
    // What is written is held to what a file can hold, which is nothing that the user did.
    const History::Following following(session_);
    onSave();
  });
  cmdSpice_ = &AddAction(Sign::Write, 'W', "cmdSpice", "Write", "Write file", [this] { GoTo(PageId::WriteFiles); });
  cmdPrint_ = &AddAction(Sign::Print, 'r', "cmdPrint", "Print", "Print the responses", [this] { onPrint(); });
  AddAction(Sign::Help, 'H', "cmdHelp", "Help", "Help :-)", [this] { OpenHelp(session_, page_.Id()); });
  AddAction(Sign::About, 'b', "cmdAbout", "About", "Details", [this] { session_.pages.ShowModal(PageId::About); });
  AddAction(Sign::Exit, 'x', "cmdExit", "Exit", "Exit / quit the program",
            [this] { session_.pages.ShowModal(PageId::Exit); });
}

NavigationRow::Gate NavigationRow::WithSoundEntries(Session& session) {
  return [&session](PageId target) { return target == PageId::Design || CheckEntries(session); };
}

void NavigationRow::AddSegment(PageId target, Sign sign, char letter, const char* name, const char* caption,
                               const char* toolTip) {
  const bool here = target == page_.Id();
  auto button = here ? std::make_unique<Button>(page_, "cmdHere", caption, "You are at the " + NameOf(target, caption))
                     : std::make_unique<Button>(page_, name, caption, toolTip);
  button->role = ButtonRole::Segment;
  button->picture = SignPicture(sign);
  button->mnemonic = letter;
  button->pressed = here;
  button->enabled = !here;
  if (!here) button->onClick = [this, target] { GoTo(target); };
  segments_.push_back({target, std::move(button)});
}

Button& NavigationRow::AddAction(Sign sign, char letter, const char* name, const char* caption, const char* toolTip,
                                 std::function<void()> act) {
  actions_.push_back(std::make_unique<Button>(page_, name, caption, toolTip));
  Button& button = *actions_.back();
  button.role = ButtonRole::Action;
  button.picture = SignPicture(sign);
  button.mnemonic = letter;
  button.onClick = std::move(act);
  return button;
}

// The target is shown before this page is unloaded, so that its load step sees nothing but the session.
void NavigationRow::GoTo(PageId target) {
  const History::Following following(session_);
  if (!gate_(target)) {
    // A check that led elsewhere, to the entry in question, has left this page.
    if (session_.pages.Top() != &page_) session_.pages.UnloadPage(page_.Id());
    return;
  }
  session_.pages.ShowPage(target);
  session_.pages.UnloadPage(page_.Id());
}

void NavigationRow::Lock(bool locked) {
  locked_ = locked;
  Load();
}

void NavigationRow::Load() {
  for (const auto& action : actions_) action->enabled = true;
  for (const Segment& segment : segments_) {
    segment.button->enabled = segment.target != page_.Id() && session_.pages.Has(segment.target);
  }
  cmdPrint_->enabled = static_cast<bool>(onPrint);
  cmdSave_->enabled = static_cast<bool>(onSave);
  cmdGet_->enabled = static_cast<bool>(onGet);
  cmdSpice_->enabled = session_.pages.Has(PageId::WriteFiles);
  if (!locked_) return;
  for (const Segment& segment : segments_) segment.button->enabled = false;
  for (const auto& action : actions_) action->enabled = false;
}

Layout NavigationRow::MakeLayout() {
  std::vector<Layout> pages;
  for (const Segment& segment : segments_) pages.push_back(Put(*segment.button));
  std::vector<Layout> row{Row(std::move(pages)), Space()};
  for (const auto& action : actions_) row.push_back(Put(*action));
  return Row(std::move(row));
}

}  // namespace quilm
