#include "files/LineReader.h"

#include <gtest/gtest.h>

#include <sstream>

namespace quilm {
namespace {

std::vector<std::string> LinesOf(const std::string& text) {
  std::istringstream in(text);
  LineReader reader(in);
  std::vector<std::string> lines;
  try {
    while (true) lines.push_back(reader.Take());
  } catch (const ReadFault&) {
  }
  return lines;
}

using Texts = std::vector<std::string>;

TEST(LineReader, TakesAnyLineEnd) { EXPECT_EQ(LinesOf("a\r\nb\nc\rd"), (Texts{"a", "b", "c", "d"})); }

TEST(LineReader, SkipsCommentsAndEmptyLines) { EXPECT_EQ(LinesOf("* a\n\n! b\n  ' c\n/d\n\\e\nf\n"), (Texts{"f"})); }

TEST(LineReader, ALineOfBlanksIsHandedOnAsEmptyText) { EXPECT_EQ(LinesOf("a\n   \nb"), (Texts{"a", "", "b"})); }

TEST(LineReader, LinesAreTrimmed) { EXPECT_EQ(LinesOf("  a b  \n"), (Texts{"a b"})); }

TEST(LineReader, OtherBytesPassThrough) { EXPECT_EQ(LinesOf("\xC3\xA9\xFF\n"), (Texts{"\xC3\xA9\xFF"})); }

TEST(LineReader, OfAnEndlessLineOnlyTheBeginningIsKept) {
  const Texts lines = LinesOf(std::string(1000000, 'x') + "\nb");
  ASSERT_EQ(lines.size(), 2U);
  EXPECT_LT(lines[0].size(), 100000U);
  EXPECT_EQ(lines[1], "b");
}

TEST(LineReader, KnowsTheEnd) {
  std::istringstream in("a\nb");
  LineReader reader(in);
  reader.Take();
  EXPECT_FALSE(reader.AtEnd());
  reader.Take();
  EXPECT_TRUE(reader.AtEnd());
  EXPECT_EQ(reader.Last(), "b");
}

// A file whose disk fails behind a text.
class FailingDisk : public std::streambuf {
 public:
  explicit FailingDisk(std::string text) : text_(std::move(text)) {
    setg(text_.data(), text_.data(), text_.data() + text_.size());
  }

 protected:
  int_type underflow() override { throw std::ios_base::failure("read"); }

 private:
  std::string text_;
};

TEST(LineReader, AFailingDiskIsAFaultOfTheFile) {
  FailingDisk disk("a\nb\nhalf");
  std::istream in(&disk);
  LineReader reader(in);
  EXPECT_EQ(reader.Take(), "a");
  EXPECT_FALSE(reader.AtEnd());
  EXPECT_EQ(reader.Take(), "b");
  EXPECT_THROW(reader.Take(), ReadFault);
  EXPECT_THROW(reader.AtEnd(), ReadFault);
  EXPECT_EQ(reader.Last(), "b");
}

TEST(WordSplitter, BlanksAreTheOnlyDelimiters) {
  WordSplitter words("  1.5  a,b\tc ");
  EXPECT_EQ(words.Next(), "1.5");
  EXPECT_TRUE(words.More());
  EXPECT_EQ(words.Next(), "a,b\tc");
  EXPECT_FALSE(words.More());
}

TEST(WordSplitter, AMissingWordRepeatsTheOneBefore) {
  WordSplitter words("7");
  words.Next();
  EXPECT_EQ(words.Next(), "7");
  words.Continue("");
  EXPECT_EQ(words.Next(), "7");
  EXPECT_EQ(WordSplitter().Next(), "");
}

}  // namespace
}  // namespace quilm
