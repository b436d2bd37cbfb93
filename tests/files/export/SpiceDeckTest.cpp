// Netlists run in ngspice: against the program's own analysis, and against chain matrices of the values that stand in
// them.
#include <gtest/gtest.h>

#include <cmath>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <set>
#include <sstream>

#include <unistd.h>

#include "analysis/Kernel.h"
#include "core/ElementCatalogue.h"
#include "core/Fault.h"
#include "files/export/AscReader.h"
#include "files/export/ExportDesigns.h"
#include "files/export/LtspiceBench.h"
#include "files/export/SpiceNetlist.h"
#include "files/export/SpiceTexts.h"
#include "support/ChainMatrix.h"
#include "support/NgspiceBatch.h"
#include "support/RandomLadder.h"

namespace quilm {
namespace {

using Complex = ChainMatrix::Complex;
constexpr Complex j(0, 1);

// The words of a line, without its comment.
using Card = std::vector<std::string>;

std::vector<Card> CardsOf(const std::string& deck) {
  std::vector<Card> cards;
  for (const std::string& line : LinesOf(deck)) {
    if (line.empty() || line[0] == '*' || line[0] == '.') continue;
    std::istringstream words(line.substr(0, line.find(';')));
    const Card card{std::istream_iterator<std::string>(words), {}};
    if (!card.empty()) cards.push_back(card);
  }
  return cards;
}

// What stands in the line of an analysis, as a command of ngspice.
std::string SweepOf(const std::string& deck) {
  for (const std::string& line : LinesOf(deck)) {
    if (line.starts_with(".AC ")) return (line[4] == 'D' ? "dec" : "lin") + line.substr(7);
  }
  throw Fault("no sweep");
}

// The cards of a stage; which of them are there follows from its type.
struct StageCards {
  Card coil, coilLoss, capacitor, capacitorLoss, resistor, line, path, primary, secondary, coupling;
};

// The ladder that is meant, with the values that are written.
class WrittenDeck {
 public:
  WrittenDeck(const DesignRecord& meant, const std::string& deck) : meant_(meant), cards_(CardsOf(deck)) {
    Take('V', source_);
    Take('R', input_);
    for (int s = 1; s <= meant.Stages; ++s) TakeStage(meant.stage[s].ElementType, stages_.emplace_back());
    Take('R', output_);
    EXPECT_EQ(next_, cards_.size());
  }

  std::string OutputNode() const { return output_[1]; }

  // The voltage across the load.
  Complex Output(f64 frequency) const {
    const f64 omega = 2 * Pi * frequency;
    ChainMatrix chain;
    for (int s = 1; s <= meant_.Stages; ++s) {
      Append(chain, meant_.stage[s].ElementType, stages_[static_cast<std::size_t>(s) - 1], omega);
    }
    return SimulatorNumber(source_[4]) * chain.Gain(SimulatorNumber(input_[3]), SimulatorNumber(output_[3]));
  }

  // Whether an inner node is one of the line or of another stage too, as in long ladders.
  bool NodesMeet() const {
    std::set<int> taken;
    for (int node = 0; node <= std::stoi(OutputNode()); ++node) taken.insert(node);
    for (int s = 1; s <= meant_.Stages; ++s) {
      for (const int node : InnerNodes(meant_.stage[s].ElementType, s)) {
        if (!taken.insert(node).second) return true;
      }
    }
    return false;
  }

  // Whether a path bears the name of a resistor.
  bool NamesMeet() const {
    std::set<std::string> names;
    for (const Card& card : cards_) names.insert(card[0]);
    return names.size() < cards_.size();
  }

  // Every value that is written is that of the record, as far as its text goes.
  void ExpectTheValuesOfTheRecord() const {
    const f32 Fq = SpiceReferenceFrequency(meant_);
    for (int s = 1; s <= meant_.Stages; ++s) {
      SCOPED_TRACE(testing::Message() << "stage " << s);
      ExpectValuesOf(meant_.stage[s], stages_[static_cast<std::size_t>(s) - 1], Fq);
    }
    ExpectOhms(input_[3], meant_.Rsource[1]);
    ExpectOhms(output_[3], meant_.Rload[1]);
  }

