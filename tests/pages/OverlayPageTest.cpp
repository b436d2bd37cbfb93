// Overlays: saved, laid over a plot, deleted and hidden by their two lists.
#include <algorithm>

#include "core/Responses.h"
#include "desk/StartUp.h"
#include "pages/PageBench.h"
#include "pages/PageDirectory.h"

namespace quilm {
namespace {

const char* const extensions[] = {".S21", ".S11", ".PHS", ".DEL", ".SWR", ".ZIN", ".ZAN"};

class Overlays : public PageBench {
 protected:
  Overlays() : PageBench(AllPages()) {
    StartProgram(session);
    MakeLowpass();
  }

  void On(const std::string& button, const std::function<void()>& act) {
    platform.modalActs.emplace_back([act](Page&) { act(); });
    Press(button);
  }
  void Save(int slot) {
    On("cmdSaveOverlay", [this, slot] { Press("cmdSave" + std::to_string(slot)); });
  }
  void Fetch(int slot) {
    On("cmdGetOverlay", [this, slot] { Press("cmdGet" + std::to_string(slot)); });
  }
  std::size_t Traces() {
    const auto& operations = session.plot.picture.Operations();
    return static_cast<std::size_t>(std::count_if(operations.begin(), operations.end(), [](const PictureOp& operation) {
      const auto* line = std::get_if<PolylineOp>(&operation);
      return line != nullptr && line->points.size() > 100;
    }));
  }
  void Remove(const std::string& name) { std::filesystem::remove(Path(name)); }
};

TEST_F(Overlays, SaveWritesSevenFilesAndReturns) {
  Save(3);
  EXPECT_EQ(Top().Id(), PageId::Plotted);
  for (const char* extension : extensions) EXPECT_TRUE(Exists(std::string("Data3") + extension)) << extension;
  const std::string text = File("Data3.S21");
  EXPECT_EQ(std::count(text.begin(), text.end(), '\n'), 1001);
  EXPECT_EQ(text.substr(0, 5), "1000 ");
  EXPECT_NE(text.find(" \r\n"), std::string::npos);
  EXPECT_TRUE(platform.messages.empty());
}

TEST_F(Overlays, EachFileHoldsItsResponse) {
  Save(1);
  const Responses& r = session.responses;
  const ResponseArray* arrays[] = {&r.RespTrans, &r.RespReturn, &r.RespAngle,   &r.RespDelay,
                                   &r.RespVSWR,  &r.RespZin,    &r.RespZinAngle};
  for (int i = 0; i < 7; ++i) {
    std::istringstream in(File(std::string("Data1") + extensions[i]));
    f64 frequency = 0;
    f64 value = 0;
    for (int point = 0; point <= 700; ++point) in >> frequency >> value;
    EXPECT_NEAR(frequency, r.RespFreq[700], 1e-6 * static_cast<f64>(r.RespFreq[700])) << extensions[i];
    const f64 expected = (*arrays[i])[700];
    EXPECT_NEAR(value, expected, 1e-6 * std::abs(expected)) << extensions[i];
  }
}

TEST_F(Overlays, TheListsTellWhichSlotsAreInUse) {
  Save(3);
  On("cmdSaveOverlay", [this] {
    EXPECT_NE(Get<Button>("cmdSave3").caption, Get<Button>("cmdSave4").caption);
    EXPECT_EQ(Get<Button>("cmdSave3").caption, "Save 3 (in use)");
    EXPECT_EQ(Get<Button>("cmdSave4").caption, "Save 4 (empty)");
    Press("cmdExit");
  });
  On("cmdGetOverlay", [this] {
    for (int slot = 1; slot <= 10; ++slot) {
      EXPECT_EQ(Get<Button>("cmdGet" + std::to_string(slot)).Shown(), slot == 3);
      EXPECT_EQ(Get<Button>("cmdDel" + std::to_string(slot)).Shown(), slot == 3);
    }
    Press("cmdExit");
  });
}

TEST_F(Overlays, GetDrawsOverThePresentPlotOnAllTwelve) {
  Save(1);
  const std::pair<const char*, std::size_t> plots[] = {{"cmd1", 1}, {"cmd2", 2},  {"cmd3", 2},  {"cmd4", 2},
                                                       {"cmd5", 1}, {"cmd6", 2},  {"cmd7", 1},  {"cmd8", 2},
                                                       {"cmd9", 2}, {"cmd10", 2}, {"cmd11", 1}, {"cmd12", 1}};
  for (const auto& [button, traces] : plots) {
    Press(button);
    const std::size_t before = Traces();
    Fetch(1);
    EXPECT_EQ(Traces(), before + traces) << button;
    EXPECT_EQ(session.plot.overlays.OverlayShown, 1);
    EXPECT_EQ(session.plot.overlays.fetched, std::vector<int>{1});
  }
}

TEST_F(Overlays, ThoseFetchedAreRememberedUntilThePlotIsDrawnAnew) {
  Save(1);
  Save(10);
  Fetch(10);
  Fetch(1);
  Fetch(10);
  EXPECT_EQ(session.plot.overlays.fetched, (std::vector<int>{10, 1}));
  Press("cmd2");
  EXPECT_TRUE(session.plot.overlays.fetched.empty());
  EXPECT_EQ(session.plot.overlays.OverlayShown, 1);
}

TEST_F(Overlays, HideDrawsThePlotWithoutThem) {
  const Picture plain = session.plot.picture;
  Save(1);
  Fetch(1);
  EXPECT_FALSE(session.plot.picture == plain);
  On("cmdGetOverlay", [this] { Press("cmdHide"); });
  EXPECT_EQ(session.plot.picture, plain);
  EXPECT_EQ(session.plot.overlays.OverlayShown, 0);
  EXPECT_TRUE(Exists("Data1.S21"));
}

TEST_F(Overlays, SavingIntoAUsedSlotReplacesItSilently) {
  Save(1);
  session.record.NrIntervals = 10;
  Press("cmd1");
  Save(1);
  const std::string text = File("Data1.ZAN");
  EXPECT_EQ(std::count(text.begin(), text.end(), '\n'), 11);
  EXPECT_TRUE(platform.messages.empty());
}

TEST_F(Overlays, AMissingFileIsToldAndNothingIsDrawn) {
  Save(2);
  Remove("Data2.S11");
  Press("cmd2");
  const Picture plain = session.plot.picture;
  Fetch(2);
  ASSERT_EQ(platform.messages.size(), 1U);
  EXPECT_EQ(platform.messages[0].text, "Files enabling 'Get overlay 2' have not been written.");
  EXPECT_EQ(platform.messages[0].title, "Overlay 262");
  EXPECT_EQ(session.plot.picture, plain);
  EXPECT_TRUE(session.plot.overlays.fetched.empty());
  Press("cmd1");
  Fetch(2);  // the transmission alone needs no more
  EXPECT_EQ(platform.messages.size(), 1U);
}

TEST_F(Overlays, ADamagedLineIsLeftOutWithANote) {
  Save(1);
  std::ofstream(Path("Data1.S21"), std::ios::app) << "1e6 \r\nnothing\r\n";
  Fetch(1);
  EXPECT_EQ(session.note, "Overlay 1: 2 lines that cannot be read are left out");
  EXPECT_EQ(Traces(), 2U);
}

TEST_F(Overlays, DeleteTakesTheFilesAndTheButtonsAway) {
  Save(1);
  Save(2);
  On("cmdGetOverlay", [this] {
    Press("cmdDel1");
    EXPECT_EQ(Top().Id(), PageId::OverlayGetList);
    EXPECT_FALSE(Get<Button>("cmdGet1").Shown());
    EXPECT_FALSE(Get<Button>("cmdDel1").Shown());
    EXPECT_TRUE(Get<Button>("cmdGet2").Shown());
  });
  for (const char* extension : extensions) {
    EXPECT_FALSE(Exists(std::string("Data1") + extension)) << extension;
    EXPECT_TRUE(Exists(std::string("Data2") + extension)) << extension;
  }
  EXPECT_TRUE(platform.messages.empty());
}

TEST_F(Overlays, DeletingWithAMissingFileSaysSoAndTakesTheRestAway) {
  Save(7);
  Remove("Data7.PHS");
  On("cmdGetOverlay", [this] {
    Press("cmdDel7");
    EXPECT_EQ(Top().Id(), PageId::OverlayGetList);
  });
  EXPECT_EQ(MessageTexts(), std::vector<std::string>{"One or more Data7 files were missing"});
  for (const char* extension : extensions) EXPECT_FALSE(Exists(std::string("Data7") + extension)) << extension;
}

// A folder stands where the second file would go.
TEST_F(Overlays, AFileErrorEndsTheSaveWithoutAMessage) {
  std::filesystem::create_directory(Path("Data4.S11"));
  Save(4);
  EXPECT_TRUE(Exists("Data4.S21"));
  EXPECT_FALSE(Exists("Data4.PHS"));
  EXPECT_TRUE(platform.messages.empty());
  EXPECT_EQ(Top().Id(), PageId::Plotted);
  EXPECT_NE(session.note.find("Data4.S11 was not written"), std::string::npos);
}

// Saved over a linear sweep of 500 kHz to 2.5 MHz, drawn under the logarithmic one: 1 MHz is three quarters of the way.
TEST_F(Overlays, AnotherSweepLandsOnTheRightFrequencies) {
  DesignRecord& record = session.record;
  record.SweepMode = 1;
  record.Fstart = 5e5F;
  record.Fstop = 2.5e6F;
  record.NrIntervals = 200;
  Press("cmd1");
  Save(1);
  record.SweepMode = 2;
  record.Fstart = 1e3F;
  record.Fstop = 1e7F;
  Press("cmd1");
  Fetch(1);
  const auto& line = std::get<PolylineOp>(session.plot.picture.Operations().back());
  ASSERT_EQ(line.points.size(), 202U);
  EXPECT_NEAR(line.points[51].x, 8750, 1);   // point 50, 1 MHz
  EXPECT_NEAR(line.points[51].y, 1301, 15);  // 3.01 dB of 60, and what the losses add
}

}  // namespace
}  // namespace quilm
