// Networks for the tests of the studies, and the independent program that they are compared with.
#pragma once

#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>
#include <vector>

#include "analysis/Ladder.h"
#include "core/DesignRecord.h"
#include "core/ElementTypes.h"
#include "gtest/gtest.h"
#include "support/LadderText.h"
#include "support/ProgramOutput.h"

namespace quilm {

constexpr f32 nearlyLossless = 1e7F;

// Of a Butterworth lowpass of 1 MHz between 50 ohms.
inline constexpr f32 lowpassL = 7.957747e-6F;
inline constexpr f32 lowpassC = 3.183099e-9F;

inline void AddStage(DesignRecord& record, i16 type, f32 inductance, f32 capacitance) {
  Stage& stage = record.stage[++record.Stages];
  stage.ElementType = type;
  stage.Lval.value = inductance;
  stage.Cval.value = capacitance;
}

inline DesignRecord Terminated() {
  DesignRecord record;
  record.Rsource[1] = record.Rload[1] = record.Rstandard = 50;
  record.Qind[1] = record.Qcap[1] = nearlyLossless;
  record.Width = 1e6F;
  return record;
}

// Of order 3: 1, 2, 1.
inline DesignRecord Lowpass() {
  DesignRecord record = Terminated();
  AddStage(record, ShuntC, 0, lowpassC);
  AddStage(record, SeriesL, 2 * lowpassL, 0);
  AddStage(record, ShuntC, 0, lowpassC);
  return record;
}

// The same about 10 MHz, 1 MHz wide.
inline DesignRecord Bandpass() {
  DesignRecord record = Terminated();
  record.Fcenter = 1e7F;
  AddStage(record, ShuntPLC, lowpassL / 100, lowpassC);
  AddStage(record, SeriesSLC, 2 * lowpassL, lowpassC / 200);
  AddStage(record, ShuntPLC, lowpassL / 100, lowpassC);
  return record;
}

struct StudyCase {
  DesignRecord record;
  f32 start;
  f32 stop;
  int steps;
};

// The figures that study_reference.py prints for each case.
inline std::vector<std::vector<f64>> Reference(const std::string& study, const std::vector<StudyCase>& cases) {
  namespace fs = std::filesystem;
  const fs::path folder = fs::temp_directory_path() / ("quilm-studies-" + study + "-" + std::to_string(getpid()));
  fs::create_directories(folder);
  std::string files;
  for (std::size_t i = 0; i < cases.size(); ++i) {
    const fs::path path = folder / std::to_string(i);
    const DesignRecord& record = cases[i].record;
    std::ofstream out(path);
    WriteLadder(record, QualityFrequency(record, record), out);
    out << cases[i].start << ' ' << cases[i].stop << ' ' << cases[i].steps << '\n';
    files.append(" ").append(path.string());
  }
  std::istringstream lines(OutputOf(QUILM_SCIPY_PYTHON " " QUILM_STUDY_TESTS "/study_reference.py " + study + files));
  std::vector<std::vector<f64>> rows;
  for (std::string line; std::getline(lines, line);) {
    std::istringstream words(line);
    rows.emplace_back();
    for (f64 figure = 0; words >> figure;) rows.back().push_back(figure);
  }
  fs::remove_all(folder);
  return rows;
}

}  // namespace quilm