 private:
  std::vector<int> InnerNodes(i16 type, int s) const {
    const StageCards& cards = stages_[static_cast<std::size_t>(s) - 1];
    if (cards.coil.empty() && cards.path.empty()) return {};
    if (type == ShuntSLC || type == SeriesOpenStub) return {10 * s, 10 * s + 1};
    if (type == ShuntRLC) return {10 * s, std::stoi(cards.resistor[1]), std::stoi(cards.resistor[2])};
    return {10 * s};
  }

  void Take(char letter, Card& card) {
    if (next_ == cards_.size() || cards_[next_][0][0] != letter) throw Fault(std::string("no card ") + letter);
    card = cards_[next_++];
  }
  void TakeCoil(StageCards& cards) {
    Take('L', cards.coil);
    Take('R', cards.coilLoss);
  }
  void TakeCapacitor(StageCards& cards) {
    Take('C', cards.capacitor);
    Take('R', cards.capacitorLoss);
  }

  void TakeStage(i16 type, StageCards& cards) {
    if (type == SeriesRLC) return;
    if (HasSlot(type, SlotCode::Inductance)) TakeCoil(cards);
    if (HasSlot(type, SlotCode::Resistance)) Take('R', cards.resistor);
    if (HasSlot(type, SlotCode::Capacitance)) TakeCapacitor(cards);
    if (HasSlot(type, SlotCode::LineLength)) Take('T', cards.line);
    if (HasSlot(type, SlotCode::LineLength) && type != TransLine) Take('R', cards.path);
    if (HasSlot(type, SlotCode::Coupling) || HasSlot(type, SlotCode::TurnsRatio)) {
      Take('L', cards.primary);
      Take('L', cards.secondary);
      Take('K', cards.coupling);
    }
  }

  static Complex CoilOf(const StageCards& cards, f64 omega) {
    return SimulatorNumber(cards.coilLoss[3]) + j * omega * SimulatorNumber(cards.coil[3]);
  }
  static Complex CapacitorOf(const StageCards& cards, f64 omega) {
    return 1.0 / (1 / SimulatorNumber(cards.capacitorLoss[3]) + j * omega * SimulatorNumber(cards.capacitor[3]));
  }
  static f64 ImpedanceOf(const StageCards& cards) { return NumberAfter(cards.line[5], "Zo"); }
  static f64 AngleOf(const StageCards& cards, f64 omega) { return omega * NumberAfter(cards.line[6], "Td"); }
  static Complex StubOf(const StageCards& cards, f64 omega, bool open) {
    const f64 tangent = std::tan(AngleOf(cards, omega));
    return j * ImpedanceOf(cards) * (open ? -1 / tangent : tangent);
  }

  // An open stub to common with the path at its far end.
  static Complex AdmittanceWithPath(const StageCards& cards, f64 omega) {
    const Complex far = 1 / SimulatorNumber(cards.path[3]);
    const f64 Y0 = 1 / ImpedanceOf(cards);
    const Complex jt = j * std::tan(AngleOf(cards, omega));
    return Y0 * (far + Y0 * jt) / (Y0 + far * jt);
  }

  static void Append(ChainMatrix& chain, i16 type, const StageCards& cards, f64 omega) {
    const auto coil = [&] { return CoilOf(cards, omega); };
    const auto capacitor = [&] { return CapacitorOf(cards, omega); };
    switch (type) {
      case SeriesL:
        return chain.Series(coil());
      case ShuntL:
        return chain.Shunt(1.0 / coil());
      case SeriesC:
        return chain.Series(capacitor());
      case ShuntC:
        return chain.Shunt(1.0 / capacitor());
      case SeriesSLC:
        return chain.Series(coil() + capacitor());
      case ShuntSLC:
        return chain.Shunt(1.0 / (coil() + capacitor()));
      case SeriesPLC:
        return chain.Series(1.0 / (1.0 / coil() + 1.0 / capacitor()));
      case ShuntPLC:
        return chain.Shunt(1.0 / coil() + 1.0 / capacitor());
      case SeriesR:
        return chain.Series(SimulatorNumber(cards.resistor[3]));
      case ShuntR:
        return chain.Shunt(1 / SimulatorNumber(cards.resistor[3]));
      case TransLine:
        return chain.Line(ImpedanceOf(cards), AngleOf(cards, omega));
      case SeriesShortStub:
        return chain.Series(StubOf(cards, omega, false));
      case SeriesOpenStub:
        return chain.Series(StubOf(cards, omega, true));
      case ShuntShortStub:
        return chain.Shunt(1.0 / StubOf(cards, omega, false));
      case ShuntOpenStub:
        return chain.Shunt(AdmittanceWithPath(cards, omega));
      case Transformer:
      case CoupledInductors:
        return chain.Coils(SimulatorNumber(cards.primary[3]), SimulatorNumber(cards.secondary[3]),
                           SimulatorNumber(cards.coupling[3]), omega);
      case ShuntRLC:
        return chain.Shunt(1.0 / (coil() + SimulatorNumber(cards.resistor[3]) + capacitor()));
      default:
        return;
    }
  }

