#include "files/export/DeckSolver.h"

#include <cmath>
#include <iterator>
#include <map>
#include <set>
#include <sstream>
#include <utility>
#include <vector>

#include "core/Fault.h"
#include "files/export/AscReader.h"
#include "files/export/LtspiceBench.h"

namespace quilm {

namespace {

using Complex = std::complex<f64>;
using Card = std::vector<std::string>;
constexpr Complex j(0, 1);

// Kirchhoff's equations: one a node but common, one a branch whose current is an unknown.
class Equations {
 public:
  explicit Equations(f64 frequency) : omega_(2 * Pi * frequency) {}

  void Take(const Card& card);
  void Solve();
  Complex At(const std::string& node) { return Solution(Node(node)); }

 private:
  // Common is -1.
  int Node(const std::string& name) { return name == "0" ? -1 : Unknown("node " + name); }
  int Branch(const std::string& name) { return Unknown("current " + name); }
  int Unknown(const std::string& name) {
    return unknowns_.emplace(name, static_cast<int>(unknowns_.size())).first->second;
  }
  void Add(int row, int column, Complex value) {
    if (row >= 0 && column >= 0) entries_[{row, column}] += value;
  }
  Complex Solution(int unknown) const { return unknown < 0 ? 0 : solution_[static_cast<std::size_t>(unknown)]; }

  // A branch from a to b: its current leaves a, and its own equation begins with the voltage across it.
  int BranchBetween(const std::string& name, const std::string& a, const std::string& b) {
    const int branch = Branch(name);
    Add(Node(a), branch, 1);
    Add(Node(b), branch, -1);
    AddVoltage(branch, a, b, 1);
    return branch;
  }
  void AddVoltage(int row, const std::string& a, const std::string& b, Complex factor) {
    Add(row, Node(a), factor);
    Add(row, Node(b), -factor);
  }
  void Admittance(const Card& card, Complex y) {
    const int a = Node(card[1]);
    const int b = Node(card[2]);
    AddVoltage(a, card[1], card[2], y);
    AddVoltage(b, card[1], card[2], -y);
  }

  void Inductor(const Card& card);
  void Coupling(const Card& card);
  void Laplace(const Card& card);
  void Line(const Card& card);

