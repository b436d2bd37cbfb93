// The parts of every topology against hand calculation.

#include "synthesis/Topologies.h"

#include "support/HandMadeDesign.h"
#include "synthesis/MakeNetwork.h"

namespace quilm {
namespace {

using ::testing::IsEmpty;

TEST(Topologies, ThirdOrderButterworthLowpass) {
  DesignRecord record = HandMade("A", {1, 2, 1});
  MakeNetwork(record);
  ExpectParts(record, {{ShuntC, 0, 3.1830989e-9}, {SeriesL, 1.5915494e-5, 0}, {ShuntC, 0, 3.1830989e-9}});
  EXPECT_EQ(record.Rload[1], 50);
  EXPECT_EQ(record.Fcenter, 0);
}

TEST(Topologies, AllPoleLowpassAndHighpass) {
  const std::vector<f32> g = {1, 2, 3, 4};
  DesignRecord b = HandMade("B", g);
  MakeNetwork(b);
  ExpectParts(b, {{SeriesL, henry, 0}, {ShuntC, 0, 2 * farad}, {SeriesL, 3 * henry, 0}, {ShuntC, 0, 4 * farad}});
  DesignRecord i = HandMade("I", g);
  MakeNetwork(i);
  ExpectParts(i, {{SeriesC, 0, farad}, {ShuntL, henry / 2, 0}, {SeriesC, 0, farad / 3}, {ShuntL, henry / 4, 0}});
  DesignRecord j = HandMade("J", g);
  MakeNetwork(j);
  ExpectParts(j, {{ShuntL, henry, 0}, {SeriesC, 0, farad / 2}, {ShuntL, henry / 3, 0}, {SeriesC, 0, farad / 4}});
  EXPECT_EQ(b.Fcenter, 0);
  EXPECT_EQ(i.Fcenter, 0);
  EXPECT_EQ(j.Fcenter, 0);
}

// Tuned pairs at 10 MHz, a tenth of it wide: L and C of a pair resonate there.
TEST(Topologies, TunedPairsOfBandpassAndBandstop) {
  const f64 ratio = 0.1 * 0.1;  // of the two values of a pair, per prototype value
  const f64 l = henry;
  const f64 c = farad;
  DesignRecord e = HandMade("E", {1, 2});
  MakeNetwork(e);
  ExpectParts(e, {{ShuntPLC, l * ratio, c}, {SeriesSLC, 2 * l, c * ratio / 2}});
  DesignRecord f = HandMade("F", {1, 2});
  MakeNetwork(f);
  ExpectParts(f, {{SeriesSLC, l, c * ratio}, {ShuntPLC, l * ratio / 2, 2 * c}});
  DesignRecord k = HandMade("K", {1, 2});
  MakeNetwork(k);
  ExpectParts(k, {{SeriesPLC, l * ratio, c}, {ShuntSLC, l / 2, 2 * c * ratio}});
  DesignRecord m = HandMade("L", {1, 2});
  MakeNetwork(m);
  ExpectParts(m, {{ShuntSLC, l, c * ratio}, {SeriesPLC, 2 * l * ratio, c / 2}});
  EXPECT_EQ(m.Fcenter, 1e7F);
}

// The coupled forms by their conditions: all nodes (meshes) resonate at the centre with their neighbours
// short-circuited (open), and neighbours couple by the relative bandwidth over the root of their prototype values.
TEST(Topologies, NodalCapacitorCoupling) {
  DesignRecord record = HandMade("C", {1, 2, 1});
  MakeNetwork(record);
  const f64 node = farad;
  const f64 coupling = node * 0.1 / std::sqrt(2.0);
  const f64 tank = 1 / (wc * wc * node);
  ExpectParts(record, {{ShuntPLC, tank, node - coupling},
                       {SeriesC, 0, coupling},
                       {ShuntPLC, tank, node - 2 * coupling},
                       {SeriesC, 0, coupling},
                       {ShuntPLC, tank, node - coupling}});
}

TEST(Topologies, NodalInductorCoupling) {
  DesignRecord record = HandMade("D", {1, 2, 1});
  MakeNetwork(record);
  const f64 tank = 1 / (wc * wc * farad);
  const f64 coupling = tank / (0.1 / std::sqrt(2.0));
  const f64 end = 1 / (1 / tank - 1 / coupling);
  const f64 middle = 1 / (1 / tank - 2 / coupling);
  ExpectParts(record, {{ShuntPLC, end, farad},
                       {SeriesL, coupling, 0},
                       {ShuntPLC, middle, farad},
                       {SeriesL, coupling, 0},
                       {ShuntPLC, end, farad}});
}

TEST(Topologies, MeshCapacitorCoupling) {
  DesignRecord record = HandMade("G", {1, 2, 1});
  MakeNetwork(record);
  const f64 mesh = 1 / (wc * wc * henry);
  const f64 coupling = mesh / (0.1 / std::sqrt(2.0));
  const f64 end = 1 / (1 / mesh - 1 / coupling);
  const f64 middle = 1 / (1 / mesh - 2 / coupling);
  ExpectParts(record, {{SeriesSLC, henry, end},
                       {ShuntC, 0, coupling},
                       {SeriesSLC, henry, middle},
                       {ShuntC, 0, coupling},
                       {SeriesSLC, henry, end}});
}

// Positions of a prototype with zeros: odd Gj shunt capacitors, even Hj inductors with Gj across them.
const std::vector<f32> zeroG = {1.5F, 0.2F, 2, 0.5F, 1.25F};
const std::vector<f32> zeroH = {0, 1.1F, 0, 0.9F, 0};

TEST(Topologies, LowpassWithZeros) {
  DesignRecord a = HandMade("A", zeroG, zeroH, 1);
  MakeNetwork(a);
  ExpectParts(a, {{ShuntC, 0, 1.5 * farad},
                  {SeriesPLC, 1.1F * henry, 0.2F * farad},
                  {ShuntC, 0, 2 * farad},
                  {SeriesPLC, 0.9F * henry, 0.5 * farad},
                  {ShuntC, 0, 1.25 * farad}});
  DesignRecord b = HandMade("B", zeroG, zeroH, 1);
  MakeNetwork(b);
  ExpectParts(b, {{SeriesL, 1.5 * henry, 0},
                  {ShuntSLC, 0.2F * henry, 1.1F * farad},
                  {SeriesL, 2 * henry, 0},
                  {ShuntSLC, 0.5 * henry, 0.9F * farad},
                  {SeriesL, 1.25 * henry, 0}});
}

TEST(Topologies, HighpassWithZeros) {
  DesignRecord i = HandMade("I", zeroG, zeroH, 1);
  MakeNetwork(i);
  ExpectParts(i, {{SeriesC, 0, farad / 1.5},
                  {ShuntSLC, henry / 1.1F, farad / 0.2F},
                  {SeriesC, 0, farad / 2},
                  {ShuntSLC, henry / 0.9F, farad / 0.5},
                  {SeriesC, 0, farad / 1.25}});
  DesignRecord j = HandMade("J", zeroG, zeroH, 1);
  MakeNetwork(j);
  ExpectParts(j, {{ShuntL, henry / 1.5, 0},
                  {SeriesPLC, henry / 0.2F, farad / 1.1F},
                  {ShuntL, henry / 2, 0},
                  {SeriesPLC, henry / 0.5, farad / 0.9F},
                  {ShuntL, henry / 1.25, 0}});
}

// In an even order the last zero lies at infinity (at 0 for a highpass): a plain part ends the ladder, whether the
// prototype gives it a second value or not.
TEST(Topologies, EvenOrderWithZerosEndsInAPlainPart) {
  for (const f32 last : {0.0F, 0.3F}) {
    const std::vector<f32> g = {1, 0.5F, 2, last};
    const std::vector<f32> h = {0, 1, 0, 4};
    DesignRecord a = HandMade("A", g, h, 1);
    MakeNetwork(a);
    ExpectParts(a,
                {{ShuntC, 0, farad}, {SeriesPLC, henry, farad / 2}, {ShuntC, 0, 2 * farad}, {SeriesL, 4 * henry, 0}});
    DesignRecord i = HandMade("I", g, h, 1);
    MakeNetwork(i);
    ExpectParts(i,
                {{SeriesC, 0, farad}, {ShuntSLC, henry, 2 * farad}, {SeriesC, 0, farad / 2}, {ShuntL, henry / 4, 0}});
    DesignRecord j = HandMade("J", g, h, 1);
    MakeNetwork(j);
    ExpectParts(j,
                {{ShuntL, henry, 0}, {SeriesPLC, 2 * henry, farad}, {ShuntL, henry / 2, 0}, {SeriesC, 0, farad / 4}});
  }
  DesignRecord b = HandMade("B", {1, 0.5F, 2, 0}, {0, 1, 0, 4}, 1);
  MakeNetwork(b);
  ExpectParts(b, {{SeriesL, henry, 0}, {ShuntSLC, henry / 2, farad}, {SeriesL, 2 * henry, 0}, {ShuntC, 0, 4 * farad}});
}

// Without the flag a second value makes a trap of the even positions.
TEST(Topologies, SecondValuesWithoutTheFlag) {
  const std::vector<f32> g = {1, 2, 1};
  const std::vector<f32> h = {0, 0.5F, 0};
  DesignRecord a = HandMade("A", g, h);
  MakeNetwork(a);
  ExpectParts(a, {{ShuntC, 0, farad}, {SeriesPLC, 2 * henry, farad / 2}, {ShuntC, 0, farad}});
  DesignRecord b = HandMade("B", g, h);
  MakeNetwork(b);
  ExpectParts(b, {{SeriesL, henry, 0}, {ShuntSLC, henry / 2, 2 * farad}, {SeriesL, henry, 0}});
  DesignRecord i = HandMade("I", g, h);
  MakeNetwork(i);
  ExpectParts(i, {{SeriesC, 0, farad}, {ShuntSLC, henry / 2, 2 * farad}, {SeriesC, 0, farad}});
  DesignRecord j = HandMade("J", g, h);
  MakeNetwork(j);
  ExpectParts(j, {{ShuntL, henry, 0}, {SeriesPLC, 2 * henry, 2 * farad}, {ShuntL, henry, 0}});
}

}  // namespace
}  // namespace quilm
