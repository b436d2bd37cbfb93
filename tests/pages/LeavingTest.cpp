// The ways out that the user does not choose, and the help pages.
#include "desk/Leaving.h"

#include "desk/StartUp.h"
#include "files/modWriteQuilmFile.h"
#include "pages/PageBench.h"
#include "pages/PageDirectory.h"
#include "shell/modWriteConfig.h"

namespace quilm {
namespace {

class LeavingTest : public PageBench {
 protected:
  LeavingTest() : PageBench(AllPages()) { StartProgram(session); }

  // The system's wish, as it comes within a handler or without.
  void EndBySystem() {
    RunHandler(session, [this] { LeaveBySystem(session); });
  }
};

// C1 = 1 / (2 Pi 1e6 50) of the lowpass, as a file holds it.
constexpr const char* capacitor = " 4  0  0  3.183099E-09  0 \r\n";

TEST_F(LeavingTest, TheSystemsEndKeepsTheDesignAndThePreferences) {
  MakeLowpass();
  EndBySystem();
  EXPECT_TRUE(session.ended);
  EXPECT_TRUE(Exists(configurationFile));
  EXPECT_NE(File(lastSessionFile).find(capacitor), std::string::npos);
}

TEST_F(LeavingTest, APreferenceFileThatCannotBeWrittenCostsNoDesign) {
  MakeLowpass();
  std::filesystem::remove(Path(configurationFile));
  std::filesystem::create_directory(Path(configurationFile));
  EndBySystem();
  EXPECT_TRUE(session.ended);
  EXPECT_NE(File(lastSessionFile).find(capacitor), std::string::npos);
}

// The reader clears first, and its message stands when there is no design any more.
TEST_F(LeavingTest, TheMessageOfAFailedReadCostsNoDesign) {
  MakeLowpass();
  std::ofstream(Path("bad.QLM"), std::ios::binary) << "header\r\ntitle\r\ndate\r\n";
  platform.files = {Path("bad.QLM")};
  platform.onMessage = [this](const MessageShown&) {
    platform.onMessage = nullptr;
    EndBySystem();
  };
  Press("cmdGet");
  EXPECT_TRUE(session.ended);
  EXPECT_NE(File(lastSessionFile).find(capacitor), std::string::npos);
}

TEST_F(LeavingTest, AStartThatWasOnlyLookedAtKeepsTheFormerSession) {
  std::ofstream(Path(lastSessionFile), std::ios::binary) << "former";
  EndBySystem();
  EXPECT_TRUE(session.ended);
  EXPECT_EQ(File(lastSessionFile), "former");
  EXPECT_FALSE(Exists(configurationFile));
}

TEST_F(LeavingTest, HelpTellsWhereThePageLies) {
  Press("cmdDesignNew");
  Press("cmdHelp");
  EXPECT_EQ(session.note, "Help: " + platform.HelpFolder() + "/design.htm");
  EXPECT_TRUE(platform.messages.empty());
}

TEST_F(LeavingTest, WithoutABrowserAMessageTellsWhereThePageLies) {
  platform.hasBrowser = false;
  Press("cmdGoTo");
  ASSERT_EQ(platform.messages.size(), 1U);
  EXPECT_NE(platform.messages[0].text.find(platform.HelpFolder() + "/updates.htm"), std::string::npos);
  Press("cmdDesignNew");
  Press("cmdHelp");
  ASSERT_EQ(platform.messages.size(), 2U);
  EXPECT_NE(platform.messages[1].text.find(platform.HelpFolder() + "/design.htm"), std::string::npos);
}

}  // namespace
}  // namespace quilm
