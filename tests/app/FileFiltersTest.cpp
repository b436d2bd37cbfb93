#include "app/FileFilters.h"

#include <gtest/gtest.h>

namespace quilm {
namespace {

TEST(NameFilters, PatternsStandInBothCases) {
  EXPECT_EQ(NameFilters("Quilm files (*.QLM)|*.QLM"), QStringList{"Quilm files (*.QLM *.qlm)"});
}

TEST(NameFilters, SeveralPairsFollowOneAnother) {
  EXPECT_EQ(NameFilters("Touchstone (*.s2p)|*.s2p;*.snp|All files (*.*)|*.*"),
            (QStringList{"Touchstone (*.S2P *.s2p *.SNP *.snp)", "All files (*.*)"}));
}

TEST(NameFilters, ANameWithoutPatternsIsEnough) {
  EXPECT_EQ(NameFilters("Netlists|*.CIR"), QStringList{"Netlists (*.CIR *.cir)"});
}

TEST(SuffixOf, IsTheFirstExtension) {
  EXPECT_EQ(SuffixOf("Quilm files (*.QLM *.qlm)"), "QLM");
  EXPECT_EQ(SuffixOf("All files (*.*)"), "");
  EXPECT_EQ(SuffixOf("All files (*)"), "");
}

}  // namespace
}  // namespace quilm
