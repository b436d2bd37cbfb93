// The listing of controls, over a page made for it.
#include "script/Listing.h"

#include <gtest/gtest.h>

#include "script/ScriptPlatform.h"
#include "shell/Page.h"

namespace quilm {
namespace {

class OddPage : public Page {
 public:
  explicit OddPage(Session& session) : Page(session, PageId::Design, "Odd") {}
  void Load() override { cmdPress.caption = "Loaded"; }
  Layout MakeLayout() override { return Column({}); }

  Button cmdPress{*this, "cmdPress", "Press me"};
  TextBox txtValueOfALongName{*this, "txtValueOfALongName", "Value, Hz"};
  Label lblLines{*this, "lblLines", "One\r\ntwo <three> & four"};
  Label lblLater{*this, "lblLater", ""};
  Timer Timer1{*this, "Timer1", 10};
};

class EmptyPage : public Page {
 public:
  explicit EmptyPage(Session& session) : Page(session, PageId::Plotted, "Empty") {}
  Layout MakeLayout() override { return Column({}); }
};

PageDirectory OddPages() {
  return {{PageId::Design, [](Session& session) { return std::make_unique<OddPage>(session); }},
          {PageId::Plotted, [](Session& session) { return std::make_unique<EmptyPage>(session); }}};
}

constexpr const char* oddListing =
    "frmDesign: Odd\n"
    "  cmdPress             button   Press me\n"
    "  txtValueOfALongName  text     Value, Hz\n"
    "  lblLines             label    One  two <three> & four\n"
    "  lblLater             label\n";

// Without what the load step brings, and without the timer, which nobody sees.
TEST(ControlListing, HasNameKindAndCaptionInColumns) { EXPECT_EQ(ControlListing(OddPages(), "frmDesign"), oddListing); }

TEST(ControlListing, HasAllPagesInTheirOrder) {
  EXPECT_EQ(ControlListing(OddPages(), ""), std::string(oddListing) + "frmPlotted: Empty\n");
}

TEST(ControlListing, RefusesAPageThatIsNotThere) {
  try {
    ControlListing(OddPages(), "frmTabulated");
    FAIL() << "nothing was thrown";
  } catch (const CommandFailure& failure) {
    EXPECT_EQ(failure.reason, "there is no page frmTabulated");
  }
}

}  // namespace
}  // namespace quilm