  f64 omega_;
  std::map<std::string, int> unknowns_;
  std::map<std::string, f64> inductances_;
  std::set<std::string> names_;
  std::map<std::pair<int, int>, Complex> entries_;
  std::map<int, Complex> sources_;
  std::vector<Complex> solution_;
};

void Equations::Inductor(const Card& card) {
  const f64 henries = SimulatorNumber(card[3]);
  const f64 ohms = card.size() > 4 ? NumberAfter(card[4], "Rser") : 1e-3;
  const int branch = BranchBetween(card[0], card[1], card[2]);
  Add(branch, branch, -(ohms + j * omega_ * henries));
  inductances_[card[0]] = henries;
}

void Equations::Coupling(const Card& card) {
  const f64 M = SimulatorNumber(card[3]) * std::sqrt(inductances_.at(card[1]) * inductances_.at(card[2]));
  Add(Branch(card[1]), Branch(card[2]), -j * omega_ * M);
  Add(Branch(card[2]), Branch(card[1]), -j * omega_ * M);
}

// The current of a source behind its own voltage: with s = j omega, sqrt(-s*s) is omega.
void Equations::Laplace(const Card& card) {
  const std::string end = "*sqrt(-s*s)";
  const std::string& text = card[5];
  if (card[1] != card[3] || card[2] != card[4] || !text.starts_with("Laplace=") || !text.ends_with(end)) {
    throw Fault("a source that is no conductance: " + card[0]);
  }
  const Complex s = j * omega_;
  Admittance(card, SimulatorNumber(text.substr(8, text.size() - 8 - end.size())) * std::sqrt(-s * s));
}

// V1 = cos t V2 - j Z sin t I2, I1 = j sin t / Z V2 - cos t I2, both currents flowing into the line.
void Equations::Line(const Card& card) {
  const f64 Z0 = NumberAfter(card[5], "Z0");
  const f64 t = omega_ * NumberAfter(card[6], "Td");
  const int first = BranchBetween(card[0] + ".1", card[1], card[2]);
  AddVoltage(first, card[3], card[4], -std::cos(t));
  const int second = Branch(card[0] + ".2");
  Add(Node(card[3]), second, 1);
  Add(Node(card[4]), second, -1);
  Add(first, second, j * Z0 * std::sin(t));
  Add(second, first, 1);
  AddVoltage(second, card[3], card[4], -j * std::sin(t) / Z0);
  Add(second, second, std::cos(t));
}

void Equations::Take(const Card& card) {
  if (!names_.insert(card[0]).second) throw Fault("two parts named " + card[0]);
  switch (card[0][0]) {
    case 'R':
      return Admittance(card, 1 / SimulatorNumber(card[3]));
    case 'C':
      return Admittance(card, j * omega_ * SimulatorNumber(card[3]));
    case 'L':
      return Inductor(card);
    case 'K':
      return Coupling(card);
    case 'T':
      return Line(card);
    case 'G':
      return Laplace(card);
    case 'V': {
      const int branch = BranchBetween(card[0], card[1], card[2]);
      sources_[branch] = card.size() > 5 && card[4] == "AC" ? SimulatorNumber(card[5]) : 0;
      return;
    }
    case 'E':
      return AddVoltage(BranchBetween(card[0], card[1], card[2]), card[3], card[4], -SimulatorNumber(card[5]));
    case 'F': {
      const f64 gain = SimulatorNumber(card[4]);
      Add(Node(card[1]), Branch(card[3]), gain);
      Add(Node(card[2]), Branch(card[3]), -gain);
      return;
    }
    default:
      throw Fault("an unknown part: " + card[0]);
  }
}

// Gaussian elimination with the greatest pivot of each column.
void Equations::Solve() {
  const std::size_t n = unknowns_.size();
  std::vector<std::vector<Complex>> rows(n, std::vector<Complex>(n + 1));
  for (const auto& [place, value] : entries_) {
    rows[static_cast<std::size_t>(place.first)][static_cast<std::size_t>(place.second)] = value;
  }
  for (const auto& [row, value] : sources_) rows[static_cast<std::size_t>(row)][n] = value;
  for (std::size_t k = 0; k < n; ++k) {
    std::size_t pivot = k;
    for (std::size_t row = k + 1; row < n; ++row) {
      if (std::abs(rows[row][k]) > std::abs(rows[pivot][k])) pivot = row;
    }
    std::swap(rows[k], rows[pivot]);
    if (rows[k][k] == 0.0) throw Fault("no solution");
    for (std::size_t row = k + 1; row < n; ++row) {
      if (rows[row][k] == 0.0) continue;
      const Complex factor = rows[row][k] / rows[k][k];
      for (std::size_t column = k; column <= n; ++column) rows[row][column] -= factor * rows[k][column];
    }
  }
  solution_.assign(n, 0);
  for (std::size_t k = n; k-- > 0;) {
    Complex sum = rows[k][n];
    for (std::size_t column = k + 1; column < n; ++column) sum -= rows[k][column] * solution_[column];
    solution_[k] = sum / rows[k][k];
  }
}

}  // namespace

Complex VoltageOf(const std::string& deck, const std::string& node, f64 frequency) {
  Equations equations(frequency);
  for (const std::string& line : LinesOf(deck)) {
    if (line.empty() || line[0] == '*' || line[0] == '.') continue;
    std::istringstream words(line);
    equations.Take({std::istream_iterator<std::string>(words), {}});
  }
  equations.Solve();
  return equations.At(node);
}

}  // namespace quilm
