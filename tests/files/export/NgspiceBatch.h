// Many decks in one run of ngspice.
#pragma once

#include <complex>
#include <filesystem>
#include <sstream>
#include <string>
#include <vector>

#include "core/Types.h"

namespace quilm {

using Voltages = std::vector<std::complex<f64>>;

class NgspiceBatch {
 public:
  NgspiceBatch();
  ~NgspiceBatch();
  NgspiceBatch(const NgspiceBatch&) = delete;
  NgspiceBatch& operator=(const NgspiceBatch&) = delete;

  // Takes a deck, whose own commands are not run, for ac analyses such as "lin 8 5e5 4e6" of the voltage at `node`.
  // Gives the place of its result.
  std::size_t Add(const std::string& deck, const std::vector<std::string>& analyses, const std::string& node);

  // The voltages of each deck, analysis after analysis; none for one that ngspice refused.
  std::vector<Voltages> Run();

 private:
  std::string Path(std::size_t place, const std::string& extension) const;

  std::filesystem::path folder_;
  std::ostringstream commands_;
  std::vector<std::vector<std::string>> results_;  // the files of each deck
};

}  // namespace quilm
