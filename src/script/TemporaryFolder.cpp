#include "script/TemporaryFolder.h"

#include <cstdlib>
#include <filesystem>

#include "core/Fault.h"

namespace quilm {

namespace {

// The variable names a folder that is not there as readily as one that is.
std::string FolderForTemporaries() {
  std::error_code failed;
  const std::filesystem::path folder = std::filesystem::temp_directory_path(failed);
  if (!failed) return folder.string();
  const char* named = std::getenv("TMPDIR");
  throw Fault("the folder for temporary files cannot be used: " + std::string(named == nullptr ? "/tmp" : named));
}

}  // namespace

TemporaryFolder::TemporaryFolder() : path_(FolderForTemporaries() + "/quilm-XXXXXX") {
  if (mkdtemp(path_.data()) == nullptr) throw Fault("no temporary folder can be made at " + path_);
}

TemporaryFolder::~TemporaryFolder() { RemoveFolder(path_); }

void RemoveFolder(const std::string& path) {
  constexpr int mostTries = 100;  // a file made between the last removed one and the folder stops it
  std::error_code failed;
  for (int attempt = 0; attempt < mostTries; ++attempt) {
    std::filesystem::remove_all(path, failed);
    if (!std::filesystem::exists(path, failed)) return;
  }
}

}  // namespace quilm
