// The same ladder in the engine and in ngspice's ac analysis, in one process and one run.
//
//   build/bench/bin/bench-compare

#include <ngspice/sharedspice.h>

#include <algorithm>
#include <array>
#include <chrono>
#include <cmath>
#include <cstdio>
#include <memory>
#include <sstream>
#include <string>
#include <vector>

#include "analysis/modAnalysis.h"
#include "core/Responses.h"
#include "support/NgspiceNetlist.h"
#include "support/RandomLadder.h"

namespace {

using namespace quilm;
using Clock = std::chrono::steady_clock;

constexpr int points = 2050;
constexpr int stages = 43;

int Say(char*, int, void*) { return 0; }
int Status(char*, int, void*) { return 0; }
int Leave(int, NG_BOOL, NG_BOOL, int, void*) { return 0; }
int Data(pvecvaluesall, int, int, void*) { return 0; }
int InitData(pvecinfoall, int, void*) { return 0; }
int Background(NG_BOOL, int, void*) { return 0; }

void Load(std::vector<std::string> copy) {
  copy.push_back(".end");
  std::vector<char*> pointers;
  for (std::string& line : copy) pointers.push_back(line.data());
  pointers.push_back(nullptr);
  ngSpice_Circ(pointers.data());
}

template <class Act>
f64 ShortestSeconds(int runs, Act act) {
  f64 shortest = 1e9;
  for (int i = 0; i < runs; ++i) {
    const auto start = Clock::now();
    act();
    shortest = std::min(shortest, std::chrono::duration<f64>(Clock::now() - start).count());
  }
  return shortest;
}

}  // namespace

int main() {
  std::mt19937 random(1);
  const std::array<i16, 8> types = {SeriesL, ShuntL, SeriesC, ShuntC, SeriesSLC, ShuntSLC, SeriesPLC, ShuntPLC};
  DesignRecord record = RandomLadder(random, stages, types);
  const auto responses = std::make_unique<Responses>();
  const f64 engine = ShortestSeconds(300, [&] { SweepLadder(record, *responses); });

  ngSpice_Init(Say, Status, Leave, Data, InitData, Background, nullptr);
  Load(NgspiceNetlist(record, static_cast<f64>(record.Width)).Lines());
  std::string command = "ac lin " + std::to_string(points) + " 1e4 1e8";
  const f64 spice = ShortestSeconds(5, [&] { ngSpice_Command(command.data()); });

  std::printf("%d stages, %d points: ngspice %.3f ms, engine %.4f ms, ratio %.0f\n", stages, points, spice * 1e3,
              engine * 1e3, spice / engine);
  return 0;
}
