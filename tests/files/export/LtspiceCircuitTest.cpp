// Schematics read back by their geometry and run in ngspice, against chain matrices of the values that are written.
#include <gtest/gtest.h>

#include <cmath>
#include <complex>
#include <random>

#include "analysis/Kernel.h"
#include "core/ElementCatalogue.h"
#include "core/Fault.h"
#include "files/export/AscReader.h"
#include "files/export/ExportDesigns.h"
#include "files/export/LtspiceBench.h"
#include "files/export/LtspiceSchematic.h"
#include "files/export/SpiceTexts.h"
#include "support/ChainMatrix.h"
#include "support/NgspiceBatch.h"
#include "support/RandomLadder.h"

namespace quilm {
namespace {

using Complex = ChainMatrix::Complex;
constexpr Complex j(0, 1);

// The ladder that is meant, with the values that are written.
class WrittenLadder {
 public:
  WrittenLadder(const DesignRecord& meant, const AscSheet& sheet) : meant_(meant), sheet_(sheet) {}

  // The voltage across the load.
  Complex Output(f64 frequency) const {
    const f64 omega = 2 * Pi * frequency;
    ChainMatrix chain;
    for (int s = 1; s <= meant_.Stages; ++s) Append(chain, s, omega);
    const f64 amplitude = SimulatorNumber(PartNamed(sheet_, "Vgen").value.substr(3));
    return amplitude * chain.Gain(Value("RS"), Value("RL"));
  }

  // Every value that is written is that of the record, as far as its text goes.
  void ExpectTheValuesOfTheRecord() const {
    const f32 Fq = SpiceReferenceFrequency(meant_);
    for (i16 s = 1; s <= meant_.Stages; ++s) ExpectValuesOf(s, Fq);
    ExpectOhms(Value("RS"), meant_.Rsource[1]);
    ExpectOhms(Value("RL"), meant_.Rload[1]);
  }

 private:
  f64 Value(const std::string& name) const { return SimulatorNumber(PartNamed(sheet_, name).value); }
  f64 Loss(const std::string& name, const std::string& key) const {
    return NumberAfter(PartNamed(sheet_, name).spiceLine, key);
  }
  static std::string Name(char letter, int s) { return letter + std::to_string(s); }

  Complex Impedance(SlotCode slot, int s, f64 omega) const {
    if (slot == SlotCode::Inductance) {
      const std::string name = Name('L', s);
      return Loss(name, "Rser") + j * omega * Value(name);
    }
    if (slot == SlotCode::Capacitance) {
      const std::string name = Name('C', s);
      return 1.0 / (1 / Loss(name, "Rpar") + j * omega * Value(name));
    }
    return Value(Name('R', s));
  }

  // The arm between two nodes.
  Complex Arm(const Element& element, int s, f64 omega) const {
    Complex sum = 0;
    if (element.joint == Joint::ShortStub || element.joint == Joint::OpenStub) {
      const std::string& line = PartNamed(sheet_, Name('T', s)).value;
      const f64 tangent = std::tan(omega * NumberAfter(line, "Td"));
      return j * NumberAfter(line, "Z0") * (element.joint == Joint::ShortStub ? tangent : -1 / tangent);
    }
    const bool parallel = element.joint == Joint::Parallel;
    for (const Slot& slot : element.slots) {
      const Complex z = Impedance(slot.code, s, omega);
      sum += parallel ? 1.0 / z : z;
    }
    return parallel ? 1.0 / sum : sum;
  }

  void Append(ChainMatrix& chain, int s, f64 omega) const {
    const Element* element = FindElement(meant_.stage[s].ElementType);
    if (element == nullptr || element->joint == Joint::Transformer || element->joint == Joint::Reactance) return;
    if (element->joint == Joint::Line) {
      const std::string& line = PartNamed(sheet_, Name('T', s)).value;
      return chain.Line(NumberAfter(line, "Z0"), omega * NumberAfter(line, "Td"));
    }
    if (element->joint == Joint::Coupled) {
      const std::string name = Name('L', s);
      return chain.Coils(Value(name + "a"), Value(name + "b"), Coupling(name), omega);
    }
    const Complex z = Arm(*element, s, omega);
    if (element->placement == Placement::Series) return chain.Series(z);
    chain.Shunt(1.0 / z);
  }

  f64 Coupling(const std::string& name) const {
    const std::string start = "K " + name + "a " + name + "b ";
    for (const std::string& directive : sheet_.directives) {
      if (directive.starts_with(start)) return SimulatorNumber(directive.substr(start.size()));
    }
    throw Fault("no coupling of " + name);
  }

