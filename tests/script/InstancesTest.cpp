// Two instances of the program start and close over and over in the same folder, each with a design and preferences of
// its own. QUILM_STARTS sets how often in all; tools/attack-writer does it ten thousand times.
#include <gtest/gtest.h>
#include <sys/wait.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <future>
#include <iostream>
#include <iterator>
#include <nlohmann/json.hpp>
#include <sstream>

namespace {

using nlohmann::json;
namespace fs = std::filesystem;

std::string ContentOf(const fs::path& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

// What tells one instance from the other: a short design and a long one, so that halves of both would show.
struct Preferences {
  std::string title;
  int order;
  std::string capacitorQ;
  int lineWidth;
};

const Preferences ofInstance[] = {{"short", 3, "1234", 1}, {"long", 21, "56789", 6}};

int StartsWanted() {
  const char* wanted = std::getenv("QUILM_STARTS");
  return wanted == nullptr ? 60 : std::atoi(wanted);
}

class Instances : public testing::Test {
 protected:
  Instances() {
    std::string name = (fs::temp_directory_path() / "quilm-instances-XXXXXX").string();
    folder = mkdtemp(name.data());
  }
  ~Instances() override { fs::remove_all(folder); }

  // Runs a script in the shared folder and gives what it printed; a failing run fails the test.
  json Run(const std::string& name, const std::string& script) const {
    const fs::path in = folder / (name + ".qsc");
    const fs::path out = folder / (name + ".out");
    std::ofstream(in) << script;
    const std::string command = std::string("'" QUILM_SCRIPT "' --folder '") + (folder / "shared").string() + "' '" +
                                in.string() + "' >'" + out.string() + "' 2>&1";
    const int status = std::system(command.c_str());
    EXPECT_EQ(status, 0) << ContentOf(out);
    json events = json::array();
    std::istringstream lines(ContentOf(out));
    for (std::string line; std::getline(lines, line);) events.push_back(json::parse(line));
    return events;
  }

  // A first session leaves the design of an instance as the last session, and its preferences, and keeps the design.
  void Prepare(int instance) const {
    const Preferences& own = ofInstance[instance];
    Run("prepare",
        "press cmdDesignNew\npress optChebycheff\npress optCapInLowpass\ntype txtBandwidth 1M\n"
        "type txtPassbandRipple .1\nspin UpDown1 " +
            (own.order > 3 ? "up " + std::to_string(own.order - 3) : std::string("up 1\nspin UpDown1 down 1")) +
            "\npress cmdTitle\ntype txtTitle " + own.title + "\npress cmdOk\npress cmdAnalysis\ntype txtQcapacitor " +
            own.capacitorQ + "\nfile save " + Design(instance) + "\npress cmdSave\nclose\n");
  }

  std::string Design(int instance) const { return (folder / (ofInstance[instance].title + ".QLM")).string(); }

  // Starts, continues the last session, whose ever that is by now, reads the design of this instance and closes.
  void StartAndClose(int instance) const {
    const Preferences& own = ofInstance[instance];
    const json events =
        Run(own.title, "record Qcap\npress cmdLastSession\nrecord CircuitTitle Order Stages stages Qcap\nfile open " +
                           Design(instance) + "\npress cmdGet\nclose\n");
    json configured;
    json session;
    for (const json& event : events) {
      EXPECT_NE(event["event"], "message") << event;
      EXPECT_NE(event["event"], "beep");
      if (event["event"] != "record") continue;
      (configured.is_null() ? configured : session) = event;
    }
    EXPECT_EQ(events.back(), json({{"event", "exit"}}));
    bool whole = false;
    for (const Preferences& other : ofInstance) {
      whole = whole || (session["record"]["CircuitTitle"] == other.title && session["record"]["Order"] == other.order &&
                        session["stages"].size() == static_cast<std::size_t>(other.order) &&
                        session["record"]["Qcap"][0] == std::stod(other.capacitorQ));
    }
    EXPECT_TRUE(whole) << session;
    const json& q = configured["record"]["Qcap"][0];
    EXPECT_TRUE(q == 1234.0 || q == 56789.0) << configured;
  }

  fs::path folder;
};

TEST_F(Instances, OfTwoInOneFolderNoneReadsATornFileOrLeavesOne) {
  for (const int instance : {0, 1}) Prepare(instance);
  ASSERT_FALSE(HasFailure());
  const int starts = StartsWanted();
  const auto half = [&](int instance) {
    for (int start = 0; start < starts / 2 && !HasFailure(); ++start) StartAndClose(instance);
  };
  auto other = std::async(std::launch::async, half, 1);
  half(0);
  other.get();
  std::cout << starts << " starts of two instances\n";
  std::vector<std::string> names;
  for (const auto& file : fs::directory_iterator(folder / "shared")) names.push_back(file.path().filename().string());
  EXPECT_EQ(names.size(), 2U) << testing::PrintToString(names);
}

}  // namespace
