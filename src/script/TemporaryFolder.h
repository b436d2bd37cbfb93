// A folder of its own that is gone when the run is over.
#pragma once

#include <string>

namespace quilm {

class TemporaryFolder {
 public:
  // Throws Fault when none can be made.
  TemporaryFolder();
  ~TemporaryFolder();
  TemporaryFolder(const TemporaryFolder&) = delete;
  TemporaryFolder& operator=(const TemporaryFolder&) = delete;

  const std::string& Path() const { return path_; }

 private:
  std::string path_;
};

}  // namespace quilm
