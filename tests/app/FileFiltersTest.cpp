#include "app/FileFilters.h"

#include <gtest/gtest.h>

namespace quilm {
namespace {

TEST(NameFilters, PatternsStandInBothCases) {
  EXPECT_EQ(NameFilters("Quilm files (*.QLM)|*.QLM"), QStringList{"Quilm files (*.QLM *.qlm)"});
}

TEST(NameFilters, SeveralPairsFollowOneAnother) {
  EXPECT_EQ(NameFilters("Touchstone (*.s2p)|*.s2p;*.snp|All files (*.*)|*.*"),
            (QStringList{"Touchstone (*.s2p *.S2P *.snp *.SNP)", "All files (*.*)"}));
}

TEST(NameFilters, ANameWithoutPatternsIsEnough) {
  EXPECT_EQ(NameFilters("Netlists|*.CIR"), QStringList{"Netlists (*.CIR *.cir)"});
}

const QStringList pictures{"PNG picture (*.png *.PNG)", "SVG drawing (*.svg *.SVG)", "PDF document (*.pdf *.PDF)"};

TEST(RightEnding, AnEndingOfTheFiltersDecides) {
  EXPECT_EQ(WithRightEnding("/a/plot.svg", pictures, pictures[0]), "/a/plot.svg");
  EXPECT_EQ(WithRightEnding("/a/plot.PDF", pictures, pictures[0]), "/a/plot.PDF");
}

TEST(RightEnding, AnEndingOfAnotherPictureIsReplaced) {
  EXPECT_EQ(WithRightEnding("/a/plot.jpg", pictures, pictures[0]), "/a/plot.png");
  EXPECT_EQ(WithRightEnding("/a/plot.JPEG", pictures, pictures[1]), "/a/plot.svg");
}

TEST(RightEnding, WhatMayBeAPartOfTheNameIsKept) {
  EXPECT_EQ(WithRightEnding("/a/plot", pictures, pictures[0]), "/a/plot.png");
  EXPECT_EQ(WithRightEnding("/a/at 1.5 GHz", pictures, pictures[2]), "/a/at 1.5 GHz.pdf");
}

TEST(RightEnding, WhereThereIsOneKindTheNameIsFree) {
  EXPECT_EQ(WithRightEnding("/a/design.txt", {"Quilm files (*.QLM *.qlm)"}, "Quilm files (*.QLM *.qlm)"),
            "/a/design.txt");
}

TEST(RightEnding, AmongAllFilesTheNameIsFree) {
  const QStringList filters{"S-parameter files (*.S2P *.s2p)", "All files (*.*)"};
  EXPECT_EQ(WithRightEnding("/a/filter.csv", filters, filters[1]), "/a/filter.csv");
  EXPECT_EQ(WithRightEnding("/a/filter", filters, filters[1]), "/a/filter");
  EXPECT_EQ(WithRightEnding("/a/filter", filters, filters[0]), "/a/filter.S2P");
}

// The bracket of the second name does not close.
TEST(NameFilters, WhatStandsBehindANameInBracketsDoesNotMatter) {
  EXPECT_EQ(NameFilters("Tabulated-data files (*.DAT)|*.DAT|Text files (*.TXT|*.TXT|All files (*.*)|*.*"),
            (QStringList{"Tabulated-data files (*.DAT *.dat)", "Text files (*.TXT *.txt)", "All files (*.*)"}));
  EXPECT_EQ(NameFilters("Spice files (*.CIR) | *.CIR"), QStringList{"Spice files (*.CIR *.cir)"});
}

TEST(SuffixOf, IsTheFirstExtension) {
  EXPECT_EQ(SuffixOf("Quilm files (*.QLM *.qlm)"), "QLM");
  EXPECT_EQ(SuffixOf("All files (*.*)"), "");
  EXPECT_EQ(SuffixOf("All files (*)"), "");
}

}  // namespace
}  // namespace quilm
