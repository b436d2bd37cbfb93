#include <algorithm>

#include "desk/StartUp.h"
#include "pages/PageBench.h"
#include "pages/PageDirectory.h"

namespace quilm {
namespace {

class TabulatedPage : public PageBench {
 protected:
  TabulatedPage() : PageBench(AllPages()) {
    StartProgram(session);
    Press("cmdDesignNew");
    Press("optButterworth");
    Press("optCapInLowpass");
    Enter("txtBandwidth", "1M");
    Enter("txtInputTerm", "50");
    session.record.NrIntervals = 40;
    Press("cmdTabulate");
  }

  const std::vector<std::string>& Rows() { return Get<ListBox>("lstTabulatedOutput").items; }
};

TEST_F(TabulatedPage, ShowsARowForEachPoint) {
  ASSERT_EQ(Top().Id(), PageId::Tabulated);
  ASSERT_EQ(Rows().size(), 41U);
  EXPECT_EQ(Rows()[0].substr(0, 10), "       1k ");
  EXPECT_EQ(Rows()[40].substr(0, 10), "      10M ");
}

TEST_F(TabulatedPage, AlwaysSweeps) {
  const std::string before = Rows()[35];
  session.record.stage[2].Lval.value *= 2;
  session.pages.ShowPage(PageId::Tabulated);
  EXPECT_NE(Rows()[35], before);
}

TEST_F(TabulatedPage, ShownTwiceItHasTheSameRows) {
  const std::vector<std::string> once = Rows();
  session.pages.ShowPage(PageId::Tabulated);
  EXPECT_EQ(Rows(), once);
}

TEST_F(TabulatedPage, PrintedTwiceItIsTheSameDocument) {
  platform.printers = {true, true};
  Press("cmdPrint");
  const std::vector<Picture> once = platform.Printer().Sheets();
  Press("cmdPrint");
  EXPECT_TRUE(platform.Printer().Sheets() == once);
}

TEST_F(TabulatedPage, FortyIntervalsPrintWithoutAQuestion) {
  platform.printers = {true};
  Press("cmdPrint");
  EXPECT_TRUE(platform.messages.empty());
  EXPECT_TRUE(platform.Printer().Ended());
  EXPECT_EQ(platform.Printer().Sheets().size(), 2U);
}

TEST_F(TabulatedPage, MoreThanFortyAsk) {
  session.record.NrIntervals = 1000;
  session.pages.ShowPage(PageId::Tabulated);
  platform.answers = {Answer::No};
  Press("cmdPrint");
  ASSERT_EQ(platform.messages.size(), 1U);
  EXPECT_EQ(platform.beeps, 1);
  EXPECT_EQ(platform.messages[0].title, "Caution");
  EXPECT_EQ(platform.messages[0].icon, Icon::Question);
  EXPECT_EQ(platform.messages[0].text,
            "We have 1000 lines of data and so will use about 25 sheets of paper. \r\n"
            "Are you sure you want to continue and print out the data?");
  EXPECT_FALSE(platform.Printer().Ended());
  platform.answers = {Answer::Yes};
  platform.printers = {true};
  Press("cmdPrint");
  EXPECT_EQ(platform.Printer().Sheets().size(), 26U);
}

TEST_F(TabulatedPage, ACancelledPrintDialogIsQuiet) {
  platform.printers = {false};
  Press("cmdPrint");
  EXPECT_TRUE(platform.messages.empty());
}

// A heading and 41 points, each line with CR LF.
TEST_F(TabulatedPage, IsSavedWithAllDigits) {
  platform.files.push_back(Path("t.csv"));
  Press("cmdSaveTable");
  EXPECT_EQ(platform.fileDialogs.back().title, "Save table");
  EXPECT_EQ(platform.fileDialogs.back().defaultName, "Quilm table.csv");
  const std::string text = File("t.csv");
  EXPECT_EQ(std::count(text.begin(), text.end(), '\n'), 42);
  EXPECT_TRUE(text.starts_with("Frequency (Hz),Trans. (dB),"));
  EXPECT_EQ(text.substr(text.find('\n') + 1, 5), "1000,");
  EXPECT_EQ(session.note, "Wrote " + Path("t.csv"));
}

TEST_F(TabulatedPage, ATableThatCannotBeWrittenIsToldWithPathAndReason) {
  platform.files.push_back("/nowhere/t.csv");
  Press("cmdSaveTable");
  ASSERT_EQ(platform.messages.size(), 1U);
  EXPECT_EQ(platform.messages[0].title, "Save table");
  EXPECT_EQ(platform.messages[0].text, "/nowhere/t.csv was not written: there is no such folder");
}

TEST_F(TabulatedPage, ACancelledSaveIsQuiet) {
  platform.files.push_back(std::nullopt);
  Press("cmdSaveTable");
  EXPECT_TRUE(platform.messages.empty());
  EXPECT_EQ(session.note, "");
}

TEST_F(TabulatedPage, LeadsBackToTheDesign) {
  Press("cmdDesign");
  EXPECT_EQ(Top().Id(), PageId::Design);
  EXPECT_EQ(session.pages.Find(PageId::Tabulated), nullptr);
}

}  // namespace
}  // namespace quilm
