#include "files/OverlayFile.h"

#include <gtest/gtest.h>

#include <sstream>

namespace quilm {
namespace {

OverlayRead Read(const std::string& text) {
  std::istringstream in(text);
  return ReadOverlay(in);
}

TEST(OverlayFile, HoldsAPointALine) {
  const std::vector<f32> frequencies = {1000, 1.234568e7F, 0.5F};
  const std::vector<f32> values = {-3.0103F, 2.5e-9F, 0};
  EXPECT_EQ(OverlayText(frequencies, values), "1000 -3.0103 \r\n1.234568E+07 2.5E-09 \r\n0.5 0 \r\n");
}

TEST(OverlayFile, WhatIsWrittenReadsBack) {
  const std::vector<f32> frequencies = {0, 1000, 1.234568e7F};
  const std::vector<f32> values = {-300, 2.5e-9F, 1e30F};
  const OverlayRead read = Read(OverlayText(frequencies, values));
  EXPECT_EQ(read.curve.freq, frequencies);
  EXPECT_EQ(read.curve.value, values);
  EXPECT_EQ(read.unread, 0);
}

TEST(OverlayFile, AnyEndsOfLinesWillDo) {
  EXPECT_EQ(Read("1 2\n3 4\r5 6").curve.value, (std::vector<f32>{2, 4, 6}));
  EXPECT_EQ(Read("\r\n 1  2 \r\n\r\n").curve.freq, (std::vector<f32>{1}));
  EXPECT_EQ(Read("").unread, 0);
}

TEST(OverlayFile, LinesWithoutAPointAreLeftOutAndCounted) {
  for (const char* line : {"abc", "1", "-1 2", "1 x", "1 2x", "1 1e99", "nan 1", "1 inf", "1,5 2"}) {
    const OverlayRead read = Read(std::string("1 2\r\n") + line + "\r\n3 4\r\n");
    EXPECT_EQ(read.curve.freq, (std::vector<f32>{1, 3})) << line;
    EXPECT_EQ(read.curve.value, (std::vector<f32>{2, 4})) << line;
    EXPECT_EQ(read.unread, 1) << line;
  }
}

TEST(OverlayFile, EndsAfter2050Lines) {
  std::string text;
  for (int i = 0; i < 3000; ++i) text += std::to_string(i) + " 1 \r\n";
  const OverlayRead read = Read(text);
  EXPECT_EQ(read.curve.freq.size(), 2050U);
  EXPECT_EQ(read.curve.freq.back(), 2049);
}

}  // namespace
}  // namespace quilm
