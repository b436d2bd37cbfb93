#include "app/Mnemonics.h"

#include <gtest/gtest.h>

namespace quilm {
namespace {

TEST(ChooseMnemonics, NoLetterStandsTwice) {
  const std::vector<QChar> letters = ChooseMnemonics({"Design", "Default", "Delete", "Edit", "Exit", "E"});
  for (std::size_t i = 0; i < letters.size(); ++i) {
    for (std::size_t j = 0; j < i; ++j) {
      EXPECT_TRUE(letters[i].isNull() || letters[i] != letters[j]) << i << ' ' << j;
    }
  }
}

TEST(ChooseMnemonics, BeginningsOfWordsComeFirst) {
  EXPECT_EQ(ChooseMnemonics({"Zoom in", "Zoom out"}), (std::vector<QChar>{'z', 'o'}));
}

TEST(ChooseMnemonics, ACaptionWhoseLettersAreTakenGetsNone) {
  EXPECT_TRUE(ChooseMnemonics({"A", "A"})[1].isNull());
  EXPECT_TRUE(ChooseMnemonics({"&% -"})[0].isNull());
}

}  // namespace
}  // namespace quilm