  // Texts of parts are those of magnitudes: coupled resonators of wide designs have parts below zero, which lose their
  // sign. Five digits and more.
  static void ExpectPart(const std::string& written, f32 value) {
    const f64 magnitude = std::fabs(static_cast<f64>(value));
    EXPECT_NEAR(SimulatorNumber(written), magnitude, 5.1e-6 * magnitude);
  }
  // Four digits.
  static void ExpectOhms(const std::string& written, f32 ohms) {
    EXPECT_NEAR(SimulatorNumber(written), ohms, 5.1e-4 * static_cast<f64>(ohms));
  }
  // Three decimals of kilohms and above; below, five decimals or five digits.
  static void ExpectLoss(const std::string& written, f32 value) {
    const f64 ohms = std::fabs(static_cast<f64>(value));
    EXPECT_NEAR(SimulatorNumber(written), ohms, ohms >= 1000 ? 5.1e-4 * ohms : std::max(5.1e-6, 5.1e-5 * ohms));
  }
  static void ExpectSevenDigits(f64 written, f64 value) { EXPECT_NEAR(written, value, 6e-7 * value); }

  void ExpectValuesOf(const Stage& stage, const StageCards& cards, f32 Fq) const {
    if (!cards.coil.empty()) {
      ExpectPart(cards.coil[3], stage.Lval.value);
      ExpectLoss(cards.coilLoss[3], std::max(SpiceSeriesLoss(meant_, Fq, stage.Lval.value), 0.0001F));
    }
    if (!cards.capacitor.empty()) {
      ExpectPart(cards.capacitor[3], stage.Cval.value);
      ExpectLoss(cards.capacitorLoss[3], std::min(SpiceParallelLoss(meant_, Fq, stage.Cval.value), 1e7F));
    }
    if (!cards.resistor.empty()) ExpectSevenDigits(SimulatorNumber(cards.resistor[3]), stage.Rval.value);
    if (!cards.line.empty()) {
      const LineValue& line = stage.TLval;
      ExpectSevenDigits(NumberAfter(cards.line[5], "Zo"), line.impedance);
      ExpectSevenDigits(NumberAfter(cards.line[6], "Td"),
                        static_cast<f64>(line.degrees) / 360 / static_cast<f64>(line.freq));
    }
    if (stage.ElementType == Transformer) {
      const f64 ratio = stage.XfmrVal.value;
      ExpectSevenDigits(SimulatorNumber(cards.primary[3]), ratio * ratio);
      EXPECT_EQ(cards.secondary[3] + cards.coupling[3], "1.999999");
    }
    if (stage.ElementType == CoupledInductors) {
      ExpectPart(cards.primary[3], stage.CoupledVal.primary);
      ExpectPart(cards.secondary[3], stage.CoupledVal.secondary);
      ExpectSevenDigits(SimulatorNumber(cards.coupling[3]), stage.CoupledVal.k);
    }
  }

