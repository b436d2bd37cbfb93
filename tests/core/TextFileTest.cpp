#include "core/TextFile.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sched.h>
#include <sys/file.h>
#include <sys/mount.h>
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
  return setrlimit(RLIMIT_FSIZE, &limit) == 0 && static_cast<bool>(WriteTextFile(path, text, onFailure));
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
  EXPECT_EQ(Names(), std::vector<std::string>{"a.QLM"});
}

// An empty file in the place of the old one would keep nothing of either.
TEST_F(TextFile, AWriteThatDoesNotBeginLeavesTheOldFile) {
  WriteTextFile(Path(), "old");
  EXPECT_FALSE(InAProcess([&] { return WithFileSizeLimit(0, Path(), longText, OnFailure::KeepWhatWasWritten); }));
  EXPECT_EQ(Read(Path()), "old");
  EXPECT_EQ(Names(), std::vector<std::string>{"a.QLM"});
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

// A file system of its own with room for so many bytes, in name spaces that end with the process. False where that is
// not allowed.
bool MountSmallDisk(const std::string& folder, int bytes) {
  const bool apart = geteuid() == 0 ? unshare(CLONE_NEWNS) == 0 : unshare(CLONE_NEWUSER | CLONE_NEWNS) == 0;
  const std::string size = "size=" + std::to_string(bytes);
  return apart && mount("none", "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0 &&
         mount("tmpfs", folder.c_str(), "tmpfs", 0, size.c_str()) == 0;
}

// Where nothing can be mounted, a limit on the size of files stands in for the end of the disk.
TEST_F(TextFile, OnAFullFileSystemTheOldFileStaysAndTheReasonIsTold) {
  EXPECT_TRUE(InAProcess([&] {
    const bool mounted = MountSmallDisk(folder.string(), 64 * 1024);
    const rlimit limit{limitOfSize, limitOfSize};
    if (!mounted && setrlimit(RLIMIT_FSIZE, &limit) != 0) return false;
    const bool first = static_cast<bool>(WriteTextFile(Path(), "old"));
    const WriteOutcome second = WriteTextFile(Path(), longText);
    const bool told =
        second.failure == (mounted ? "the disk is full" : "the file would grow beyond the limit set for this user");
    const bool kept = Read(Path()) == "old" && Names().size() == 1;
    // There is room again for what fits.
    return first && told && kept && WriteTextFile(Path(), "new");
  }));
}

TEST_F(TextFile, TheFailureSaysWhatIsInTheWay) {
  EXPECT_EQ(WriteTextFile("/dev/full", "text").failure, "the disk is full");
  EXPECT_EQ(WriteTextFile(Path("no/such.QLM"), "text").failure, "there is no such folder");
  fs::create_directory(Path());
  EXPECT_EQ(WriteTextFile(Path(), "text").failure, "it is a folder");
  EXPECT_EQ(WriteTextFile(Path("b.QLM"), "text").failure, "");
  EXPECT_TRUE(InAProcess([&] {
    const rlimit limit{limitOfSize, limitOfSize};
    setrlimit(RLIMIT_FSIZE, &limit);
    return WriteTextFile(Path("c.QLM"), longText).failure == "the file would grow beyond the limit set for this user";
  }));
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
  return static_cast<bool>(WriteTextFile(path, "new"));
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

TEST_F(TextFile, ProtectionOfTheFileAndOfItsFolderAreToldApart) {
  WriteTextFile(Path(), "old");
  WriteTextFile(Path("b.QLM"), "old");
  fs::permissions(Path(), fs::perms(0666));
  fs::permissions(Path("b.QLM"), fs::perms(0444));
  fs::permissions(folder, fs::perms(0555));
  EXPECT_TRUE(InAProcess([&] {
    AsAUser(Path());
    return WriteTextFile(Path(), "new").failure == "its folder takes no new files" &&
           WriteTextFile(Path("b.QLM"), "new").failure == "it is protected";
  }));
}

TEST_F(TextFile, ALongNameLeavesRoomForTheTemporary) {
  const std::string longest(255, 'n');
  EXPECT_TRUE(WriteTextFile(Path(longest), "text"));
  EXPECT_EQ(Read(Path(longest)), "text");
}

// The number of a process that has ended.
pid_t DeadProcess() {
  const pid_t child = fork();
  if (child == 0) _exit(0);
  waitpid(child, nullptr, 0);
  return child;
}

std::string TemporaryOf(pid_t process, int count) {
  return ".quilm-" + std::to_string(process) + "-" + std::to_string(count) + ".tmp";
}

TEST_F(TextFile, TheTemporariesOfKilledWritersAreTakenAwayByTheNextWrite) {
  const pid_t dead = DeadProcess();
  for (const int count : {1, 2, 77}) std::ofstream(Path(TemporaryOf(dead, count))) << "half";
  EXPECT_TRUE(WriteTextFile(Path(), "text"));
  EXPECT_EQ(Names(), std::vector<std::string>{"a.QLM"});
}

TEST_F(TextFile, TheTemporariesOfOtherFoldersStay) {
  fs::create_directory(folder / "other");
  const std::string stale = "other/" + TemporaryOf(DeadProcess(), 1);
  std::ofstream(Path(stale)) << "half";
  EXPECT_TRUE(WriteTextFile(Path(), "text"));
  EXPECT_TRUE(fs::exists(Path(stale)));
}

// Its own number comes again too: a name that stands there is passed over.
TEST_F(TextFile, TheTemporariesOfLivingProcessesStay) {
  for (int i = 0; i < 200; ++i) std::ofstream(Path(TemporaryOf(getpid(), i))) << "left";
  std::ofstream(Path(TemporaryOf(getppid(), 1))) << "left";
  EXPECT_TRUE(WriteTextFile(Path(), "text"));
  EXPECT_EQ(Read(Path()), "text");
  EXPECT_EQ(Names().size(), 202U);
}

// A writer on another machine of the same network folder has a number that nobody has here.
TEST_F(TextFile, ATemporaryThatItsWriterHoldsStays) {
  const std::string held = Path(TemporaryOf(DeadProcess(), 1));
  const int fd = open(held.c_str(), O_WRONLY | O_CREAT, 0600);
  ASSERT_EQ(flock(fd, LOCK_EX | LOCK_NB), 0);
  EXPECT_TRUE(WriteTextFile(Path(), "text"));
  EXPECT_TRUE(fs::exists(held));
  close(fd);
  EXPECT_TRUE(WriteTextFile(Path(), "text"));
  EXPECT_FALSE(fs::exists(held));
}

// The writer holds the lock up to the rename: seen from a process that catches it between two writes of its long text.
TEST_F(TextFile, AWriterHoldsItsTemporaryWhileItWrites) {
  const pid_t writer = fork();
  if (writer == 0) {
    while (true) WriteTextFile(Path(), longText);
  }
  int seen = 0;
  int free = 0;
  for (int i = 0; i < 100000 && seen < 20; ++i) {
    for (const std::string& name : Names()) {
      const int fd = name == "a.QLM" ? -1 : open(Path(name).c_str(), O_RDONLY);
      if (fd < 0) continue;
      const bool locked = flock(fd, LOCK_EX | LOCK_NB) != 0;
      // Free in the moment after the rename as well, which has taken the name away, and in the one before it is locked,
      // when nothing is written yet.
      if (!locked && fs::exists(Path(name)) && fs::file_size(Path(name)) > 0) ++free;
      ++seen;
      close(fd);
    }
  }
  kill(writer, SIGKILL);
  waitpid(writer, nullptr, 0);
  EXPECT_GT(seen, 0);
  EXPECT_EQ(free, 0);
}

TEST_F(TextFile, OnlyItsOwnTemporariesAreTakenAway) {
  const std::string dead = std::to_string(DeadProcess());
  std::vector<std::string> names{".quilm-.tmp",
                                 ".quilm-x-1.tmp",
                                 ".quilm-" + dead + "-notes.tmp",
                                 ".quilm-" + dead + ".tmp",
                                 "quilm-" + dead + "-1.tmp",
                                 ".quilm-" + dead + "-1.bak"};
  for (const std::string& name : names) std::ofstream(Path(name)) << "mine";
  fs::create_directory(Path(".quilm-" + dead + "-2.tmp"));
  fs::create_symlink("a.QLM", Path(".quilm-" + dead + "-3.tmp"));
  ASSERT_EQ(mkfifo(Path(".quilm-" + dead + "-4.tmp").c_str(), 0600), 0);
  EXPECT_TRUE(WriteTextFile(Path(), "text"));
  EXPECT_EQ(Names().size(), names.size() + 4);
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

TEST_F(TextFile, AFileIsOpenedToBeReadThroughLinksToo) {
  ASSERT_TRUE(WriteTextFile(Path(), "text"));
  fs::create_symlink(Path(), Path("link"));
  for (const char* name : {"a.QLM", "link"}) {
    std::ifstream in = OpenTextFile(Path(name));
    ASSERT_TRUE(in) << name;
    EXPECT_EQ(in.get(), 't');
  }
}

// A pipe that nobody writes to would be waited for, a device may never end.
TEST_F(TextFile, WhatIsNoFileCannotBeOpenedToBeRead) {
  ASSERT_EQ(mkfifo(Path("pipe").c_str(), 0600), 0);
  fs::create_symlink(Path("loop"), Path("loop"));
  fs::create_symlink("/dev/zero", Path("device"));
  for (const std::string& path : {Path("none"), Path("pipe"), Path("loop"), Path("device"), folder.string(),
                                  std::string("/dev/zero"), std::string()}) {
    EXPECT_FALSE(OpenTextFile(path)) << path;
  }
}

}  // namespace
}  // namespace quilm
