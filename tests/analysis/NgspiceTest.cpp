// The engine against an independent program: random ladders in ngspice's ac analysis, at the frequency at which the two
// loss models agree.

#include <gtest/gtest.h>

#include <cmath>
#include <complex>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iomanip>
#include <sstream>

#include <unistd.h>

#include "analysis/Kernel.h"
#include "support/RandomLadder.h"

namespace quilm {
namespace {

constexpr f64 f0 = 1e6;  // where inductor Q is quoted

// Writes the parts of a ladder as ngspice reads them. Node n0 is behind the source, n1, n2, ... behind each stage.
class Netlist {
 public:
  explicit Netlist(const DesignRecord& record) : record_(record) {
    out_ << std::setprecision(17) << "ladder\nV1 src 0 AC 1\n";
    Part('R', "src", "n0", record.Rsource[1]);
    for (int s = 1; s <= record.Stages; ++s) Write(s);
    Part('R', Node(record.Stages), "0", record.Rload[1]);
  }

  std::string Text(const std::string& result) const {
    return out_.str() + ".control\nset wr_singlescale\nset numdgt=15\nac lin 1 1e6 1e6\nwrdata " + result + " v(" +
           Node(record_.Stages) + ")\nquit\n.endc\n.end\n";
  }

 private:
  static std::string Node(int s) { return std::string("n").append(std::to_string(s)); }

  void Part(char kind, const std::string& a, const std::string& b, f64 value) {
    out_ << kind << ++parts_ << ' ' << a << ' ' << b << ' ' << value << '\n';
  }

  std::string Between() { return std::string("m").append(std::to_string(++nodes_)); }

  void Inductor(const std::string& a, const std::string& b, f64 L) {
    const std::string middle = Between();
    Part('L', a, middle, L);
    Part('R', middle, b, 2 * Pi * f0 * L / record_.Qind[1]);
  }

  void Capacitor(const std::string& a, const std::string& b, f64 C) {
    Part('C', a, b, C);
    Part('R', a, b, record_.Qcap[1] / (2 * Pi * f0 * C));
  }

  void Tank(const std::string& a, const std::string& b, const Stage& stage) {
    Inductor(a, b, stage.Lval.value);
    Capacitor(a, b, stage.Cval.value);
    Part('R', a, b, 1e11);
  }

  void SeriesPair(const std::string& a, const std::string& b, const Stage& stage) {
    const std::string middle = Between();
    Inductor(a, middle, stage.Lval.value);
    Capacitor(middle, b, stage.Cval.value);
  }

  void Line(const std::string& a, const std::string& b, const std::string& c, const std::string& d,
            const LineValue& line) {
    out_ << 'T' << ++parts_ << ' ' << a << ' ' << b << ' ' << c << ' ' << d << " Z0=" << line.impedance
         << " F=" << line.freq << " NL=" << static_cast<f64>(line.degrees) / 360 << '\n';
  }

  // The far end of a stub: shorted, or left open.
  void Stub(const std::string& a, const std::string& b, const LineValue& line, bool open) {
    const std::string far = Between();
    const std::string back = open ? Between() : far;
    Line(a, b, far, back, line);
    Part('R', far, "0", 1e15);
    if (open) Part('R', far, back, 1e15);
  }

  void Transform(const std::string& a, const std::string& b, f64 n) {
    const std::string sense = Between();
    out_ << 'E' << ++parts_ << ' ' << a << ' ' << sense << ' ' << b << " 0 " << n << '\n';
    out_ << "Vs" << ++parts_ << ' ' << sense << " 0 0\n";
    out_ << 'F' << parts_ + 1 << " 0 " << b << " Vs" << parts_ << ' ' << n << '\n';
    ++parts_;
  }

  void Couple(const std::string& a, const std::string& b, const CoupledValue& coil) {
    const int first = parts_ + 1;
    Part('L', a, "0", coil.primary);
    Part('L', b, "0", coil.secondary);
    out_ << 'K' << ++parts_ << " L" << first << " L" << first + 1 << ' ' << coil.k << '\n';
  }

  bool WriteShunt(const Stage& stage, const std::string& a) {
    switch (stage.ElementType) {
      case ShuntL:
        Inductor(a, "0", stage.Lval.value);
        return true;
      case ShuntC:
        Capacitor(a, "0", stage.Cval.value);
        return true;
      case ShuntSLC:
        SeriesPair(a, "0", stage);
        return true;
      case ShuntPLC:
        Tank(a, "0", stage);
        return true;
      case ShuntR:
        Part('R', a, "0", stage.Rval.value);
        return true;
      case ShuntShortStub:
        Stub(a, "0", stage.TLval, false);
        return true;
      case ShuntOpenStub:
        Stub(a, "0", stage.TLval, true);
        return true;
      case ShuntRLC: {
        const std::string middle = Between();
        Part('R', a, middle, stage.Rval.value);
        SeriesPair(middle, "0", stage);
        return true;
      }
      default:
        return false;
    }
  }

