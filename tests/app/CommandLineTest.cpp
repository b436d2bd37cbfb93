#include "app/CommandLine.h"

#include <gmock/gmock.h>

#include <sstream>

namespace quilm {
namespace {

using testing::HasSubstr;

struct Read {
  explicit Read(std::vector<const char*> words) {
    words.insert(words.begin(), "quilm");
    line = ReadCommandLine(static_cast<int>(words.size()), words.data(), out, err);
  }
  std::ostringstream out;
  std::ostringstream err;
  CommandLine line;
};

TEST(CommandLine, WithoutAnyTheProgramOpens) {
  const Read read({});
  EXPECT_FALSE(read.line.status);
  EXPECT_EQ(read.line.file, "");
  EXPECT_FALSE(read.line.onlyLooks);
}

TEST(CommandLine, AFileIsADesignToOpen) {
  const Read read({"my lowpass.QLM"});
  EXPECT_FALSE(read.line.status);
  EXPECT_EQ(read.line.file, "my lowpass.QLM");
}

TEST(CommandLine, AFolderHoldsWhatTheProgramKeeps) {
  const Read read({"--folder", "/tmp/bench", "one.QLM"});
  EXPECT_FALSE(read.line.status);
  EXPECT_EQ(read.line.folder, "/tmp/bench");
  EXPECT_EQ(read.line.file, "one.QLM");
}

TEST(CommandLine, HelpAndVersionGoToStandardOutput) {
  const Read help({"--help"});
  EXPECT_EQ(help.line.status, 0);
  EXPECT_THAT(help.out.str(), HasSubstr("FILE"));
  EXPECT_EQ(help.err.str(), "");
  const Read version({"--version"});
  EXPECT_EQ(version.line.status, 0);
  EXPECT_EQ(version.out.str(), "Quilm " QUILM_VERSION "\n");
}

TEST(CommandLine, WhatItDoesNotKnowIsAUsageError) {
  for (const Read& read : {Read({"--colour"}), Read({"one.QLM", "two.QLM"})}) {
    EXPECT_EQ(read.line.status, 2);
    EXPECT_EQ(read.out.str(), "");
    EXPECT_NE(read.err.str(), "");
  }
}

TEST(CommandLine, TheToolkitsOptionsAreLeftToIt) {
  const Read read({"-session", "a1b2", "one.QLM", "-platform", "offscreen"});
  EXPECT_FALSE(read.line.status);
  EXPECT_EQ(read.line.file, "one.QLM");
}

}  // namespace
}  // namespace quilm
