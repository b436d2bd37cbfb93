// Which points fail: a division by exactly zero, an overflow or a logarithm outside its domain in any sub-result, also
// where infinities would cancel later on.

#include <gtest/gtest.h>

#include <functional>
#include <vector>

#include "analysis/Kernel.h"
#include "support/PlainAnalysis.h"

namespace quilm {
namespace {

DesignRecord OneStage(i16 type) {
  DesignRecord record;
  record.Stages = 1;
  Stage& stage = record.stage[1];
  stage.ElementType = type;
  stage.Lval.value = 10e-6F;
  stage.Cval.value = 2.2e-9F;
  stage.Rval.value = 33;
  stage.TLval = {60, 1e6F, 75, 0, 0};
  stage.XfmrVal.value = 2;
  stage.CoupledVal = {10e-6F, 40e-6F, 0.5F, 0, 0, 0};
  record.Rsource[1] = record.Rload[1] = record.Rstandard = 50;
  record.Qind[1] = 150;
  record.Qcap[1] = 900;
  record.Width = 1e6F;
  return record;
}

using Change = std::function<void(DesignRecord&, f32& frequency)>;

struct Row {
  const char* what;
  std::vector<i16> types;
  Change change;
};

Stage& First(DesignRecord& record) { return record.stage[1]; }

const std::vector<i16> allTypes = {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16, 19, 20, 21};

const Row failing[] = {
    {"Qind 0", {1, 2, 5, 6, 7, 8, 20, 21}, [](DesignRecord& r, f32&) { r.Qind[1] = 0; }},
    {"Qind 0 and L 0", {1, 2, 5, 6, 7, 8, 20, 21}, [](DesignRecord& r, f32&) { r.Qind[1] = First(r).Lval.value = 0; }},
    {"w 0 with a C", {3, 4, 5, 6, 7, 8, 20, 21}, [](DesignRecord&, f32& f) { f = 0; }},
    {"L 0", {2, 7, 8, 21}, [](DesignRecord& r, f32&) { First(r).Lval.value = 0; }},
    {"w 0", {2, 7, 8, 19, 21}, [](DesignRecord& r, f32& f) { f = First(r).Cval.value = 0; }},
    {"Fq 0", {2, 7, 8, 21}, [](DesignRecord& r, f32&) { r.Width = 0; }},
    {"Qcap 0", {4, 7, 8, 21}, [](DesignRecord& r, f32&) { r.Qcap[1] = 0; }},
    {"Qcap 0 and C 0", {4}, [](DesignRecord& r, f32&) { r.Qcap[1] = First(r).Cval.value = 0; }},
    {"no resistance in the branch",
     {6, 20},
     [](DesignRecord& r, f32&) { r.Qcap[1] = First(r).Lval.value = First(r).Rval.value = 0; }},
    {"R 0", {10, 21}, [](DesignRecord& r, f32&) { First(r).Rval.value = 0; }},
    {"R whose reciprocal overflows 32 bits", {10}, [](DesignRecord& r, f32&) { First(r).Rval.value = 1e-39F; }},
    {"ratio 0", {16}, [](DesignRecord& r, f32&) { First(r).XfmrVal.value = 0; }},
    {"ratio whose reciprocal overflows 32 bits", {16}, [](DesignRecord& r, f32&) { First(r).XfmrVal.value = 1e-39F; }},
    {"reference frequency 0", {11, 12, 13, 14, 15}, [](DesignRecord& r, f32&) { First(r).TLval.freq = 0; }},
    {"impedance 0", {11, 14, 15}, [](DesignRecord& r, f32&) { First(r).TLval.impedance = 0; }},
    {"tan t 0", {13, 14}, [](DesignRecord&, f32& f) { f = 0; }},
    {"L1 L2 negative", {19}, [](DesignRecord& r, f32&) { First(r).CoupledVal.primary = -1e-6F; }},
    {"k 0", {19}, [](DesignRecord& r, f32&) { First(r).CoupledVal.k = 0; }},
    {"Rload 0", allTypes, [](DesignRecord& r, f32&) { r.Rload[1] = 0; }},
    {"Rsource 0", allTypes, [](DesignRecord& r, f32&) { r.Rsource[1] = 0; }},
    {"Rload negative", allTypes, [](DesignRecord& r, f32&) { r.Rload[1] = -50; }},
};

const Row passing[] = {
    {"L 0", {1, 5}, [](DesignRecord& r, f32&) { First(r).Lval.value = 0; }},
    {"Qcap 0", {3, 5}, [](DesignRecord& r, f32&) { r.Qcap[1] = 0; }},
    {"w 0", {1, 9, 10, 11, 12, 15, 16}, [](DesignRecord&, f32& f) { f = 0; }},
    {"impedance 0", {12, 13}, [](DesignRecord& r, f32&) { First(r).TLval.impedance = 0; }},
    {"R 0", {9, 20}, [](DesignRecord& r, f32&) { First(r).Rval.value = 0; }},
    {"Rstandard 0", allTypes, [](DesignRecord& r, f32&) { r.Rstandard = 0; }},
    {"a negative frequency", allTypes, [](DesignRecord&, f32& f) { f = -2e6F; }},
    {"a negative C", {3, 4, 5, 6, 7, 8}, [](DesignRecord& r, f32&) { First(r).Cval.value = -1e-9F; }},
    {"codes that are empty places", {0, 17, 18, 22}, [](DesignRecord&, f32&) {}},
};

// Whether the formulas as they stand come to the end.
bool PlainPasses(const DesignRecord& record, f32 frequency) {
  plain::Point point;
  point.VSWR = -1;
  plain::AnalyzePoint(record, record.Width, 0, 0, frequency, point);
  return point.VSWR != -1;
}

bool EnginePasses(const DesignRecord& record, f32 frequency) {
  return EvaluateOne(Compile(record, record.Width), frequency).reached == reachedAll;
}

void Check(const Row& row, bool passes) {
  for (const i16 type : row.types) {
    DesignRecord record = OneStage(type);
    f32 frequency = 2e6F;
    row.change(record, frequency);
    EXPECT_EQ(EnginePasses(record, frequency), passes) << row.what << ", type " << type;
    EXPECT_EQ(PlainPasses(record, frequency), passes) << row.what << ", type " << type << " (reference)";
  }
}

TEST(FailingPoint, TheRowsOfTheTableFail) {
  for (const Row& row : failing) Check(row, false);
}

TEST(FailingPoint, NothingElseFails) {
  for (const i16 type : allTypes) EXPECT_TRUE(EnginePasses(OneStage(type), 2e6F)) << type;
  for (const Row& row : passing) Check(row, true);
}

// A negative resistance that takes up just what the load draws: no current enters the network.
TEST(FailingPoint, ADenominatorOfZeroKeepsTheTransmission) {
  DesignRecord record = OneStage(ShuntR);
  record.Rload[1] = 64;
  record.stage[1].Rval.value = -64;
  EXPECT_EQ(EvaluateOne(Compile(record, 1e6F), 1e6F).reached, reachedTransmission);
}

TEST(FailingPoint, AReflectionWithoutADenominatorKeepsTheImpedance) {
  DesignRecord record = OneStage(SeriesR);
  record.stage[1].Rval.value = 0;
  record.Rstandard = -50;
  EXPECT_EQ(EvaluateOne(Compile(record, 1e6F), 1e6F).reached, reachedImpedance);
}

}  // namespace
}  // namespace quilm
