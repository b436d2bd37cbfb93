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

// Removes the folder with what is in it, also while somebody still writes there. What cannot be removed stays for the
// system to clean up.
void RemoveFolder(const std::string& path);

}  // namespace quilm
