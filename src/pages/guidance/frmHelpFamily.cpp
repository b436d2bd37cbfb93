#include "pages/guidance/frmHelpFamily.h"

#include <algorithm>
#include <utility>

#include "core/Fault.h"
#include "core/Identity.h"
#include "display/PreviewPlot.h"
#include "pages/guidance/FamilyDrawing.h"
#include "shell/Session.h"

namespace quilm {

namespace {

constexpr const char* exampleNote =
    "Order 5, 1 MHz, 50 ohms, parts without loss. Blue: transmission. Red: envelope delay.";

// "Not drawn: Cauer, M-derived: not offered in this topology."; families of one reason stand together.
std::string NotDrawn(const Comparison& all) {
  std::vector<std::pair<std::string, std::string>> namesOf;  // by their reason
  for (const FamilySweep& sweep : all.families) {
    if (sweep.responses) continue;
    const auto same = std::ranges::find(namesOf, sweep.reason, &std::pair<std::string, std::string>::first);
    if (same != namesOf.end()) {
      same->second += ", " + std::string(sweep.family->name);
    } else {
      namesOf.emplace_back(sweep.reason, sweep.family->name);
    }
  }
  std::string text;
  for (const auto& [reason, names] : namesOf) {
    text += text.empty() ? " Not drawn: " : "; ";
    text += names;
    text += ": ";
    text += reason;
  }
  return text.empty() ? text : text + ".";
}

std::string NoteOf(const Comparison& all) {
  const std::string assumed = all.assumed.empty() ? "" : " Assumed: " + all.assumed + ".";
  return "All with the present entries." + assumed + NotDrawn(all);
}

}  // namespace

frmHelpFamily::frmHelpFamily(Session& session) : Page(session, PageId::HelpFamily, "Families") {
  i16 place = 0;
  for (const GuidedFamily& family : GuidedFamilies()) {
    ++place;
    options_.push_back(
        std::make_unique<OptionButton>(*this, families_, "Option" + std::to_string(place), std::string(family.name)));
    options_.back()->onClick = [this, place] { Choose(place); };
  }
  for (OptionButton* option : {&optThisFamily, &optTransmissions, &optDelays}) option->onClick = [this] { Draw(); };
  cmdExit.onClick = [this] { session_.pages.UnloadPage(Id()); };
  acceptButton = cancelButton = &cmdExit;
}

void frmHelpFamily::Load() {
  optThisFamily.Set();
  Choose(GuideOf(session_.record.Family));
}

void frmHelpFamily::Choose(i16 place) {
  FamilyHelpCode_ = place;
  const auto index = static_cast<std::size_t>(place - 1);
  options_[index]->Set();
  lblFamily.caption = std::string(GuidedFamilies()[index].text);
  Draw();
}

void frmHelpFamily::Draw() {
  if (optTransmissions.Value()) return DrawTogether(Quantity::Transmission);
  if (optDelays.Value()) return DrawTogether(Quantity::Delay);
  const Comparison example = ExampleOf(FamilyHelpCode_, session_.configuration);
  DrawExample(example, picFamily.picture);
  lblPicture.caption = exampleNote;
  picFamily.description =
      "Transmission and delay of a " + std::string(example.families.front().family->name) + " lowpass";
}

void frmHelpFamily::DrawTogether(Quantity quantity) {
  if (!all_) all_ = std::make_unique<Comparison>(CompareFamilies(session_.record, session_.configuration));
  lblPicture.caption = NoteOf(*all_);
  picFamily.description = (quantity == Quantity::Delay ? "Delays" : "Transmissions") + std::string(" of the families");
  try {
    DrawFamilies(*all_, quantity, FamilyHelpCode_, picFamily.picture);
  } catch (const Fault&) {
    DrawNoPreview("The families cannot be drawn with these entries", plotScale, picFamily.picture);
  }
}

Layout frmHelpFamily::MakeLayout() {
  std::vector<Layout> families;
  for (const auto& option : options_) families.push_back(Put(*option));
  Layout choices =
      Column({Group("Family", Column(std::move(families))),
              Group("Picture", Column({Put(optThisFamily), Put(optTransmissions), Put(optDelays)})), Space()});
  return Column({Fill(Row({std::move(choices), Fill(Put(picFamily))})), KeepPlace(Put(lblPicture)),
                 KeepPlace(Put(lblFamily)), Row({Space(), Put(cmdExit)})});
}

}  // namespace quilm
