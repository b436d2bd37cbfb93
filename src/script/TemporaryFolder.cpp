#include "script/TemporaryFolder.h"

#include <cstdlib>
#include <filesystem>

#include "core/Fault.h"

namespace quilm {

TemporaryFolder::TemporaryFolder() : path_((std::filesystem::temp_directory_path() / "quilm-XXXXXX").string()) {
  if (mkdtemp(path_.data()) == nullptr) throw Fault("No temporary folder can be made at " + path_);
}

TemporaryFolder::~TemporaryFolder() {
  std::error_code ignored;  // what cannot be removed stays for the system to clean up
  std::filesystem::remove_all(path_, ignored);
}

}  // namespace quilm
