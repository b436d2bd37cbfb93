#include "core/TextFile.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <filesystem>

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

  bool Write(std::string_view text) const {
    while (!text.empty()) {
      const ssize_t written = write(fd_, text.data(), text.size());
      if (written < 0 && errno == EINTR) continue;
      if (written <= 0) return false;
      text.remove_prefix(static_cast<std::size_t>(written));
    }
    return true;
  }

  bool Flush() const { return fsync(fd_) == 0; }

  // Some file systems tell only here that they could not store all of it.
  bool Close() {
    const int fd = fd_;
    fd_ = -1;
    return fd < 0 || close(fd) == 0;
  }

 private:
  int fd_;
};

int Open(const fs::path& path, int flags) { return open(path.c_str(), flags | O_CLOEXEC, forAllByTheMask); }

bool WriteStraight(const fs::path& path, std::string_view text) {
  Descriptor file(Open(path, O_WRONLY | O_CREAT | O_TRUNC));
  return file.IsOpen() && file.Write(text) && file.Close();
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

// Opens a new file beside `path` under a name that no other writer has, and tells the name. The process number keeps
// programs apart; names that stand there all the same are left to whoever made them.
int OpenTemporary(const fs::path& path, fs::path& temporary) {
  static unsigned count = 0;
  constexpr int mostTries = 1000;
  int fd = -1;
  for (int attempt = 0; attempt < mostTries; ++attempt) {
    temporary = path.parent_path() / (".quilm-" + std::to_string(getpid()) + "-" + std::to_string(++count) + ".tmp");
    fd = Open(temporary, O_WRONLY | O_CREAT | O_EXCL);
    if (fd >= 0 || errno != EEXIST) break;
  }
  return fd;
}

// Flushes the new name too. Without it the old file would still be whole, so a folder that cannot be flushed is no
// failure.
void FlushFolder(const fs::path& path) {
  const Descriptor folder(Open(path.has_parent_path() ? path.parent_path() : fs::path("."), O_RDONLY | O_DIRECTORY));
  if (folder.IsOpen()) folder.Flush();
}

bool Replace(const fs::path& path, const struct stat* old, std::string_view text) {
  fs::path temporary;
  Descriptor file(OpenTemporary(path, temporary));
  if (!file.IsOpen()) return false;
  const bool stored = (old == nullptr || TakeOver(*old, file.Get())) && file.Write(text) && file.Flush() &&
                      file.Close() && rename(temporary.c_str(), path.c_str()) == 0;
  if (stored) {
    FlushFolder(path);
  } else {
    unlink(temporary.c_str());
  }
  return stored;
}

}  // namespace

bool WriteTextFile(const std::string& path, std::string_view text, OnFailure onFailure) {
  const IgnoreFileSizeSignal scope;
  const fs::path target = BehindLinks(path);
  struct stat old {};
  const bool exists = stat(target.c_str(), &old) == 0;
  if (!exists && errno != ENOENT) return false;  // links in a circle, a folder that may not be searched
  if (onFailure == OnFailure::KeepWhatWasWritten || (exists && !S_ISREG(old.st_mode))) {
    return WriteStraight(target, text);
  }
  if (exists && faccessat(AT_FDCWD, target.c_str(), W_OK, AT_EACCESS) != 0) return false;
  return Replace(target, exists ? &old : nullptr, text);
}

}  // namespace quilm
