// A ladder as ngspice reads it, for comparing with an independent program.
#pragma once

#include <string>
#include <vector>

#include "core/ElementCatalogue.h"
#include "core/Network.h"

namespace quilm {

// Losses are resistors that agree with the engine's loss models at one frequency. The source is "V1 src 0 AC 1"; node
// n0 is behind the source resistance, n1, n2, ... behind each stage.
class NgspiceNetlist {
 public:
  // Throws Fault for a type that has no netlist.
  NgspiceNetlist(const Network& network, f64 lossFrequency);

  // The title and the parts, without commands and without ".end".
  const std::vector<std::string>& Lines() const { return lines_; }

  // The node of the load.
  std::string Output() const { return Node(network_.Stages); }

 private:
  static std::string Node(int s);
  std::string Between();
  void Part(char kind, const std::string& a, const std::string& b, f64 value);
  void Inductor(const std::string& a, const std::string& b, f64 L);
  void Capacitor(const std::string& a, const std::string& b, f64 C);
  void Chain(const std::string& a, const std::string& b, const Stage& stage, const Element& element);
  void Tank(const std::string& a, const std::string& b, const Stage& stage, const Element& element);
  void Line(const std::string& a, const std::string& b, const std::string& c, const std::string& d,
            const LineValue& line);
  void Stub(const std::string& a, const std::string& b, const LineValue& line, bool open);
  void Transform(const std::string& a, const std::string& b, f64 n);
  void Couple(const std::string& a, const std::string& b, const CoupledValue& coil);
  void WriteElement(const Stage& stage, const Element& element, const std::string& a, const std::string& b);
  void Write(int s);
  void Add(const std::string& line) { lines_.push_back(line); }

  const Network& network_;
  f64 lossFrequency_;
  std::vector<std::string> lines_;
  int parts_ = 0;
  int nodes_ = 0;
};

}  // namespace quilm
