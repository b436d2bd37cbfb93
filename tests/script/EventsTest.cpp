// The events that tell what the program asked for.
#include <cmath>
#include <cstdlib>
#include <cstring>
#include <limits>
#include <random>

#include "script/ScriptBench.h"

namespace quilm {
namespace {

using testing::ElementsAre;

TEST(Message, TellsTextTitleButtonsIconAndAnswer) {
  const Outcome outcome = RunText("answer no\npress cmdAsk\npress cmdTell\n");
  const auto messages = outcome.Of("message");
  ASSERT_EQ(messages.size(), 2U);
  EXPECT_EQ(messages[0], Json({{"event", "message"},
                               {"text", "Really?\r\nSure?"},
                               {"title", "Ask"},
                               {"buttons", "yes-no"},
                               {"icon", "question"},
                               {"answer", "no"}}));
  EXPECT_EQ(messages[1]["buttons"], "ok");
  EXPECT_EQ(messages[1]["icon"], "information");
  EXPECT_EQ(messages[1]["answer"], "ok");
  EXPECT_THAT(outcome.log, ElementsAre("no"));
}

TEST(Answer, SeveralAreTakenInTheirOrder) {
  EXPECT_THAT(RunText("answer yes\nanswer no\npress cmdAsk\npress cmdAsk\n").log, ElementsAre("yes", "no"));
}

TEST(File, TellsWhatWasAskedAndAnswered) {
  const Outcome outcome = RunText("file /a b/c.QLM\nfile cancel\npress cmdOpen\npress cmdSave\n");
  const auto files = outcome.Of("file");
  ASSERT_EQ(files.size(), 2U);
  EXPECT_EQ(files[0], Json({{"event", "file"},
                            {"kind", "open"},
                            {"title", "Get"},
                            {"filter", "Quilm files (*.QLM)|*.QLM"},
                            {"default", ""},
                            {"answer", "/a b/c.QLM"}}));
  EXPECT_EQ(files[1]["kind"], "save");
  EXPECT_EQ(files[1]["default"], "a.QLM");
  EXPECT_TRUE(files[1]["answer"].is_null());
  EXPECT_THAT(outcome.log, ElementsAre("/a b/c.QLM", "cancelled"));
}

TEST(File, AnAnswerWithAKindGoesToItsKindOfDialog) {
  const Outcome outcome =
      RunText("file open /a b/c.QLM\nfile save open\nfile ./open\npress cmdOpen\npress cmdSave\npress cmdOpen\n");
  EXPECT_THAT(outcome.log, ElementsAre("/a b/c.QLM", "open", "./open"));
}

TEST(Pages, TellWhichIsShownAndUnloaded) {
  const Outcome outcome = RunText("press cmdOther");
  EXPECT_EQ(outcome.One("unload")["page"], "frmDesign");
  EXPECT_EQ(outcome.Of("show").back()["page"], "frmPlotted");
}

TEST(Platform, BeepsAndOpensDocuments) {
  const Outcome outcome = RunText("press cmdBeep\npress cmdHelp\n");
  EXPECT_EQ(outcome.One("beep").size(), 1U);
  EXPECT_EQ(outcome.One("shell-open"), Json({{"event", "shell-open"}, {"path", "help.htm"}}));
}

TEST(Printer, TellsTheNumberOfSheets) {
  const Outcome outcome = RunText("printer ok\npress cmdPrint\nprinter cancel\npress cmdPrint\n");
  EXPECT_EQ(outcome.One("printed"), Json({{"event", "printed"}, {"sheets", 2}}));
  EXPECT_THAT(outcome.log, ElementsAre("printer", "no printer"));
}

TEST(Json, BytesThatAreNoUtf8AreReplaced) {
  EXPECT_EQ(JsonLine(Json({{"text", "a\xFFz"}})), "{\"text\":\"a\xEF\xBF\xBDz\"}");
  EXPECT_EQ(RunText("type txtValue \xC3\npage\n").One("page")["page"], "frmDesign");
}

TEST(Number, ReadsBackAsTheSame32Bits) {
  constexpr unsigned seed = 20240229;
  SCOPED_TRACE(seed);
  std::mt19937 random(seed);
  for (int i = 0; i < 20000; ++i) {
    const std::uint32_t bits = static_cast<std::uint32_t>(random());
    f32 value = 0;
    std::memcpy(&value, &bits, sizeof value);
    if (!std::isfinite(value)) continue;
    const f32 back = std::strtof(JsonLine(NumberJson(value)).c_str(), nullptr);
    ASSERT_EQ(std::memcmp(&back, &value, sizeof value), 0) << value;
  }
}

TEST(Number, IsAsShortAsItCanBe) {
  EXPECT_EQ(JsonLine(NumberJson(0.1F)), "0.1");
  EXPECT_EQ(JsonLine(NumberJson(3.1831e-9F)), "3.1831e-09");
  EXPECT_EQ(JsonLine(NumberJson(-50)), "-50.0");
}

TEST(Number, ThatIsNotFiniteIsNull) {
  EXPECT_EQ(JsonLine(NumberJson(std::numeric_limits<f32>::infinity())), "null");
  EXPECT_EQ(JsonLine(NumberJson(std::numeric_limits<f32>::quiet_NaN())), "null");
}

}  // namespace
}  // namespace quilm
