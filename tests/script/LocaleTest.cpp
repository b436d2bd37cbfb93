// What is printed and written under a locale of another country: numbers with a comma, and letters that grow and shrink
// otherwise.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cctype>
#include <clocale>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <sstream>
#include <string>

#include "core/Fault.h"
#include "core/Identity.h"
#include "desk/StartUp.h"
#include "pages/PageDirectory.h"
#include "script/ScriptRun.h"
#include "shell/PictureName.h"

namespace quilm {
namespace {

// Turkish while it stands, as the toolkit makes the program's on a Turkish desktop.
class Turkish {
 public:
  Turkish() {
    setenv("LOCPATH", QUILM_LOCALES, 1);
    if (std::setlocale(LC_ALL, "tr_TR.UTF-8") == nullptr) throw Fault("no Turkish locale in " QUILM_LOCALES);
  }
  ~Turkish() {
    std::setlocale(LC_ALL, "C");
    unsetenv("LOCPATH");
  }
  Turkish(const Turkish&) = delete;
  Turkish& operator=(const Turkish&) = delete;
};

std::string ContentOf(const std::filesystem::path& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

// What a script printed and wrote.
struct Left {
  std::string printed;
  std::map<std::string, std::string> files;
};

class Locale : public testing::Test {
 protected:
  Locale() : home_(std::filesystem::current_path()) {
    std::string name = (std::filesystem::temp_directory_path() / "quilm-test-XXXXXX").string();
    folder_ = mkdtemp(name.data());
  }
  ~Locale() override {
    std::filesystem::current_path(home_);
    std::filesystem::remove_all(folder_);
  }

  // In a folder of one name each time, as the names of files are printed too.
  Left Run(const std::string& script) {
    const std::filesystem::path work = folder_ / "work";
    std::filesystem::create_directories(work / "home");
    std::filesystem::create_directories(work / "out");
    std::filesystem::current_path(work);
    Left left;
    std::istringstream text("date 2026-01-01 12:00:00\n" + script);
    ScriptRun run(text, (work / "home").string(), AllPages(),
                  [&left](const Json& event) { left.printed += JsonLine(event) + '\n'; });
    run.Run(StartProgram);
    for (const auto& entry : std::filesystem::recursive_directory_iterator(work)) {
      if (entry.is_regular_file()) left.files[entry.path().string()] = ContentOf(entry.path());
    }
    std::filesystem::current_path(folder_);
    std::filesystem::remove_all(work);
    return left;
  }

  void ExpectTheSameInTurkish(const std::string& script) {
    const Left plain = Run(script);
    const Turkish turkish;
    const Left foreign = Run(script);
    EXPECT_EQ(foreign.printed, plain.printed);
    EXPECT_EQ(foreign.files, plain.files);
    EXPECT_FALSE(plain.printed.empty());
  }

 private:
  std::filesystem::path home_;
  std::filesystem::path folder_;
};

// That the locale is there, or nothing below could fail.
TEST_F(Locale, IsOneWithACommaAndWithoutASmallLatinI) {
  const Turkish turkish;
  char text[8];
  std::snprintf(text, sizeof text, "%.1f", 1.5);
  EXPECT_STREQ(text, "1,5");
  EXPECT_NE(std::tolower('I'), 'i');
}

TEST_F(Locale, EveryExamplePrintsAndWritesTheSame) {
  int examples = 0;
  for (const auto& entry : std::filesystem::directory_iterator(QUILM_EXAMPLES)) {
    SCOPED_TRACE(entry.path());
    ExpectTheSameInTurkish(ContentOf(entry.path()));
    ++examples;
  }
  EXPECT_GE(examples, 8);
}

// The figures that transforms tell of the response.
TEST_F(Locale, TransformsTellTheSame) {
  ExpectTheSameInTurkish(
      "press cmdDesignNew\npress optButterworth\npress optShuntInGeoSymm\ntype txtBandwidth 1M\n"
      "type txtCenterFrequency 10M\ntype txtInputTerm 50\npress Command13\npage\npress cmdAccept\npage\n");
}

TEST_F(Locale, NamesOfPicturesHaveTheirSmallLetters) {
  const Turkish turkish;
  EXPECT_EQ(PictureName(Identity{}, "Find Inductance"), "Quilm find inductance");
}

}  // namespace
}  // namespace quilm