  // The texts are those of magnitudes: coupled resonators of wide designs have parts below zero, which lose their sign.
  // Five digits and more.
  static void ExpectPart(f64 written, f32 value) {
    const f64 magnitude = std::fabs(static_cast<f64>(value));
    EXPECT_NEAR(written, magnitude, 5.1e-6 * magnitude);
  }
  // Three decimals of kilohms and above; below, five decimals or five digits.
  static void ExpectOhms(f64 written, f32 value) {
    const f64 ohms = std::fabs(static_cast<f64>(value));
    EXPECT_NEAR(written, ohms, ohms >= 1000 ? 5.1e-4 * ohms : std::max(5.1e-6, 5.1e-5 * ohms));
  }

  void ExpectValuesOf(i16 s, f32 Fq) const {
    const Stage& stage = meant_.stage[s];
    if (HasSlot(stage.ElementType, SlotCode::Inductance)) {
      ExpectPart(Value(Name('L', s)), stage.Lval.value);
      ExpectOhms(Loss(Name('L', s), "Rser"), SpiceSeriesLoss(meant_, Fq, stage.Lval.value));
    }
    if (HasSlot(stage.ElementType, SlotCode::Capacitance)) {
      ExpectPart(Value(Name('C', s)), stage.Cval.value);
      ExpectOhms(Loss(Name('C', s), "Rpar"), SpiceParallelLoss(meant_, Fq, stage.Cval.value));
    }
    if (HasSlot(stage.ElementType, SlotCode::Resistance)) ExpectOhms(Value(Name('R', s)), stage.Rval.value);
    if (HasSlot(stage.ElementType, SlotCode::LineLength))
      ExpectLine(PartNamed(sheet_, Name('T', s)).value, stage.TLval);
    if (HasSlot(stage.ElementType, SlotCode::Coupling)) {
      ExpectPart(Value(Name('L', s) + "a"), stage.CoupledVal.primary);
      ExpectPart(Value(Name('L', s) + "b"), stage.CoupledVal.secondary);
      ExpectOhms(Coupling(Name('L', s)), stage.CoupledVal.k);
    }
  }

  // Seven digits.
  static void ExpectLine(const std::string& written, const LineValue& line) {
    const f64 Td = static_cast<f64>(line.degrees) / 360 / static_cast<f64>(line.freq);
    EXPECT_NEAR(NumberAfter(written, "Td"), Td, 6e-7 * Td);
    EXPECT_NEAR(NumberAfter(written, "Z0"), static_cast<f64>(line.impedance), 6e-7 * static_cast<f64>(line.impedance));
  }

