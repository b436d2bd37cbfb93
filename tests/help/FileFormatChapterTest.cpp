// The chapter on the design file: its reader reads what the program writes, the program reads its small file, and its
// codes are those of the program.
#include "core/Identity.h"
#include "desk/FamilyRules.h"
#include "display/LimitDrawing.h"
#include "help/ChapterBench.h"
#include "synthesis/DesignSummary.h"

namespace quilm {
namespace {

class FileFormat : public Chapter {
 protected:
  // The text of a block of the chapter.
  static std::string Block(const std::string& id) {
    const std::string page = PageNamed("file-format");
    const std::string begin = "<pre id=\"" + id + "\">\n";
    const std::size_t from = page.find(begin);
    if (from == std::string::npos) return {};
    const std::size_t text = from + begin.size();
    std::string block = page.substr(text, page.find("</pre>", text) - text);
    block = std::regex_replace(block, std::regex("&lt;"), "<");
    return std::regex_replace(block, std::regex("&amp;"), "&");
  }

  // What the chapter's reader says of a file in the test's folder.
  std::string ReadByPython(const std::string& file) {
    std::ofstream(folder / "reader.py") << Block("reader-python");
    const Ended ended = RunInShell("'" QUILM_PYTHON "' reader.py '" + file + "' >stdout 2>stderr");
    EXPECT_EQ(ended.status, 0) << ended.err;
    return ended.out;
  }
};

// By the closed form of the prototype, within the seven digits of a file.
TEST_F(FileFormat, IsReadByTheReaderOfTheBook) {
  EventsOf("help/first-design.qsc");
  std::istringstream lines(ReadByPython("first-lowpass.QLM"));
  std::string head;
  std::getline(lines, head);
  EXPECT_NE(head.find("family 2 topology A width 1000000.0"), std::string::npos) << head;
  std::getline(lines, head);
  EXPECT_EQ(head, "source 50.0 load 50.0");
  const DesignRecord expected = FirstLowpass();
  int count = 0;
  int kind = 0;
  std::string L;
  std::string C;
  f64 henries = 0;
  f64 farads = 0;
  for (int number = 0; lines >> number >> kind >> L >> henries >> C >> farads; ++count) {
    const Stage& stage = expected.stage[number];
    EXPECT_EQ(kind, stage.ElementType) << number;
    EXPECT_NEAR(henries, stage.Lval.value, 1e-6 * f64{stage.Lval.value}) << number;
    EXPECT_NEAR(farads, stage.Cval.value, 1e-6 * f64{stage.Cval.value}) << number;
  }
  EXPECT_EQ(count, 5);
}

TEST_F(FileFormat, OfTheBooksOwnFileIsUnderstoodByBoth) {
  std::ofstream(folder / "small.QLM") << Block("small-file");
  EXPECT_EQ(ReadByPython("small.QLM"),
            "Pi of my own family 11 topology M width 1000000.0\nsource 50.0 load 50.0\n"
            "1 4 L 0.0 C 3.3e-09\n2 1 L 1e-05 C 0.0\n3 4 L 0.0 C 3.3e-09\n");
  const Ended ended =
      Run("-", "file open small.QLM\npress cmdRetrieveOld\nrecord stages CircuitTitle Fstop NrIntervals\n");
  ASSERT_EQ(ended.status, 0) << ended.err;
  EXPECT_TRUE(OfKind(ended.Events(), "message").empty());
  const std::vector<json> records = OfKind(ended.Events(), "record");
  ASSERT_EQ(records.size(), 1U);
  EXPECT_EQ(records[0]["record"]["CircuitTitle"], "Pi of my own");
  EXPECT_EQ(records[0]["record"]["Fstop"], 1e7);
  EXPECT_EQ(records[0]["record"]["NrIntervals"], 1000);
  ASSERT_EQ(records[0]["stages"].size(), 3U);
  EXPECT_NEAR(records[0]["stages"][1]["Lval"][0].get<f64>(), 1e-5, 1e-11);
  EXPECT_EQ(records[0]["stages"][2]["Cval"][1], 5);
}

// "2 Chebyshev", "A Capacitor-input lowpass", "5 Floor in a band".
TEST_F(FileFormat, NamesTheCodesOfTheProgram) {
  const std::string page = Plain(PageNamed("file-format"));
  for (const FamilyRule& rule : FamilyRules()) {
    EXPECT_TRUE(Has(page, Plain(std::to_string(rule.code) + " " + FamilyName(rule.code)))) << rule.code;
  }
  for (char letter = 'A'; letter <= 'L'; ++letter) {
    const std::string name(1, letter);
    EXPECT_TRUE(Has(page, Plain(name + " " + TopologyCaption(name)))) << name;
  }
  for (int shape = 1; shape <= limitShapes; ++shape) {
    EXPECT_TRUE(Has(page, Plain(std::to_string(shape) + " " + LimitShapeName(shape)))) << shape;
  }
}

}  // namespace
}  // namespace quilm
