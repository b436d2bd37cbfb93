// The program is killed again and again while it saves a design, the last session and the configuration. QUILM_KILLS
// sets how often; tools/attack-writer does it a thousand times.
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <map>
#include <random>
#include <set>
#include <sstream>

#include "core/Configuration.h"
#include "files/SampleDesign.h"
#include "files/modWriteQuilmFile.h"
#include "shell/HeadlessPlatform.h"
#include "shell/Session.h"
#include "shell/modWriteConfig.h"

namespace quilm {
namespace {

namespace fs = std::filesystem;

constexpr const char* designFile = "design.QLM";

std::string Read(const fs::path& path) {
  std::ifstream in(path, std::ios::binary);
  std::ostringstream text;
  text << in.rdbuf();
  return text.str();
}

// A program whose design is one of two, a long one and a short one with other preferences.
struct Program {
  Program(const std::string& folder, bool longDesign) : platform(folder), session(platform, {}) {
    ReadConfig(session);
    session.record = longDesign ? DesignOfEveryType() : PlainDesign();
    session.record.Stages = std::max<i16>(session.record.Stages, 1);
    session.record.Qcap[1] = longDesign ? 123456.0F : 7;
    platform.clock = DateTime{2026, 1, 2, 3, 4, 5};
  }

  void SaveAll() {
    session.identity.DesignFileName = InProgramFolder(session, designFile);
    modWriteQuilmFile(session);
    WriteConfig(session);
    StoreLastSession(session);
  }

  HeadlessPlatform platform;
  Session session;
};

class SaveKilled : public testing::Test {
 protected:
  SaveKilled() {
    std::string pattern = (fs::temp_directory_path() / "quilm-kills-XXXXXX").string();
    folder = mkdtemp(pattern.data());
  }
  ~SaveKilled() override { fs::remove_all(folder); }

  // Saves over and over, the two designs in turn, until it is killed.
  pid_t StartSaving() const {
    const pid_t child = fork();
    if (child != 0) return child;
    Program longer(folder, true);
    Program shorter(folder, false);
    while (true) {
      longer.SaveAll();
      shorter.SaveAll();
    }
  }

  std::size_t Files() const {
    return static_cast<std::size_t>(std::distance(fs::directory_iterator(folder), fs::directory_iterator()));
  }

  std::string folder;
};

int KillsWanted() {
  const char* wanted = std::getenv("QUILM_KILLS");
  return wanted == nullptr ? 60 : std::atoi(wanted);
}

TEST_F(SaveKilled, NoFileIsTornAndNothingIsLeftInTheEnd) {
  const std::vector<const char*> names{designFile, configurationFile, lastSessionFile};
  std::map<std::string, std::set<std::string>> whole;
  for (const bool longDesign : {true, false}) {
    Program(folder, longDesign).SaveAll();
    for (const char* name : names) whole[name].insert(Read(folder + "/" + name));
  }
  for (const char* name : names) ASSERT_EQ(whole[name].size(), 2U) << name;

  std::mt19937 random(20260102);
  std::uniform_int_distribution<useconds_t> microseconds(0, 20000);
  int caught = 0;
  const int kills = KillsWanted();
  for (int round = 0; round < kills; ++round) {
    const pid_t writer = StartSaving();
    usleep(microseconds(random));
    kill(writer, SIGKILL);
    waitpid(writer, nullptr, 0);
    for (const char* name : names) {
      ASSERT_TRUE(whole[name].contains(Read(folder + "/" + name))) << name << " in round " << round;
    }
    if (Files() > names.size()) ++caught;
  }
  std::cout << kills << " kills, " << caught << " of them between temporary file and rename\n";
  EXPECT_GT(caught, 0) << "no kill came at the moment that this is about";

  Program(folder, true).SaveAll();
  EXPECT_EQ(Files(), names.size());
}

}  // namespace
}  // namespace quilm