  const DesignRecord& meant_;
  const AscSheet& sheet_;
};

// The sweep of the schematic's own directive.
std::string SweepOf(const AscSheet& sheet) {
  for (const std::string& directive : sheet.directives) {
    if (directive.starts_with(".AC ")) return directive.substr(4);
  }
  throw Fault("no sweep");
}

AscSheet SheetOf(const DesignRecord& record) {
  const ExportText schematic = LtspiceSchematic(record);
  EXPECT_EQ(schematic.failure, "");
  return ReadAsc(schematic.text);
}

NgspiceCircuit CircuitOf(const AscSheet& sheet) {
  std::string sweep = SweepOf(sheet);
  return {NetlistOf(sheet), sweep.replace(0, 3, sweep.starts_with("DEC") ? "dec" : "lin"),
          PartNamed(sheet, "RL").nodes[0]};
}

constexpr f64 tolerance = 1e-4;  // dB
constexpr f64 deepest = 1e-5;    // 100 dB

f64 Decibels(const Complex& voltage) { return 20 * std::log10(std::abs(voltage)); }

// Reads every schematic back, runs all of them and compares each at every frequency where the loss is below 100 dB.
void ExpectAgreement(const std::vector<DesignRecord>& designs) {
  std::vector<AscSheet> sheets;
  std::vector<NgspiceCircuit> circuits;
  for (const DesignRecord& design : designs) {
    sheets.push_back(SheetOf(design));
    circuits.push_back(CircuitOf(sheets.back()));
  }
  std::string log;
  const auto results = RunNgspice(circuits, &log);
  int compared = 0;
  for (std::size_t i = 0; i < designs.size(); ++i) {
    SCOPED_TRACE(testing::Message() << designs[i].Topology << designs[i].Order << ", " << designs[i].Stages
                                    << " stages, the first of type " << designs[i].stage[1].ElementType);
    const WrittenLadder ladder(designs[i], sheets[i]);
    ladder.ExpectTheValuesOfTheRecord();
    ASSERT_GT(results[i].size(), 40U) << circuits[i].deck << log.substr(0, 2000);
    for (const NgspicePoint& point : results[i]) {
      const Complex expected = ladder.Output(point.frequency);
      if (!(std::abs(expected) > deepest)) continue;
      ++compared;
      ASSERT_NEAR(Decibels(point.voltage), Decibels(expected), tolerance) << point.frequency << " Hz\n"
                                                                          << circuits[i].deck;
    }
  }
  EXPECT_GT(compared, 20 * static_cast<int>(designs.size()));
}

std::vector<i16> DrawnTypes() {
  std::vector<i16> types;
  for (const i16 type : AnalysableTypes()) {
    if (type != Transformer) types.push_back(type);
  }
  return types;
}

TEST(LtspiceCircuit, EveryTypeAloneIsTheCircuitThatIsMeant) {
  std::vector<DesignRecord> designs;
  for (i16 type = SeriesL; type <= SeriesRLC; ++type) {
    designs.push_back(LadderOf({type}));
    SetSweep(designs.back(), 1e4F, 1e8F, 200);
    designs.back().Rload[1] = 75;
  }
  ExpectAgreement(designs);
}

// At the frequency at which the losses are written the schematic is the design as the program analyses it.
TEST(LtspiceCircuit, EveryTypeAloneIsWhatTheProgramAnalyses) {
  std::vector<DesignRecord> designs;
  std::vector<NgspiceCircuit> circuits;
  for (const i16 type : DrawnTypes()) {
    designs.push_back(LadderOf({type}));
    designs.back().stage[1].TLval.degrees = 40;
    designs.back().SweepMode = 1;
    designs.back().Fstart = designs.back().Fstop = 1e6F;
    designs.back().NrIntervals = 1;
    circuits.push_back(CircuitOf(SheetOf(designs.back())));
  }
  const auto results = RunNgspice(circuits);
  for (std::size_t i = 0; i < designs.size(); ++i) {
    ASSERT_EQ(results[i].size(), 1U);
    const Figures ours = EvaluateOne(Compile(designs[i], 1e6F), 1e6F);
    EXPECT_NEAR(Decibels(results[i][0].voltage), ours.transDB, 0.001) << designs[i].stage[1].ElementType;
    EXPECT_NEAR(std::remainder(std::arg(results[i][0].voltage) - ours.angle * Pi / 180, 2 * Pi), 0, 0.001);
  }
}

// Every pin meets another; only the far ends of open stubs stay free.
TEST(LtspiceCircuit, NoPinIsLeftAlone) {
  for (const i16 type : DrawnTypes()) {
    const AscSheet sheet = SheetOf(LadderOf({type, ShuntL}));
    const auto alone =
        std::count_if(sheet.pinsAt.begin(), sheet.pinsAt.end(), [](const auto& node) { return node.second == 1; });
    EXPECT_EQ(alone, type == SeriesOpenStub || type == ShuntOpenStub ? 1 : 0) << type;
  }
}

TEST(LtspiceCircuit, EveryTopologyAndOrderIsTheCircuitThatIsMeant) { ExpectAgreement(AllPoleDesigns()); }

TEST(LtspiceCircuit, EveryCauerDesignIsTheCircuitThatIsMeant) { ExpectAgreement(CauerDesigns()); }

// Names of paths and of pairs that are there twice are left out of the draw.
TEST(LtspiceCircuit, LaddersOfEveryTypeAreTheCircuitsThatAreMeant) {
  std::mt19937 random(23);
  std::vector<i16> types = DrawnTypes();
  std::erase_if(types, [](i16 type) { return type == CoupledInductors || type == SeriesShortStub; });
  std::vector<DesignRecord> designs;
  for (int trial = 0; trial < 100; ++trial) {
    designs.push_back(RandomLadder(random, 1 + trial % stagesLimit, types));
    DesignRecord& record = designs.back();
    record.stage[1].ElementType = trial % 2 == 0 ? CoupledInductors : SeriesShortStub;
    record.NrIntervals = 80;
    for (int s = 1; s <= record.Stages; ++s) {
      if (record.stage[s].ElementType == CoupledInductors) record.stage[s].Lval.value = 0;
      if (s == 10 && trial % 2 == 1) record.stage[s].ElementType = ShuntL;
    }
  }
  ExpectAgreement(designs);
}

TEST(LtspiceCircuit, PathsAndPairsThatShareTheirNamesAreRefused) {
  std::vector<i16> types(10, SeriesR);
  types[0] = SeriesShortStub;
  std::string log;
  const auto results = RunNgspice(
      {CircuitOf(SheetOf(LadderOf(types))), CircuitOf(SheetOf(LadderOf({CoupledInductors, CoupledInductors})))}, &log);
  EXPECT_TRUE(results[0].empty());
  EXPECT_TRUE(results[1].empty());
  EXPECT_NE(log.find("already exists"), std::string::npos) << log;
}

}  // namespace
}  // namespace quilm
