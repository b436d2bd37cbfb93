#include "core/TextFile.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <charconv>
#include <csignal>
#include <filesystem>
#include <system_error>
#include <utility>

namespace quilm {

namespace {

namespace fs = std::filesystem;

constexpr mode_t forAllByTheMask = 0666;
constexpr mode_t permissionBits = 07777;

// A file beyond the user's limit is a failed write like any other: unignored, its signal would end the program.
class IgnoreFileSizeSignal {
 public:
  IgnoreFileSizeSignal() {
    struct sigaction ignore {};
    ignore.sa_handler = SIG_IGN;
    sigaction(SIGXFSZ, &ignore, &former_);
  }
  ~IgnoreFileSizeSignal() { sigaction(SIGXFSZ, &former_, nullptr); }
  IgnoreFileSizeSignal(const IgnoreFileSizeSignal&) = delete;
  IgnoreFileSizeSignal& operator=(const IgnoreFileSizeSignal&) = delete;

 private:
  struct sigaction former_ {};
};

// An open file of the system, closed at the end.
class Descriptor {
 public:
  explicit Descriptor(int fd) : fd_(fd) {}
  ~Descriptor() { Close(); }
  Descriptor(const Descriptor&) = delete;
  Descriptor& operator=(const Descriptor&) = delete;

  bool IsOpen() const { return fd_ >= 0; }
  int Get() const { return fd_; }

  // Takes the lock that the writer of a temporary file holds. A file system without locks answers EOPNOTSUPP or the
  // like, one where another process has it EWOULDBLOCK.
  bool Lock() const { return flock(fd_, LOCK_EX | LOCK_NB) == 0; }

  // The number of bytes that it got to.
  std::size_t Write(std::string_view text) const {
    std::size_t done = 0;
    while (done < text.size()) {
      const ssize_t written = write(fd_, text.data() + done, text.size() - done);
      if (written < 0 && errno == EINTR) continue;
      if (written <= 0) break;
      done += static_cast<std::size_t>(written);
    }
    return done;
  }

  // Some file systems tell only at a close that they could not store all of it. A second descriptor is closed for
  // that, so that the file keeps its lock.
  bool Flush() const { return fsync(fd_) == 0 && close(dup(fd_)) == 0; }

  int Release() { return std::exchange(fd_, -1); }

  bool Close() {
    const int fd = Release();
    return fd < 0 || close(fd) == 0;
  }

