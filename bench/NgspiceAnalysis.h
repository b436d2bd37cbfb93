// ngspice in this process: a ladder loaded once, analysed as often as asked.
#pragma once

#include <ngspice/sharedspice.h>

#include <algorithm>
#include <chrono>
#include <string>
#include <vector>

#include "core/DesignRecord.h"
#include "support/NgspiceNetlist.h"

namespace quilm {

class NgspiceAnalysis {
 public:
  explicit NgspiceAnalysis(const DesignRecord& record) {
    ngSpice_Init(Say, Say, Leave, Data, InitData, Background, nullptr);
    std::vector<std::string> lines = NgspiceNetlist(record, static_cast<f64>(record.Width)).Lines();
    for (const std::string& line : lines) {
      if (altered_.empty() && line.front() == 'L') altered_ = line.substr(0, line.find(' '));
    }
    lines.push_back(".end");
    std::vector<char*> pointers;
    for (std::string& line : lines) pointers.push_back(line.data());
    pointers.push_back(nullptr);
    ngSpice_Circ(pointers.data());
  }

  // So many points from 10 kHz to 100 MHz.
  void Analyze(int points) { Run("ac lin " + std::to_string(points) + " 1e4 1e8"); }

  // Gives one inductor another value: less than the least that a trial does.
  void Alter() { Run("alter " + altered_ + " = " + std::to_string(1 + 0.001 * ++trials_) + "u"); }

  // Results are kept until they are dropped.
  void Drop() { Run("destroy all"); }

 private:
  static int Say(char*, int, void*) { return 0; }
  static int Leave(int, NG_BOOL, NG_BOOL, int, void*) { return 0; }
  static int Data(pvecvaluesall, int, int, void*) { return 0; }
  static int InitData(pvecinfoall, int, void*) { return 0; }
  static int Background(NG_BOOL, int, void*) { return 0; }

  static void Run(std::string command) { ngSpice_Command(command.data()); }

  std::string altered_;
  int trials_ = 0;
};

// The least time that an act took, in seconds.
template <class Act>
f64 ShortestSeconds(int runs, Act act) {
  using Clock = std::chrono::steady_clock;
  f64 shortest = 1e9;
  for (int i = 0; i < runs; ++i) {
    const auto start = Clock::now();
    act();
    shortest = std::min(shortest, std::chrono::duration<f64>(Clock::now() - start).count());
  }
  return shortest;
}

// A trial in ngspice: a part altered and the analysis made again.
inline f64 NgspiceTrialSeconds(NgspiceAnalysis& spice, int points) {
  f64 shortest = 1e9;
  constexpr int runs = 5;
  for (int i = 0; i < runs; ++i) {
    shortest = std::min(shortest, ShortestSeconds(1, [&] {
                          spice.Alter();
                          spice.Analyze(points);
                        }));
    spice.Drop();
  }
  return shortest;
}

}  // namespace quilm
