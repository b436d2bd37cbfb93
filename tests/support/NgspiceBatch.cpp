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

// A deck with the analysis that it is put to.
struct Job {
  const std::string& deck;
  std::string analysis;
  const std::string& output;
};

// The vectors of each circuit are thrown away, so that a circuit that is refused cannot show those of the one before.
std::string Commands(const WorkFolder& folder, const std::vector<Job>& jobs) {
  std::string text = "* batch\n.control\nset wr_singlescale\nset numdgt=15\n";
  for (std::size_t i = 0; i < jobs.size(); ++i) {
    text.append("source ").append(folder.Deck(i)).append("\n").append(jobs[i].analysis);
    text.append("\nwrdata ").append(folder.Data(i)).append(" v(").append(jobs[i].output).append(")\n");
    text.append("remcirc\ndestroy all\n");
  }
  return text + "quit\n.endc\n.end\n";
}

std::vector<NgspicePoint> PointsIn(std::istream& in) {
  std::vector<NgspicePoint> points;
  f64 frequency = 0;
  f64 re = 0;
  f64 im = 0;
  while (in >> frequency >> re >> im) points.push_back({frequency, {re, im}});
  return points;
}

std::vector<NgspiceMoment> MomentsIn(std::istream& in) {
  std::vector<NgspiceMoment> moments;
  f64 time = 0;
  f64 voltage = 0;
  while (in >> time >> voltage) moments.push_back({time, voltage});
  return moments;
}

// Runs the jobs and hands each one's data to `take`.
template <class Take>
void Run(const std::vector<Job>& jobs, std::string* log, Take take) {
  if (std::system("ngspice --version >/dev/null 2>&1") != 0) {
    throw Fault("ngspice is not installed; tools/install-packages test installs it");
  }
  const WorkFolder folder;
  for (std::size_t i = 0; i < jobs.size(); ++i) std::ofstream(folder.Deck(i)) << jobs[i].deck;
  std::ofstream(folder.File("main.cir")) << Commands(folder, jobs);
  // Its exit status is that of the last command; what counts is the data.
  const std::string command = "ngspice -b " + folder.File("main.cir") + " >" + folder.File("log") + " 2>&1";
  if (std::system(command.c_str()) == -1) throw Fault("ngspice did not start");
  if (log != nullptr) *log = ContentOf(folder.File("log"));
  for (std::size_t i = 0; i < jobs.size(); ++i) {
    std::ifstream data(folder.Data(i));
    take(data);
  }
}

}  // namespace

std::vector<std::vector<NgspicePoint>> RunNgspice(const std::vector<NgspiceCircuit>& circuits, std::string* log) {
  std::vector<Job> jobs;
  for (const NgspiceCircuit& circuit : circuits) jobs.push_back({circuit.deck, "ac " + circuit.sweep, circuit.output});
  std::vector<std::vector<NgspicePoint>> results;
  Run(jobs, log, [&results](std::istream& data) { results.push_back(PointsIn(data)); });
  return results;
}

std::vector<std::vector<NgspiceMoment>> RunNgspiceTransients(const std::vector<NgspiceTransient>& circuits,
                                                             std::string* log) {
  std::vector<Job> jobs;
  for (const NgspiceTransient& circuit : circuits) {
    jobs.push_back({circuit.deck, "tran " + circuit.steps, circuit.output});
  }
  std::vector<std::vector<NgspiceMoment>> results;
  Run(jobs, log, [&results](std::istream& data) { results.push_back(MomentsIn(data)); });
  return results;
}

}  // namespace quilm
