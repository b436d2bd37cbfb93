#include "app/Mnemonics.h"

#include <gtest/gtest.h>

namespace quilm {
namespace {

std::vector<QChar> Choose(const std::vector<QString>& captions, QSet<QChar> taken = {}) {
  return ChooseMnemonics(captions, taken);
}

TEST(ChooseMnemonics, NoLetterStandsTwice) {
  const std::vector<QChar> letters = Choose({"Design", "Default", "Delete", "Edit", "Exit", "E"});
  for (std::size_t i = 0; i < letters.size(); ++i) {
    for (std::size_t j = 0; j < i; ++j) {
      EXPECT_TRUE(letters[i].isNull() || letters[i] != letters[j]) << i << ' ' << j;
    }
  }
}

TEST(ChooseMnemonics, BeginningsOfWordsComeFirst) {
  EXPECT_EQ(Choose({"Zoom in", "Zoom out"}), (std::vector<QChar>{'z', 'o'}));
}

TEST(ChooseMnemonics, ACaptionWhoseLettersAreTakenGetsNone) {
  EXPECT_TRUE(Choose({"A", "A"})[1].isNull());
  EXPECT_TRUE(Choose({"&% -"})[0].isNull());
}

TEST(ChooseMnemonics, ALetterThatIsTakenIsLeftToItsOwner) {
  EXPECT_EQ(Choose({"Delete"}, {'d', 'e'}), std::vector<QChar>{'l'});
}

TEST(ChooseMnemonics, WhatIsChosenIsTakenForThoseWhoComeLater) {
  QSet<QChar> taken;
  ChooseMnemonics({"Ok"}, taken);
  EXPECT_EQ(ChooseMnemonics({"Order"}, taken), std::vector<QChar>{'r'});
}

}  // namespace
}  // namespace quilm
