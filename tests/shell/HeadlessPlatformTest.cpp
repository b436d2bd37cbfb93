#include "shell/HeadlessPlatform.h"

#include "shell/ShellBench.h"

namespace quilm {
namespace {

using testing::ElementsAre;

class HeadlessPlatformTest : public testing::Test {
 protected:
  HeadlessPlatform platform{"/home/someone/quilm"};
};

TEST_F(HeadlessPlatformTest, AMessageIsAnsweredOkByItself) {
  EXPECT_EQ(platform.MessageBox("text", Buttons::Ok, Icon::Information, "title"), Answer::Ok);
  ASSERT_EQ(platform.messages.size(), 1U);
  EXPECT_EQ(platform.messages[0].text, "text");
  EXPECT_EQ(platform.messages[0].title, "title");
  EXPECT_EQ(platform.messages[0].icon, Icon::Information);
}

TEST_F(HeadlessPlatformTest, AQuestionNeedsAnAnswer) {
  EXPECT_THROW(platform.MessageBox("really?", Buttons::YesNo, Icon::Question, ""), Fault);
  platform.answers = {Answer::No, Answer::Yes};
  EXPECT_EQ(platform.MessageBox("really?", Buttons::YesNo, Icon::Question, ""), Answer::No);
  EXPECT_EQ(platform.MessageBox("really?", Buttons::YesNo, Icon::Question, ""), Answer::Yes);
  EXPECT_EQ(platform.messages.back().answer, Answer::Yes);
}

TEST_F(HeadlessPlatformTest, AFileDialogNeedsAnAnswer) {
  EXPECT_THROW(platform.OpenDialog("Get", "filter"), Fault);
  EXPECT_THROW(platform.SaveDialog("Write", "filter", "name"), Fault);
}

TEST_F(HeadlessPlatformTest, AnAnswerForOneKindOfDialogWaitsForThatKind) {
  platform.files.emplace_back("/read.QLM", FileAnswer::For::Open);
  EXPECT_THROW(platform.SaveDialog("Write", "filter", "name"), Fault);
  EXPECT_EQ(platform.OpenDialog("Get", "filter"), "/read.QLM");
  platform.files.emplace_back("/written.QLM", FileAnswer::For::Save);
  EXPECT_THROW(platform.OpenDialog("Get", "filter"), Fault);
  EXPECT_EQ(platform.SaveDialog("Write", "filter", "name"), "/written.QLM");
}

TEST_F(HeadlessPlatformTest, FileDialogsAreRecorded) {
  platform.files = {"/a.QLM", std::nullopt};
  EXPECT_EQ(platform.OpenDialog("Get", "one"), "/a.QLM");
  EXPECT_EQ(platform.SaveDialog("Write", "two", "b.QLM"), std::nullopt);
  ASSERT_EQ(platform.fileDialogs.size(), 2U);
  EXPECT_FALSE(platform.fileDialogs[0].save);
  EXPECT_EQ(platform.fileDialogs[0].title, "Get");
  EXPECT_EQ(platform.fileDialogs[0].answer, "/a.QLM");
  EXPECT_TRUE(platform.fileDialogs[1].save);
  EXPECT_EQ(platform.fileDialogs[1].filter, "two");
  EXPECT_EQ(platform.fileDialogs[1].defaultName, "b.QLM");
}

TEST_F(HeadlessPlatformTest, APrintDialogIsCancelledByItself) {
  EXPECT_EQ(platform.PrintDialog(Orientation::Portrait), nullptr);
}

TEST_F(HeadlessPlatformTest, APrintedDocumentKeepsItsSheets) {
  std::size_t told = 0;
  platform.onPrinted = [&](const SheetPrinter& printer) { told = printer.Sheets().size(); };
  platform.printers = {true};
  Canvas* sheet = platform.PrintDialog(Orientation::Portrait);
  ASSERT_NE(sheet, nullptr);
  sheet->SetScale({0, 0, 100, 50});
  sheet->Line(1, 2, 3, 4, colorRed);
  EXPECT_FALSE(platform.Printer().Ended());
  sheet->NewPage();
  sheet->PSet(5, 6, colorRed);
  sheet->EndDoc();
  EXPECT_TRUE(platform.Printer().Ended());
  EXPECT_EQ(told, 2U);
  const auto& sheets = platform.Printer().Sheets();
  ASSERT_EQ(sheets.size(), 2U);
  Picture first({0, 0, 100, 50});
  first.Line(1, 2, 3, 4, colorRed);
  EXPECT_EQ(sheets[0], first);
  EXPECT_EQ(sheets[1].Operations().size(), 1U);
}

TEST_F(HeadlessPlatformTest, TheNextDocumentBeginsAnew) {
  platform.printers = {true, true};
  platform.PrintDialog(Orientation::Portrait)->EndDoc();
  platform.PrintDialog(Orientation::Portrait);
  EXPECT_FALSE(platform.Printer().Ended());
  EXPECT_TRUE(platform.Printer().Sheets().empty());
}

TEST_F(HeadlessPlatformTest, CountsBeepsAndPauses) {
  platform.Beep();
  platform.Beep();
  platform.Pause(1.5);
  platform.Pause(1);
  EXPECT_EQ(platform.beeps, 2);
  EXPECT_EQ(platform.paused, 2.5);
}

TEST_F(HeadlessPlatformTest, RecordsWhatWasOpened) {
  platform.ShellOpen("one.htm");
  EXPECT_TRUE(platform.ShowSystemInformation());
  EXPECT_THAT(platform.opened, ElementsAre("one.htm", "system-information"));
}

TEST_F(HeadlessPlatformTest, YieldRunsWhatIsPending) {
  int yields = 0;
  platform.Yield();
  platform.onYield = [&] { ++yields; };
  platform.Yield();
  EXPECT_EQ(yields, 1);
}

TEST_F(HeadlessPlatformTest, ItsClockCanBeSet) {
  platform.clock = DateTime{2024, 2, 29, 12, 30, 59};
  EXPECT_EQ(platform.Now().day, 29);
  platform.clock.reset();
  EXPECT_GE(platform.Now().year, 2024);
}

TEST_F(HeadlessPlatformTest, ItsFolderIsTheOneGiven) {
  EXPECT_EQ(platform.ProgramFolder(), "/home/someone/quilm");
  EXPECT_EQ(platform.HelpFolder(), "/home/someone/quilm/help");
}

TEST(HeadlessModal, APageThatStaysOpenGetsItsCloseBoxPressed) {
  ShellBench bench;
  bench.Show();
  bench.session.pages.ShowModal(PageId::EnterWidth);
  EXPECT_EQ(bench.session.pages.Find(PageId::EnterWidth), nullptr);
}

TEST(HeadlessModal, EachPageTakesTheNextAct) {
  ShellBench bench;
  bench.Show();
  for (const char* act : {"first", "second"}) {
    bench.platform.modalActs.push_back([&bench, act](Page&) { bench.log.push_back(act); });
  }
  bench.session.pages.ShowModal(PageId::EnterWidth);
  bench.session.pages.ShowModal(PageId::EnterWidth);
  EXPECT_THAT(bench.log, ElementsAre("load frmDesign", "load frmEnterWidth", "first", "load frmEnterWidth", "second"));
}

}  // namespace
}  // namespace quilm
