#include "support/NgspiceBatch.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>

#include <unistd.h>

#include "core/Fault.h"

namespace quilm {

namespace {

namespace fs = std::filesystem;

// A folder of this process that goes when the run ends.
class WorkFolder {
 public:
  WorkFolder() {
    static int runs = 0;
    path_ = fs::temp_directory_path() / ("quilm-batch-" + std::to_string(::getpid()) + "-" + std::to_string(++runs));
    fs::create_directories(path_);
  }
  ~WorkFolder() { fs::remove_all(path_); }
  WorkFolder(const WorkFolder&) = delete;
  WorkFolder& operator=(const WorkFolder&) = delete;

  std::string File(const std::string& name) const { return (path_ / name).string(); }
  std::string Deck(std::size_t i) const { return File(std::to_string(i) + ".cir"); }
  std::string Data(std::size_t i) const { return File(std::to_string(i) + ".data"); }

 private:
  fs::path path_;
};

std::string ContentOf(const std::string& path) {
  std::ifstream in(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(in), {}};
}

// The vectors of each circuit are thrown away, so that a circuit that is refused cannot show those of the one before.
std::string Commands(const WorkFolder& folder, const std::vector<NgspiceCircuit>& circuits) {
  std::string text = "* batch\n.control\nset wr_singlescale\nset numdgt=15\n";
  for (std::size_t i = 0; i < circuits.size(); ++i) {
    text.append("source ").append(folder.Deck(i)).append("\nac ").append(circuits[i].sweep);
    text.append("\nwrdata ").append(folder.Data(i)).append(" v(").append(circuits[i].output).append(")\n");
    text.append("remcirc\ndestroy all\n");
  }
  return text + "quit\n.endc\n.end\n";
}

std::vector<NgspicePoint> PointsIn(const std::string& path) {
  std::ifstream in(path);
  std::vector<NgspicePoint> points;
  f64 frequency = 0;
  f64 re = 0;
  f64 im = 0;
  while (in >> frequency >> re >> im) points.push_back({frequency, {re, im}});
  return points;
}

}  // namespace

std::vector<std::vector<NgspicePoint>> RunNgspice(const std::vector<NgspiceCircuit>& circuits, std::string* log) {
  if (std::system("ngspice --version >/dev/null 2>&1") != 0) {
    throw Fault("ngspice is not installed; tools/install-packages test installs it");
  }
  const WorkFolder folder;
  for (std::size_t i = 0; i < circuits.size(); ++i) std::ofstream(folder.Deck(i)) << circuits[i].deck;
  std::ofstream(folder.File("main.cir")) << Commands(folder, circuits);
  // Its exit status is that of the last command; what counts is the data.
  const std::string command = "ngspice -b " + folder.File("main.cir") + " >" + folder.File("log") + " 2>&1";
  if (std::system(command.c_str()) == -1) throw Fault("ngspice did not start");
  if (log != nullptr) *log = ContentOf(folder.File("log"));
  std::vector<std::vector<NgspicePoint>> results;
  for (std::size_t i = 0; i < circuits.size(); ++i) results.push_back(PointsIn(folder.Data(i)));
  return results;
}

}  // namespace quilm
