#include "core/TextFile.h"

#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <filesystem>
#include <fstream>
#include <sstream>

namespace quilm {
namespace {

namespace fs = std::filesystem;

class TextFile : public testing::Test {
 protected:
  TextFile() {
    std::string pattern = (fs::temp_directory_path() / "quilm-text-XXXXXX").string();
    folder = mkdtemp(pattern.data());
  }
  ~TextFile() override {
    fs::permissions(folder, fs::perms::owner_all);
    fs::remove_all(folder);
  }

  std::string Path(const std::string& name = "a.QLM") const { return (folder / name).string(); }

  static std::string Read(const fs::path& path) {
    std::ifstream in(path, std::ios::binary);
    std::ostringstream text;
    text << in.rdbuf();
    return text.str();
  }

  std::vector<std::string> Names() const {
    std::vector<std::string> names;
    for (const auto& entry : fs::directory_iterator(folder)) names.push_back(entry.path().filename().string());
    std::sort(names.begin(), names.end());
    return names;
  }

  // What `act` returns in a process of its own, so that limits, rights and kills end with it.
  template <class Act>
  static bool InAProcess(const Act& act) {
    const pid_t child = fork();
    if (child == 0) _exit(act() ? 0 : 1);
    int status = 0;
    waitpid(child, &status, 0);
    EXPECT_TRUE(WIFEXITED(status)) << "ended by signal " << WTERMSIG(status);
    return WIFEXITED(status) && WEXITSTATUS(status) == 0;
  }

