#include "script/Parser.h"

#include <gtest/gtest.h>

#include <sstream>

namespace quilm {
namespace {

TEST(Words, BlanksAndTabsSeparateThem) {
  EXPECT_EQ(Words("  one\ttwo   three "), (std::vector<std::string>{"one", "two", "three"}));
}

TEST(Words, ACommentEndsThem) { EXPECT_EQ(Words("one # two"), (std::vector<std::string>{"one"})); }

TEST(Words, ANumberSignInsideAWordIsNoComment) { EXPECT_EQ(Words("a#b"), (std::vector<std::string>{"a#b"})); }

TEST(Words, OfNothingThereAreNone) { EXPECT_TRUE(Words(" \t ").empty()); }

TEST(SplitFirst, TheRestKeepsItsInnerAndLastBlanks) {
  const FirstWord split = SplitFirst("  txtTitle   a  b ");
  EXPECT_EQ(split.word, "txtTitle");
  EXPECT_EQ(split.rest, "a  b ");
}

TEST(ParseLine, ACommandHasANameAndArguments) {
  const auto command = ParseLine("  press   cmdPlot ", 7);
  ASSERT_TRUE(command);
  EXPECT_EQ(command->line, 7);
  EXPECT_EQ(command->name, "press");
  EXPECT_EQ(command->arguments, "cmdPlot ");
  EXPECT_EQ(command->text, "press   cmdPlot");
}

TEST(ParseLine, BlankLinesAndCommentsAreNoCommands) {
  for (const char* line : {"", "   ", "\t", "# press cmdPlot", "   #", "\r"}) EXPECT_FALSE(ParseLine(line, 1)) << line;
}

TEST(ParseLine, ACarriageReturnAtTheEndIsNoPartOfTheText) { EXPECT_EQ(ParseLine("type a b\r", 1)->arguments, "a b"); }

TEST(ScriptSource, CountsAllLines) {
  std::istringstream in("# one\n\npress a\r\n  \nclose");
  ScriptSource source(in);
  EXPECT_EQ(source.Next()->line, 3);
  EXPECT_EQ(source.Next()->line, 5);
  EXPECT_FALSE(source.Next());
  EXPECT_FALSE(source.Next());
}

TEST(ScriptSource, SkipsAByteOrderMark) {
  std::istringstream in("\xEF\xBB\xBFpress a");
  EXPECT_EQ(ScriptSource(in).Next()->name, "press");
}

}  // namespace
}  // namespace quilm