  const DesignRecord& meant_;
  std::vector<Card> cards_;
  std::size_t next_ = 0;
  Card source_, input_, output_;
  std::vector<StageCards> stages_;
};

std::string DeckOf(const DesignRecord& record) {
  const ExportText file = SpiceNetlist(record, SpiceFileKind::CIR, "2026-11-22");
  EXPECT_EQ(file.failure, "");
  return file.text;
}

NgspiceCircuit CircuitOf(const DesignRecord& record) {
  const std::string deck = DeckOf(record);
  return {deck, SweepOf(deck), WrittenDeck(record, deck).OutputNode()};
}

f64 Decibels(const Complex& voltage) { return 20 * std::log10(std::abs(voltage)); }

// What the deck reads where the transmission is so many dB: its amplitude is (Rsource + Rload) / Rload.
f64 ReadingOf(const DesignRecord& record, f64 transDB) {
  const f64 Rs = record.Rsource[1];
  const f64 Rl = record.Rload[1];
  return transDB + 20 * std::log10((Rs + Rl) / Rl) - 10 * std::log10(4 * Rs / Rl);
}

// Reads every deck in ngspice, and compares each whose nodes and names do not meet at every frequency where the loss is
// below 100 dB. Gives the number of those that were compared.
int ExpectAgreement(const std::vector<DesignRecord>& designs) {
  constexpr f64 deepest = 1e-5;
  std::vector<NgspiceCircuit> circuits;
  for (const DesignRecord& design : designs) circuits.push_back(CircuitOf(design));
  const auto results = RunNgspice(circuits);
  int compared = 0;
  for (std::size_t i = 0; i < designs.size(); ++i) {
    SCOPED_TRACE(circuits[i].deck);
    const WrittenDeck deck(designs[i], circuits[i].deck);
    deck.ExpectTheValuesOfTheRecord();
    EXPECT_EQ(results[i].empty(), deck.NamesMeet());
    if (deck.NodesMeet() || deck.NamesMeet()) continue;
    ++compared;
    for (const NgspicePoint& point : results[i]) {
      const Complex expected = deck.Output(point.frequency);
      if (!(std::abs(expected) > deepest)) continue;
      EXPECT_NEAR(Decibels(point.voltage), Decibels(expected), 1e-4) << point.frequency << " Hz";
    }
  }
  return compared;
}

TEST(SpiceDeck, EveryTypeAloneIsWhatTheProgramAnalysesAtTheReferenceFrequency) {
  std::vector<DesignRecord> designs;
  for (const i16 type : AnalysableTypes()) {
    if (type == SeriesRLC) continue;
    DesignRecord record = LadderOf({type});
    record.stage[1].TLval.degrees = 40;
    record.Rload[1] = 200;  // an amplitude of 1.25, which has an exact text
    if (type == Transformer) {
      // The coils of 1 H and 4 H, coupled by .999999, are a transformer below 100 kHz and between some hundred ohms.
      record.stage[1].XfmrVal.value = 2;
      record.Width = 5e4F;
      record.Rsource[1] = 2400;
      record.Rload[1] = 600;
    }
    record.SweepMode = 1;
    record.Fstart = record.Fstop = record.Width;
    record.NrIntervals = 1;
    designs.push_back(record);
  }
  std::vector<NgspiceCircuit> circuits;
  for (const DesignRecord& design : designs) circuits.push_back(CircuitOf(design));
  const auto results = RunNgspice(circuits);
  for (std::size_t i = 0; i < designs.size(); ++i) {
    SCOPED_TRACE(circuits[i].deck);
    ASSERT_EQ(results[i].size(), 1U);
    const f32 Fq = designs[i].Width;
    const Figures ours = EvaluateOne(Compile(designs[i], Fq), Fq);
    EXPECT_NEAR(Decibels(results[i][0].voltage), ReadingOf(designs[i], ours.transDB), 0.001);
    EXPECT_NEAR(std::remainder(std::arg(results[i][0].voltage) - ours.angle * Pi / 180, 2 * Pi), 0, 0.001);
  }
}

TEST(SpiceDeck, EveryTypeAloneIsTheCircuitThatIsWritten) {
  std::vector<DesignRecord> designs;
  for (const i16 type : AnalysableTypes()) {
    designs.push_back(LadderOf({type}));
    designs.back().stage[1].TLval.degrees = 40;
    designs.back().stage[1].XfmrVal.value = 1.5F;
    SetSweep(designs.back(), 1e4F, 1e8F, 200);
  }
  EXPECT_EQ(ExpectAgreement(designs), 19);
}

// The nodes of the long ones meet.
TEST(SpiceDeck, EveryTopologyAndOrderIsTheCircuitThatIsWritten) { EXPECT_GE(ExpectAgreement(AllPoleDesigns()), 130); }

TEST(SpiceDeck, EveryCauerDesignIsTheCircuitThatIsWritten) { EXPECT_GT(ExpectAgreement(CauerDesigns()), 40); }

TEST(SpiceDeck, LaddersOfEveryTypeAreTheCircuitsThatAreWritten) {
  std::mt19937 random(42);
  std::vector<i16> types(AnalysableTypes().begin(), AnalysableTypes().end());
  std::vector<DesignRecord> designs;
  for (int trial = 0; trial < 200; ++trial) {
    DesignRecord& record = designs.emplace_back(RandomLadder(random, 1 + trial % 12, types));
    record.NrIntervals = 80;
    // Behind a shunt coil with resistor nothing may follow.
    for (int s = 1; s < record.Stages; ++s) {
      if (record.stage[s].ElementType == ShuntRLC) record.stage[s].ElementType = ShuntR;
    }
  }
  EXPECT_GT(ExpectAgreement(designs), 150);
}

// ---- the subcircuit -------------------------------------------------------------------------------------------------

// The same network called from a deck gives the same figures.
TEST(SpiceDeck, ASubcircuitIsTheNetworkOfTheDeck) {
  std::vector<DesignRecord> designs;
  for (const i16 type : AnalysableTypes()) designs.push_back(LadderOf({ShuntC, type, SeriesL, type}));
  std::vector<NgspiceCircuit> circuits;
  for (DesignRecord& record : designs) {
    for (int s = 1; s <= record.Stages; ++s) record.stage[s].TLval.degrees = 40;
    for (int s = 1; s <= record.Stages; ++s) record.stage[s].XfmrVal.value = 1.5F;
    record.NrIntervals = 20;
    const std::string deck = DeckOf(record);
    circuits.push_back({deck, SweepOf(deck), WrittenDeck(record, deck).OutputNode()});
    const std::string subcircuit = SpiceNetlist(record, SpiceFileKind::SUB, "2026-11-22").text;
    circuits.push_back({"call\r\n" + subcircuit + "Vin src 0 AC 2\r\nRS src in 50\r\nRL out 0 50\r\n" +
                            "X1 in out 0 Filter\r\n.end\r\n",
                        SweepOf(deck), "out"});
  }
  const auto results = RunNgspice(circuits);
  for (std::size_t i = 0; i < results.size(); i += 2) {
    SCOPED_TRACE(circuits[i + 1].deck);
    ASSERT_GT(results[i].size(), 15U);
    ASSERT_EQ(results[i].size(), results[i + 1].size());
    for (std::size_t k = 0; k < results[i].size(); ++k) {
      const Complex deck = results[i][k].voltage;
      EXPECT_NEAR(std::abs(results[i + 1][k].voltage - deck), 0, 1e-9 * std::abs(deck));
    }
  }
}

// ---- limits of the layout -------------------------------------------------------------------------------------------

// The greatest distance between the decks' readings and the analysis, where the losses of both agree.
f64 DistanceFromAnalysis(const DesignRecord& record) {
  const auto results = RunNgspice({CircuitOf(record)});
  const Ladder ladder = Compile(record, record.Width);
  f64 distance = results[0].empty() ? INFINITY : 0;
  for (const NgspicePoint& point : results[0]) {
    const Figures ours = EvaluateOne(ladder, static_cast<f32>(point.frequency));
    distance = std::max(distance, std::fabs(Decibels(point.voltage) - ReadingOf(record, ours.transDB)));
  }
  return distance;
}

DesignRecord AtReference(const std::vector<i16>& types) {
  DesignRecord record = LadderOf(types);
  record.SweepMode = 1;
  record.Fstart = record.Fstop = 1e6F;
  record.NrIntervals = 1;
  return record;
}

// The inner node 10 of the first coil is the line's from the eighth advance on: seven leave the line at node 9.
TEST(SpiceDeck, InnerNodesMeetTheLineFromEightAdvancesOn) {
  std::vector<i16> types(8, SeriesR);
  types[0] = SeriesL;
  EXPECT_GT(DistanceFromAnalysis(AtReference(types)), 1);
  types.pop_back();
  EXPECT_LT(DistanceFromAnalysis(AtReference(types)), 0.001);
}

TEST(SpiceDeck, APathThatSharesTheNameOfAResistorIsRefused) {
  std::vector<i16> types(10, ShuntR);
  types[0] = ShuntOpenStub;
  std::string log;
  EXPECT_FALSE(RunNgspice({CircuitOf(LadderOf(types))})[0].empty());  // up to R9
  types.push_back(ShuntR);
  EXPECT_TRUE(RunNgspice({CircuitOf(LadderOf(types))}, &log)[0].empty());
  EXPECT_NE(log.find("already exists"), std::string::npos) << log;
}

TEST(SpiceDeck, ACapacitorBelowAPicofaradIsLost) {
  DesignRecord record = AtReference({SeriesC});
  record.stage[1].Cval.value = 1e-12F;
  EXPECT_LT(DistanceFromAnalysis(record), 0.01);
  record.stage[1].Cval.value = 0.99e-12F;
  EXPECT_GT(DistanceFromAnalysis(record), 20);
}

// "1F" is a femtofarad.
TEST(SpiceDeck, ACapacitorOfAFaradIsAFemtofarad) {
  DesignRecord record = AtReference({ShuntC});
  record.stage[1].Cval.value = 1;
  EXPECT_GT(DistanceFromAnalysis(record), 50);
  record.stage[1].Cval.value = 0.999F;
  EXPECT_LT(DistanceFromAnalysis(record), 0.1);
}

TEST(SpiceDeck, ATransformerLeaksAboveSomeHundredKilohertz) {
  DesignRecord record = AtReference({Transformer});
  record.stage[1].XfmrVal.value = 1;
  EXPECT_GT(DistanceFromAnalysis(record), 0.01);
}

// Its inner nodes 3 and 4 are those of the coil that follows.
TEST(SpiceDeck, AShuntCoilWithResistorMeetsTheNextStages) {
  EXPECT_LT(DistanceFromAnalysis(AtReference({SeriesL, ShuntRLC})), 0.001);
  EXPECT_GT(DistanceFromAnalysis(AtReference({ShuntRLC, SeriesL})), 0.1);
}

TEST(SpiceDeck, ALossyTankInTheLineIsLeftOut) {
  const DesignRecord record = AtReference({ShuntC, SeriesRLC, SeriesL});
  EXPECT_GT(DistanceFromAnalysis(record), 0.1);
  const DesignRecord without = AtReference({ShuntC, SeriesL});
  EXPECT_EQ(CardsOf(DeckOf(record)).size(), CardsOf(DeckOf(without)).size());
}

// ---- as users run it ------------------------------------------------------------------------------------------------

// In batch mode ngspice writes what it found where -r says; the deck prints nothing by itself.
TEST(SpiceDeck, RunsInBatchWithAFileForItsResults) {
  const std::filesystem::path folder =
      std::filesystem::temp_directory_path() / ("quilm-deck-" + std::to_string(::getpid()));
  std::filesystem::create_directories(folder);
  const std::string deck = (folder / "lowpass.cir").string();
  const std::string raw = (folder / "lowpass.raw").string();
  std::ofstream(deck, std::ios::binary) << DeckOf(LadderOf({ShuntC, SeriesL, ShuntC}));
  EXPECT_EQ(std::system(("ngspice -b -r " + raw + " " + deck + " >/dev/null 2>&1").c_str()), 0);
  std::ifstream in(raw, std::ios::binary);
  const std::string text(std::istreambuf_iterator<char>(in), {});
  EXPECT_NE(text.find("Plotname: AC Analysis"), std::string::npos);
  EXPECT_NE(text.find("No. Points: 1001"), std::string::npos);  // 250 a decade from 1 kHz to 10 MHz
  std::filesystem::remove_all(folder);
}

}  // namespace
}  // namespace quilm
