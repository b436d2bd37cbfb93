#include "core/Topology.h"

#include <gtest/gtest.h>

#include <string>

namespace quilm {
namespace {

std::string LettersWith(bool (*holds)(std::string_view)) {
  std::string letters;
  for (char letter = '@'; letter <= 'Z'; ++letter) {
    if (holds(std::string_view(&letter, 1))) letters += letter;
  }
  return letters;
}

TEST(Topology, EveryLetterAnswersEachQuestion) {
  EXPECT_EQ(LettersWith(IsTopologyLetter), "ABCDEFGHIJKL");
  EXPECT_EQ(LettersWith(IsLowpass), "AB");
  EXPECT_EQ(LettersWith(IsHighpass), "IJ");
  EXPECT_EQ(LettersWith(IsLowOrHighpass), "ABIJ");
  EXPECT_EQ(LettersWith(NeedsCenter), "CDEFGHKL");
}

TEST(Topology, BandpassAndBandstopAreToldApart) {
  EXPECT_EQ(FilterKindOf("H"), FilterKind::Bandpass);
  EXPECT_EQ(FilterKindOf("K"), FilterKind::Bandstop);
  EXPECT_EQ(FilterKindOf("L"), FilterKind::Bandstop);
}

TEST(Topology, WhatIsNoLetterOfAFilterIsNone) {
  for (const char* topology : {"", "M", "a", "AB", "I "})
    EXPECT_EQ(FilterKindOf(topology), FilterKind::None) << topology;
}

TEST(Topology, TheStopbandOfAHighpassLiesBelowItsCutoff) {
  EXPECT_EQ(StopbandEdge("A", 1000, 1.25F), 1250);
  EXPECT_EQ(StopbandEdge("H", 1000, 1.25F), 1250);
  EXPECT_EQ(StopbandEdge("I", 1000, 1.25F), 800);
  EXPECT_EQ(StopbandEdge("J", 1000, 1.25F), 800);
}

}  // namespace
}  // namespace quilm