  fs::path folder;
};

// As on a disk that is full beyond so many bytes.
bool WithFileSizeLimit(rlim_t bytes, const std::string& path, const std::string& text, OnFailure onFailure) {
  const rlimit limit{bytes, bytes};
  return setrlimit(RLIMIT_FSIZE, &limit) == 0 && WriteTextFile(path, text, onFailure);
}

constexpr rlim_t limitOfSize = 4096;
const std::string longText(100000, 'x');

TEST_F(TextFile, TheTextIsWrittenByteForByte) {
  const std::string text("one\r\ntwo\n\xB5\0 end", 15);
  EXPECT_TRUE(WriteTextFile(Path(), text));
  EXPECT_EQ(Read(Path()), text);
  EXPECT_EQ(Names(), std::vector<std::string>{"a.QLM"});
}

TEST_F(TextFile, AShorterTextReplacesALongerOne) {
  for (const OnFailure mode : {OnFailure::KeepOldFile, OnFailure::KeepWhatWasWritten}) {
    EXPECT_TRUE(WriteTextFile(Path(), longText, mode));
    EXPECT_TRUE(WriteTextFile(Path(), "short", mode));
    EXPECT_EQ(Read(Path()), "short");
  }
}

TEST_F(TextFile, AnEmptyTextMakesAnEmptyFile) {
  EXPECT_TRUE(WriteTextFile(Path(), "old"));
  EXPECT_TRUE(WriteTextFile(Path(), ""));
  EXPECT_EQ(Read(Path()), "");
}

TEST_F(TextFile, AFailingWriteLeavesTheOldFileAndNothingElse) {
  WriteTextFile(Path(), "old");
  EXPECT_FALSE(InAProcess([&] { return WithFileSizeLimit(limitOfSize, Path(), longText, OnFailure::KeepOldFile); }));
  EXPECT_EQ(Read(Path()), "old");
  EXPECT_EQ(Names(), std::vector<std::string>{"a.QLM"});
}

TEST_F(TextFile, AFailingWriteOfANewFileLeavesNone) {
  EXPECT_FALSE(InAProcess([&] { return WithFileSizeLimit(limitOfSize, Path(), longText, OnFailure::KeepOldFile); }));
  EXPECT_TRUE(Names().empty());
}

TEST_F(TextFile, WhatWasWrittenStaysWhereAskedFor) {
  WriteTextFile(Path(), "old");
  EXPECT_FALSE(
      InAProcess([&] { return WithFileSizeLimit(limitOfSize, Path(), longText, OnFailure::KeepWhatWasWritten); }));
  EXPECT_EQ(Read(Path()), longText.substr(0, limitOfSize));
}

TEST_F(TextFile, TheSignalOfTheSizeLimitIsAsBeforeAfterwards) {
  EXPECT_TRUE(InAProcess([&] {
    WithFileSizeLimit(limitOfSize, Path(), longText, OnFailure::KeepOldFile);
    return std::signal(SIGXFSZ, SIG_DFL) == SIG_DFL;
  }));
}

TEST_F(TextFile, AFullDiskFailsInBothModes) {
  ASSERT_TRUE(fs::exists("/dev/full"));
  EXPECT_FALSE(WriteTextFile("/dev/full", "text", OnFailure::KeepOldFile));
  EXPECT_FALSE(WriteTextFile("/dev/full", "text", OnFailure::KeepWhatWasWritten));
  EXPECT_TRUE(fs::is_character_file("/dev/full"));
}

TEST_F(TextFile, AFolderIsNotReplaced) {
  fs::create_directory(Path());
  EXPECT_FALSE(WriteTextFile(Path(), "text"));
  EXPECT_TRUE(fs::is_directory(Path()));
  EXPECT_FALSE(WriteTextFile(Path("no/such/folder.QLM"), "text"));
  EXPECT_FALSE(WriteTextFile("", "text"));
}

TEST_F(TextFile, APipeTakesTheText) {
  const std::string pipe = Path("pipe");
  ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
  const pid_t child = fork();
  if (child == 0) _exit(WriteTextFile(pipe, "text") ? 0 : 1);
  EXPECT_EQ(Read(pipe), "text");
  int status = 0;
  waitpid(child, &status, 0);
  EXPECT_EQ(status, 0);
  EXPECT_TRUE(fs::is_fifo(pipe));
}

TEST_F(TextFile, ALinkStaysAndItsTargetIsReplaced) {
  fs::create_directory(folder / "elsewhere");
  WriteTextFile(Path("elsewhere/target"), "old");
  fs::create_symlink("elsewhere/target", Path("link"));
  fs::create_symlink("link", Path("linkToLink"));
  EXPECT_TRUE(WriteTextFile(Path("linkToLink"), "new"));
  EXPECT_TRUE(fs::is_symlink(Path("link")) && fs::is_symlink(Path("linkToLink")));
  EXPECT_EQ(Read(Path("elsewhere/target")), "new");
}

TEST_F(TextFile, ALinkToNothingMakesItsTarget) {
  fs::create_symlink("target", Path("link"));
  EXPECT_TRUE(WriteTextFile(Path("link"), "new"));
  EXPECT_TRUE(fs::is_symlink(Path("link")));
  EXPECT_EQ(Read(Path("target")), "new");
}

TEST_F(TextFile, LinksInACircleFail) {
  fs::create_symlink("one", Path("two"));
  fs::create_symlink("two", Path("one"));
  EXPECT_FALSE(WriteTextFile(Path("one"), "text"));
  EXPECT_TRUE(fs::is_symlink(Path("one")) && fs::is_symlink(Path("two")));
}

TEST_F(TextFile, PermissionsStay) {
  WriteTextFile(Path(), "old");
  for (const mode_t mode : {0600U, 0640U, 0664U, 0755U}) {
    ASSERT_EQ(chmod(Path().c_str(), mode), 0);
    EXPECT_TRUE(WriteTextFile(Path(), "new"));
    struct stat now {};
    ASSERT_EQ(stat(Path().c_str(), &now), 0);
    EXPECT_EQ(now.st_mode & 07777U, mode);
  }
}

TEST_F(TextFile, ANewFileFollowsTheUsersMask) {
  const mode_t before = umask(027);
  EXPECT_TRUE(WriteTextFile(Path(), "new"));
  umask(before);
  struct stat now {};
  ASSERT_EQ(stat(Path().c_str(), &now), 0);
  EXPECT_EQ(now.st_mode & 07777U, mode_t{0640});
}

// The superuser may write everywhere, so these give up that right first.
bool AsAUser(const std::string& path) {
  constexpr uid_t nobody = 65534;
  if (geteuid() == 0 && (setegid(nobody) != 0 || seteuid(nobody) != 0)) return true;
  return WriteTextFile(path, "new");
}

TEST_F(TextFile, AProtectedFileIsNotReplaced) {
  WriteTextFile(Path(), "old");
  fs::permissions(Path(), fs::perms(0444));
  fs::permissions(folder, fs::perms::all);
  EXPECT_FALSE(InAProcess([&] { return AsAUser(Path()); }));
  EXPECT_EQ(Read(Path()), "old");
}

TEST_F(TextFile, AProtectedFolderKeepsItsFile) {
  WriteTextFile(Path(), "old");
  fs::permissions(Path(), fs::perms(0666));
  fs::permissions(folder, fs::perms(0555));
  EXPECT_FALSE(InAProcess([&] { return AsAUser(Path()); }));
  EXPECT_EQ(Read(Path()), "old");
  EXPECT_EQ(Names(), std::vector<std::string>{"a.QLM"});
}

TEST_F(TextFile, ALongNameLeavesRoomForTheTemporary) {
  const std::string longest(255, 'n');
  EXPECT_TRUE(WriteTextFile(Path(longest), "text"));
  EXPECT_EQ(Read(Path(longest)), "text");
}

TEST_F(TextFile, ATemporaryThatSomebodyLeftIsLeftAlone) {
  const std::string left = ".quilm-" + std::to_string(getpid()) + "-";
  for (int i = 0; i < 200; ++i) std::ofstream(Path(left + std::to_string(i) + ".tmp")) << "left";
  EXPECT_TRUE(WriteTextFile(Path(), "text"));
  EXPECT_EQ(Read(Path()), "text");
  EXPECT_EQ(Names().size(), 201U);
}

// Each text is one letter all through, so that a torn one shows.
bool IsWhole(const std::string& text) {
  return text.size() == longText.size() && text.find_first_not_of(text[0]) == std::string::npos;
}

void WriteForEver(const std::string& path, char letter) {
  while (true) WriteTextFile(path, std::string(longText.size(), letter));
}

TEST_F(TextFile, OfTwoWritersNoneIsTorn) {
  WriteTextFile(Path(), longText);
  std::vector<pid_t> writers;
  for (const char letter : {'a', 'b'}) {
    writers.push_back(fork());
    if (writers.back() == 0) WriteForEver(Path(), letter);
  }
  for (int i = 0; i < 300; ++i) EXPECT_TRUE(IsWhole(Read(Path()))) << i;
  for (const pid_t writer : writers) {
    kill(writer, SIGKILL);
    waitpid(writer, nullptr, 0);
  }
  EXPECT_TRUE(IsWhole(Read(Path())));
}

TEST_F(TextFile, AKillWhileWritingTearsNothing) {
  WriteTextFile(Path(), longText);
  for (int round = 0; round < 50; ++round) {
    const pid_t writer = fork();
    if (writer == 0) WriteForEver(Path(), static_cast<char>('a' + round % 26));
    usleep(static_cast<useconds_t>(500 + 100 * round));
    kill(writer, SIGKILL);
    waitpid(writer, nullptr, 0);
    ASSERT_TRUE(IsWhole(Read(Path()))) << round;
  }
}

}  // namespace
}  // namespace quilm
