#include "network/ManualNetwork.h"

#include <gtest/gtest.h>

#include <memory>

#include "core/DesignRecord.h"
#include "core/Responses.h"

namespace quilm {
namespace {

TEST(BeginByHand, NoTopologyAndTheMarksOfAHandMadeNetwork) {
  DesignRecord design;
  design.Topology.assign(1, 'A');
  design.Family = familyCauer;
  design.ResponsesValid = 1;
  BeginByHand(design);
  EXPECT_EQ(design.Topology, "");
  EXPECT_EQ(design.Family, familyManual);
  EXPECT_EQ(design.NetworkEdited, 1);
  EXPECT_EQ(design.ResponsesValid, 0);
}

TEST(ClearNetworkForManual, DiscardsTheNetworkAndItsEntriesAndKeepsTheSweep) {
  DesignRecord design;
  const auto responses = std::make_unique<Responses>();
  for (int s = 1; s <= stageBound; ++s) {
    design.stage[s].ElementType = TransLine;
    design.stage[s].TLval = {1, 2, 3, 4, 5};
    design.stage[s].CoupledVal.kTolerance = 6;
  }
  design.Stages = 40;
  for (auto* pair : {&design.Rsource, &design.Rload, &design.Qind, &design.Qcap}) pair->Fill(50);
  design.Apass = design.Astop = design.Width = design.Fcenter = design.Fstopband = design.Order = 3;
  design.Family = familyBessel;
  design.Fstart = 1e3F;
  design.Fstop = 1e6F;
  design.NrIntervals = 20;
  for (int i = 0; i <= 30; ++i) responses->RespTrans[i] = responses->RespZinAngle[i] = 7;
  ClearNetworkForManual(design, *responses);
  for (int s = 1; s <= stageBound; ++s) EXPECT_EQ(design.stage[s], Stage{}) << s;
  EXPECT_EQ(design.Stages, 0);
  for (const int element : {1, 2}) {
    EXPECT_EQ(design.Rsource[element], 0);
    EXPECT_EQ(design.Rload[element], 0);
    EXPECT_EQ(design.Qind[element], 50);
    EXPECT_EQ(design.Qcap[element], 50);
  }
  for (const f32 entry : {design.Apass, design.Astop, design.Width, design.Fcenter, design.Fstopband, design.Order}) {
    EXPECT_EQ(entry, 0);
  }
  EXPECT_EQ(design.Family, familyNone);
  EXPECT_EQ(design.Fstart, 1e3F);
  EXPECT_EQ(design.Fstop, 1e6F);
  EXPECT_EQ(design.NrIntervals, 20);
  for (const auto* array : {&responses->RespTrans, &responses->RespZinAngle}) {
    EXPECT_EQ((*array)[0], 7);
    EXPECT_EQ((*array)[1], 0);
    EXPECT_EQ((*array)[20], 0);
    EXPECT_EQ((*array)[21], 7);
  }
}

}  // namespace
}  // namespace quilm
