// What must hold of every page that the program has.
#include <algorithm>
#include <set>

#include "pages/PageOverLowpass.h"

namespace quilm {
namespace {

class Structure : public PageOverLowpass {};

// A form that is accepted as a whole reads its options then; elsewhere an option acts at once.
bool HasHandler(const Page& page, const Control& control) {
  if (const auto* button = dynamic_cast<const Button*>(&control)) return static_cast<bool>(button->onClick);
  if (const auto* option = dynamic_cast<const OptionButton*>(&control)) {
    return static_cast<bool>(option->onClick) || page.acceptButton != nullptr;
  }
  return true;
}

bool HasFace(const Control& control) {
  const auto* button = dynamic_cast<const Button*>(&control);
  return !control.caption.empty() || (button != nullptr && !button->picture.Empty());
}

bool IsButton(const Control& control) {
  return control.kind == ControlKind::Button || control.kind == ControlKind::Option;
}

TEST_P(Structure, NamesAreUnique) {
  std::set<std::string> names;
  for (const Control* control : page->Controls()) EXPECT_TRUE(names.insert(control->name).second) << control->name;
}

TEST_P(Structure, EveryControlIsPlacedOnce) {
  const Layout layout = page->MakeLayout();
  const std::vector<Control*> placed = ControlsOf(layout);
  for (Control* control : page->Controls()) {
    const auto times = std::count(placed.begin(), placed.end(), control);
    const bool hasPlace = control->kind != ControlKind::Timer;
    EXPECT_EQ(times, hasPlace ? 1 : 0) << control->name;
  }
  for (const Control* control : placed) EXPECT_EQ(page->Find(control->name), control) << control->name;
}

// Rows and columns may be empty, all else has what it needs to be built.
void ExpectBuildable(const Layout& layout) {
  switch (layout.kind) {
    case Layout::Kind::Control:
      EXPECT_NE(layout.control, nullptr);
      EXPECT_TRUE(layout.items.empty());
      break;
    case Layout::Kind::Grid:
      EXPECT_GT(layout.columns, 0);
      break;
    case Layout::Kind::Form:
      EXPECT_TRUE(layout.columns == 2 || layout.columns == 3);
      EXPECT_EQ(layout.items.size() % static_cast<std::size_t>(layout.columns), 0U);
      break;
    case Layout::Kind::Within:
      EXPECT_NE(layout.control, nullptr);
      EXPECT_EQ(layout.items.size(), 1U);
      break;
    case Layout::Kind::Word:
      EXPECT_NE(layout.control, nullptr);
      EXPECT_FALSE(layout.title.empty());
      break;
    case Layout::Kind::Group:
      EXPECT_EQ(layout.items.size(), 1U);
      EXPECT_TRUE(layout.control != nullptr || !layout.title.empty());
      break;
    default:
      EXPECT_EQ(layout.control, nullptr);
  }
  for (const Layout& item : layout.items) ExpectBuildable(item);
}

TEST_P(Structure, TheLayoutCanBeBuilt) { ExpectBuildable(page->MakeLayout()); }

TEST_P(Structure, EveryButtonThatCanBePressedHasAHandler) {
  for (const Control* control : page->Controls()) {
    if (IsButton(*control) && control->Usable()) {
      EXPECT_TRUE(HasHandler(*page, *control)) << control->name;
    }
  }
}

TEST_P(Structure, EveryButtonHasACaptionOrAPicture) {
  for (const Control* control : page->Controls()) {
    if (IsButton(*control)) {
      EXPECT_TRUE(HasFace(*control)) << control->name;
    }
  }
}

// Its bare name in the program means nothing to a listener.
TEST_P(Structure, EveryControlThatIsNoMereTextHasASpokenName) {
  for (const Control* control : page->Controls()) {
    const bool passive = control->kind == ControlKind::Label || control->kind == ControlKind::Frame ||
                         control->kind == ControlKind::Timer;
    if (!passive) {
      EXPECT_NE(control->SpokenName(), control->name);
    }
  }
}

TEST_P(Structure, ThePageHasATitle) { EXPECT_FALSE(page->title.empty()); }

TEST_P(Structure, WhatEnterAndEscapePressIsThere) {
  for (const Button* button : {page->acceptButton, page->cancelButton}) {
    if (button != nullptr) {
      EXPECT_EQ(page->Find(button->name), button);
      EXPECT_TRUE(button->Shown()) << button->name;
    }
  }
}

INSTANTIATE_TEST_SUITE_P(Pages, Structure, testing::ValuesIn(AllIds()), NameOfPage);

TEST(AllPages, EachMakesThePageOfItsName) {
  HeadlessPlatform platform("/nowhere");
  Session session(platform, AllPages());
  for (const auto& [id, make] : AllPages()) EXPECT_EQ(make(session)->Name(), FormName(id));
}

}  // namespace
}  // namespace quilm