 private:
  int fd_;
};

int Open(const fs::path& path, int flags) { return open(path.c_str(), flags | O_CLOEXEC, forAllByTheMask); }

std::string InWords(int error) {
  switch (error) {
    case ENOSPC:
    case EDQUOT:
      return "the disk is full";
    case EFBIG:
      return "the file would grow beyond the limit set for this user";
    case EACCES:
    case EPERM:
      return "it is protected";
    case EROFS:
      return "the disk is protected";
    case ENOENT:
    case ENOTDIR:
      return "there is no such folder";
    case EISDIR:
      return "it is a folder";
    default:
      return std::generic_category().message(error);
  }
}

WriteOutcome Failed(int error) { return {InWords(error)}; }

WriteOutcome WriteStraight(const fs::path& path, std::string_view text) {
  Descriptor file(Open(path, O_WRONLY | O_CREAT | O_TRUNC));
  return file.IsOpen() && file.Write(text) == text.size() && file.Close() ? WriteOutcome{} : Failed(errno);
}

// Where a path leads after all symbolic links; the last of them may lead to a file that is not there yet.
fs::path BehindLinks(fs::path path) {
  constexpr int mostLinks = 40;  // as the system counts before it takes them for a loop
  std::error_code failed;
  for (int link = 0; link < mostLinks && fs::is_symlink(path, failed); ++link) {
    path = path.parent_path() / fs::read_symlink(path, failed);
  }
  return path;
}

// Gives the new file the permissions of the old one. The owner can be given by the superuser alone; to any other user
// the file becomes his own, as with every editor that replaces files.
bool TakeOver(const struct stat& old, int fd) {
  struct stat made {};
  if (fstat(fd, &made) != 0) return false;
  const bool sameOwner = made.st_uid == old.st_uid && made.st_gid == old.st_gid;
  if (!sameOwner && fchown(fd, old.st_uid, old.st_gid) != 0 && errno != EPERM) return false;
  return (made.st_mode & permissionBits) == (old.st_mode & permissionBits) ||
         fchmod(fd, old.st_mode & permissionBits) == 0;
}

constexpr std::string_view temporaryBegin = ".quilm-";
constexpr std::string_view temporaryEnd = ".tmp";

std::string TemporaryName(unsigned count) {
  return std::string(temporaryBegin) + std::to_string(getpid()) + "-" + std::to_string(count) +
         std::string(temporaryEnd);
}

// The number of the process in the name of a temporary file; 0 when the name is none of them.
pid_t WriterOf(std::string_view name) {
  if (!name.starts_with(temporaryBegin) || !name.ends_with(temporaryEnd)) return 0;
  const std::string_view numbers =
      name.substr(temporaryBegin.size(), name.size() - temporaryBegin.size() - temporaryEnd.size());
  const std::size_t dash = numbers.find('-');
  if (dash == std::string_view::npos || numbers.find_first_not_of("0123456789", dash + 1) != std::string_view::npos) {
    return 0;
  }
  pid_t writer = 0;
  const auto result = std::from_chars(numbers.data(), numbers.data() + dash, writer);
  return result.ec == std::errc{} && result.ptr == numbers.data() + dash && writer > 0 ? writer : 0;
}

bool IsThere(const Descriptor& file) {
  struct stat now {};
  return fstat(file.Get(), &now) == 0 && S_ISREG(now.st_mode) && now.st_nlink > 0;
}

// Takes away the temporary files of writers that were killed. A writer is gone when no process has its number and
// nobody holds its lock; the lock tells of one on another machine, or one whose processes are counted apart. Done
// before writing, since they may be what fills the disk. What cannot be taken away costs nothing but its space.
void RemoveStale(const fs::path& folder) {
  std::error_code failed;
  for (fs::directory_iterator at(folder, failed), end; !failed && at != end; at.increment(failed)) {
    const pid_t writer = WriterOf(at->path().filename().string());
    if (writer == 0 || kill(writer, 0) == 0 || errno != ESRCH) continue;
    const Descriptor file(Open(at->path(), O_RDONLY | O_NOFOLLOW | O_NONBLOCK));
    if (file.IsOpen() && IsThere(file) && file.Lock()) unlink(at->path().c_str());
  }
}

// Opens a new file in the folder under a name that no other writer has, locks it and tells the name. The process number
// keeps programs apart; names that stand there all the same are left to whoever made them. Whoever is just taking away
// a file that was not locked yet keeps it. Without locks on this file system the process number has to do.
int OpenTemporary(const fs::path& folder, fs::path& temporary) {
  static unsigned count = 0;
  constexpr int mostTries = 1000;
  for (int attempt = 0; attempt < mostTries; ++attempt) {
    temporary = folder / TemporaryName(++count);
    const int fd = Open(temporary, O_WRONLY | O_CREAT | O_EXCL);
    if (fd < 0 && errno == EEXIST) continue;
    if (fd < 0) return fd;
    Descriptor file(fd);
    const bool lost = !file.Lock() && errno == EWOULDBLOCK;
    if (!lost && IsThere(file)) return file.Release();
  }
  errno = EEXIST;
  return -1;
}

// Flushes the new name too. Without it the old file would still be whole, so a folder that cannot be flushed is no
// failure.
void FlushFolder(const fs::path& path) {
  const Descriptor folder(Open(path, O_RDONLY | O_DIRECTORY));
  if (folder.IsOpen()) folder.Flush();
}

WriteOutcome Replace(const fs::path& path, const struct stat* old, std::string_view text, OnFailure onFailure) {
  const fs::path folder = path.has_parent_path() ? path.parent_path() : fs::path(".");
  RemoveStale(folder);
  fs::path temporary;
  Descriptor file(OpenTemporary(folder, temporary));
  if (!file.IsOpen()) return errno == EACCES ? WriteOutcome{"its folder takes no new files"} : Failed(errno);
  WriteOutcome outcome;
  const bool takenOver = old == nullptr || TakeOver(*old, file.Get());
  const std::size_t written = takenOver ? file.Write(text) : 0;
  if (!takenOver || written < text.size() || !file.Flush()) outcome = Failed(errno);
  const bool stays = outcome || (onFailure == OnFailure::KeepWhatWasWritten && written > 0);
  if (!stays || rename(temporary.c_str(), path.c_str()) != 0) {
    if (outcome) outcome = Failed(errno);
    unlink(temporary.c_str());
    return outcome;
  }
  FlushFolder(folder);
  return outcome;
}

}  // namespace

std::ifstream OpenTextFile(const std::string& path) {
  std::ifstream file;
  std::error_code failed;
  if (fs::is_regular_file(path, failed)) {
    file.open(path, std::ios::binary);
  } else {
    file.setstate(std::ios::failbit);
  }
  return file;
}

WriteOutcome WriteTextFile(const std::string& path, std::string_view text, OnFailure onFailure) {
  const IgnoreFileSizeSignal scope;
  const fs::path target = BehindLinks(path);
  struct stat old {};
  const bool exists = stat(target.c_str(), &old) == 0;
  if (!exists && errno != ENOENT) return Failed(errno);  // links in a circle, a folder that may not be searched
  if (exists && !S_ISREG(old.st_mode)) return WriteStraight(target, text);
  if (exists && faccessat(AT_FDCWD, target.c_str(), W_OK, AT_EACCESS) != 0) return Failed(errno);
  return Replace(target, exists ? &old : nullptr, text, onFailure);
}

}  // namespace quilm