  void WriteSeries(const Stage& stage, const std::string& a, const std::string& b) {
    switch (stage.ElementType) {
      case SeriesL:
        return Inductor(a, b, stage.Lval.value);
      case SeriesC:
        return Capacitor(a, b, stage.Cval.value);
      case SeriesSLC:
        return SeriesPair(a, b, stage);
      case SeriesPLC:
        return Tank(a, b, stage);
      case SeriesR:
        return Part('R', a, b, stage.Rval.value);
      case TransLine:
        return Line(a, "0", b, "0", stage.TLval);
      case SeriesShortStub:
        return Stub(a, b, stage.TLval, false);
      case SeriesOpenStub:
        return Stub(a, b, stage.TLval, true);
      case Transformer:
        return Transform(a, b, stage.XfmrVal.value);
      case CoupledInductors:
        return Couple(a, b, stage.CoupledVal);
      case SeriesRLC:
        Tank(a, b, stage);
        return Part('R', a, b, stage.Rval.value);
      default:
        FAIL() << "no netlist for type " << stage.ElementType;
    }
  }

  void Write(int s) {
    const Stage& stage = record_.stage[s];
    if (WriteShunt(stage, Node(s - 1))) {
      out_ << "Vs" << ++parts_ << ' ' << Node(s - 1) << ' ' << Node(s) << " 0\n";
    } else {
      WriteSeries(stage, Node(s - 1), Node(s));
    }
  }

  const DesignRecord& record_;
  std::ostringstream out_;
  int parts_ = 0;
  int nodes_ = 0;
};

class Ngspice : public testing::Test {
 protected:
  void SetUp() override {
    folder_ = std::filesystem::temp_directory_path() / ("quilm-ngspice-" + std::to_string(::getpid()));
    std::filesystem::create_directories(folder_);
    ASSERT_EQ(std::system("ngspice --version >/dev/null 2>&1"), 0)
        << "ngspice is not installed; tools/install-packages test installs it";
  }
  void TearDown() override { std::filesystem::remove_all(folder_); }

  // The voltage across the load for a source of 1 V.
  std::complex<f64> OutputOf(const DesignRecord& record) {
    const std::string circuit = (folder_ / "ladder.cir").string();
    const std::string result = (folder_ / "ladder.data").string();
    std::filesystem::remove(result);
    std::ofstream(circuit) << Netlist(record).Text(result);
    EXPECT_EQ(std::system(("ngspice -b " + circuit + " >/dev/null 2>&1").c_str()), 0);
    std::ifstream in(result);
    f64 frequency = 0;
    f64 re = 0;
    f64 im = 0;
    in >> frequency >> re >> im;
    EXPECT_TRUE(in) << "no result in " << result;
    return {re, im};
  }

  std::filesystem::path folder_;
};

TEST_F(Ngspice, AgreesOnRandomLaddersOfEveryElement) {
  std::mt19937 random(11);
  const f32 ratios[] = {0.25F, 0.5F, 2, 4};  // with exact reciprocals
  for (int trial = 0; trial < 60; ++trial) {
    DesignRecord record = RandomLadder(random, 1 + trial % 9, AnalysableTypes());
    // Every type stands in some ladder on its own, too.
    if (trial < 19) {
      record.Stages = 1;
      record.stage[1].ElementType = AnalysableTypes()[static_cast<std::size_t>(trial)];
    }
    for (int s = 1; s <= record.Stages; ++s) {
      record.stage[s].XfmrVal.value = ratios[static_cast<std::size_t>(random() % 4)];
      // The reciprocal of a shunt resistance rests in 32 bits; a power of two has an exact one.
      if (record.stage[s].ElementType == ShuntR) record.stage[s].Rval.value = 64;
    }
    const Figures ours = EvaluateOne(Compile(record, static_cast<f32>(f0)), static_cast<f32>(f0));
    const std::complex<f64> V = OutputOf(record);
    const f64 available = static_cast<f64>(record.Rload[1]) / (4 * static_cast<f64>(record.Rsource[1]));
    EXPECT_NEAR(ours.transDB, 10 * std::log10(std::norm(V) / available), 1e-6) << "trial " << trial;
    EXPECT_NEAR(std::remainder(ours.angle - std::arg(V) * 180 / Pi, 360), 0, 1e-5) << "trial " << trial;
  }
}

}  // namespace
}  // namespace quilm
