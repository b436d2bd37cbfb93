#include <limits>

#include "core/DesignRecord.h"
#include "core/Responses.h"
#include "script/ScriptBench.h"

namespace quilm {
namespace {

void Prepare(Session& session) {
  DesignRecord& record = session.record;
  record.Family = familyChebyshev;
  record.Topology = std::string("F");
  record.Order = 3;
  record.Width = 1e5F;
  record.Rsource[1] = 50;
  record.Rsource[2] = 75;
  record.Gj[1] = 1.0316F;
  record.Gj[2] = 1.1474F;
  record.Gj[3] = 1.0316F;
  record.Gj[4] = 9;
  record.Stages = 2;
  record.stage[1].ElementType = CoupledInductors;
  record.stage[1].CoupledVal = {1, 2, 0.5F, 4, 5, 6};
  record.stage[2].ElementType = TransLine;
  record.stage[2].TLval = {90, 1e6F, 50, 4, 5};
  record.stage[2].Lval = {1e-6F, 10};
  record.LimitShape[10][2] = 7;
  record.MarkerFreq[8] = 1e6F;
  record.NrIntervals = 4;
}

Json RecordOf(const std::string& command) { return RunText(command, Prepare).One("record"); }

TEST(RecordCommand, PrintsTheFieldsAsked) {
  EXPECT_EQ(RecordOf("record Width Topology Family"),
            Json({{"event", "record"}, {"record", {{"Family", 2}, {"Topology", "F"}, {"Width", 1e5}}}}));
}

TEST(RecordCommand, WithoutNamesPrintsAll) {
  const Json event = RecordOf("record");
  for (const char* name : {"Family", "Order", "Stages", "CircuitTitle", "Fcenter", "Rratio", "Gj", "Hj", "SweepMode",
                           "LossBottom", "PlotLineWidth", "SmithAspect", "LimitCount", "LimitBottom", "MarkerFreq"}) {
    EXPECT_TRUE(event["record"].contains(name)) << name;
  }
  EXPECT_EQ(event["stages"].size(), 2U);
}

TEST(RecordCommand, PrototypeValuesRunFromOneToTheOrder) {
  const Json record = RecordOf("record Gj Hj")["record"];
  EXPECT_EQ(record["Gj"], Json({1.0316, 1.1474, 1.0316}));
  EXPECT_EQ(record["Hj"], Json({0.0, 0.0, 0.0}));
}

TEST(RecordCommand, TerminationsAreTheValueAndItsCopy) {
  EXPECT_EQ(RecordOf("record Rsource")["record"]["Rsource"], Json({50.0, 75.0}));
}

TEST(RecordCommand, LimitsAreListsOfListsFromOne) {
  const Json limits = RecordOf("record LimitShape")["record"]["LimitShape"];
  ASSERT_EQ(limits.size(), 10U);
  ASSERT_EQ(limits[9].size(), 6U);
  EXPECT_EQ(limits[9][1], 7.0);
}

TEST(RecordCommand, MarkersAreAListOfEight) {
  const Json markers = RecordOf("record MarkerFreq")["record"]["MarkerFreq"];
  ASSERT_EQ(markers.size(), 8U);
  EXPECT_EQ(markers[7], 1e6);
}

TEST(RecordCommand, StagesHaveTheirValuesInColumnOrder) {
  const Json stages = RecordOf("record stages")["stages"];
  ASSERT_EQ(stages.size(), 2U);
  EXPECT_EQ(stages[0]["ElementType"], 19);
  EXPECT_EQ(stages[0]["CoupledVal"], Json({1.0, 2.0, 0.5, 4.0, 5.0, 6.0}));
  EXPECT_EQ(stages[1]["TLval"], Json({90.0, 1e6, 50.0, 4.0, 5.0}));
  EXPECT_EQ(stages[1]["Lval"], Json({1e-6, 10.0}));
  EXPECT_EQ(stages[1]["XfmrVal"], Json({0.0, 0.0}));
}

TEST(RecordCommand, OneValueOfTheStagesCanBeAsked) {
  const Json event = RecordOf("record Lval");
  EXPECT_EQ(event["stages"], Json({{{"Lval", {0.0, 0.0}}}, {{"Lval", {1e-6, 10.0}}}}));
}

TEST(RecordCommand, WhatIsNotFiniteIsNull) {
  const Outcome outcome =
      RunText("record Rratio", [](Session& session) { session.record.Rratio = std::numeric_limits<f32>::infinity(); });
  EXPECT_TRUE(outcome.One("record")["record"]["Rratio"].is_null());
}

TEST(RecordCommand, AnOrderBeyondTheBoundsIsHeldToThem) {
  const Outcome outcome = RunText("record Gj", [](Session& session) { session.record.Order = 99; });
  EXPECT_EQ(outcome.One("record")["record"]["Gj"].size(), 21U);
}

TEST(ResponsesCommand, PrintsTheWholeSweep) {
  const Outcome outcome = RunText("responses", [](Session& session) {
    Prepare(session);
    session.record.ResponsesValid = 1;
    session.responses.RespFreq[4] = 2e6F;
    session.responses.RespVSWR[4] = std::numeric_limits<f32>::infinity();
    session.responses.TransPeak = -0.25;
    session.responses.TransPeakFreq = 1.5e6;
  });
  const Json event = outcome.One("responses");
  ASSERT_EQ(event["points"].size(), 5U);
  EXPECT_EQ(event["points"][4]["index"], 4);
  EXPECT_EQ(event["points"][4]["RespFreq"], 2e6);
  EXPECT_TRUE(event["points"][4]["RespVSWR"].is_null());
  EXPECT_EQ(event["points"][4].size(), 24U);
  EXPECT_EQ(event["TransPeak"], -0.25);
  EXPECT_EQ(event["TransPeakFreq"], 1.5e6);
  EXPECT_EQ(event["ResponsesValid"], 1);
}

TEST(ResponsesCommand, PrintsTheEnvelopeOfEachResponse) {
  const Outcome outcome = RunText("responses 2", [](Session& session) {
    Prepare(session);
    Responses& r = session.responses;
    f32 value = 0;
    for (ResponseArray* array :
         {&r.MaxTrans, &r.MinTrans, &r.MaxAngle, &r.MinAngle, &r.MaxDelay, &r.MinDelay, &r.MaxReturn, &r.MinReturn,
          &r.MaxVSWR, &r.MinVSWR, &r.MaxZin, &r.MinZin, &r.MaxZinAngle, &r.MinZinAngle}) {
      (*array)[2] = ++value;
    }
  });
  const Json point = outcome.One("responses")["points"][0];
  int value = 0;
  for (const char* name : {"MaxTrans", "MinTrans", "MaxAngle", "MinAngle", "MaxDelay", "MinDelay", "MaxReturn",
                           "MinReturn", "MaxVSWR", "MinVSWR", "MaxZin", "MinZin", "MaxZinAngle", "MinZinAngle"}) {
    EXPECT_EQ(point[name], ++value) << name;
  }
}

TEST(ResponsesCommand, PrintsThePointsAskedInTheirOrder) {
  const Json points = RunText("responses 3 0", Prepare).One("responses")["points"];
  ASSERT_EQ(points.size(), 2U);
  EXPECT_EQ(points[0]["index"], 3);
  EXPECT_EQ(points[1]["index"], 0);
}

}  // namespace
}  // namespace quilm
