// Runs in a process and a folder of their own, so that a crash ends that run alone and nothing is left of it.
#pragma once

#include <filesystem>
#include <functional>

#include "monkey/MonkeyRun.h"

namespace quilm {

// A folder for a run's files, gone afterwards.
class WorkFolder {
 public:
  // With the content of `former` if that is a folder.
  explicit WorkFolder(const std::filesystem::path& former = {});
  ~WorkFolder();
  WorkFolder(const WorkFolder&) = delete;
  WorkFolder& operator=(const WorkFolder&) = delete;

  const std::filesystem::path& Path() const { return path_; }

 private:
  std::filesystem::path path_;
};

// Runs `mind` in the folder. A run that crashes, hangs, or is ended by a sanitizer is a finding too. Quiet: what the
// process itself says on standard error is dropped.
MonkeyReport TryOut(const std::filesystem::path& folder, const MonkeyMind& mind, bool quiet);

}  // namespace quilm
