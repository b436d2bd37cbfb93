#include "files/export/NgspiceBatch.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <fstream>

#include <unistd.h>

namespace quilm {

namespace {

int nextFolder = 0;

void ReadVoltages(const std::string& path, Voltages& voltages) {
  std::ifstream in(path);
  f64 frequency = 0;
  f64 re = 0;
  f64 im = 0;
  while (in >> frequency >> re >> im) voltages.emplace_back(re, im);
}

}  // namespace

NgspiceBatch::NgspiceBatch()
    : folder_(std::filesystem::temp_directory_path() /
              ("quilm-export-" + std::to_string(::getpid()) + "-" + std::to_string(++nextFolder))) {
  std::filesystem::create_directories(folder_);
}

NgspiceBatch::~NgspiceBatch() { std::filesystem::remove_all(folder_); }

std::string NgspiceBatch::Path(std::size_t place, const std::string& extension) const {
  return (folder_ / ("deck" + std::to_string(place) + "-" + extension)).string();
}

std::size_t NgspiceBatch::Add(const std::string& deck, const std::vector<std::string>& analyses,
                              const std::string& node) {
  const std::size_t place = results_.size();
  std::ofstream(Path(place, ".cir"), std::ios::binary) << deck;
  commands_ << "source " << Path(place, ".cir") << '\n';
  results_.emplace_back();
  for (const std::string& analysis : analyses) {
    results_.back().push_back(Path(place, std::to_string(results_.back().size()) + ".data"));
    commands_ << "ac " << analysis << "\nwrdata " << results_.back().back() << " v(" << node << ")\n";
  }
  commands_ << "destroy all\nremcirc\n";
  return place;
}

std::vector<Voltages> NgspiceBatch::Run() {
  const std::string control = (folder_ / "batch.cir").string();
  const std::string log = (folder_ / "batch.log").string();
  std::ofstream(control) << "* batch\n.control\nset wr_singlescale\nset numdgt=15\n"
                         << commands_.str() << "quit\n.endc\n.end\n";
  EXPECT_EQ(std::system(("ngspice -b " + control + " >" + log + " 2>&1").c_str()), 0)
      << "ngspice failed, or is not installed; tools/install-packages test installs it";
  std::vector<Voltages> results;
  for (const std::vector<std::string>& files : results_) {
    results.emplace_back();
    for (const std::string& file : files) ReadVoltages(file, results.back());
  }
  return results;
}

}  // namespace quilm
