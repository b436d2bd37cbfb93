#include "files/SampleDesign.h"

namespace quilm {

namespace {

void SetValues(Stage& stage) {
  stage.Lval = {1.5e-6F, 5};
  stage.Cval = {4.7e-9F, 2};
  stage.Rval = {75, 1};
  stage.TLval = {30, 1e9F, 50, 2, 3};
  stage.XfmrVal = {2, 4};
  stage.CoupledVal = {1e-6F, 4e-6F, 0.5F, 1, 2, 3};
}

}  // namespace

DesignRecord PlainDesign() {
  DesignRecord record;
  record.Family = familyButterworth;
  record.Topology.push_back('A');
  record.Order = 0;
  record.CircuitTitle = "Sample";
  record.AddedInfo = "for the bench";
  record.CauerType.push_back('A');
  record.Width = 1e6F;
  record.Rsource[1] = 50;
  record.Rload[1] = 50;
  record.Rratio = 1;
  record.Rstandard = 50;
  record.Qind[1] = 200;
  record.Qcap[1] = 2000;
  record.SweepMode = 2;
  record.Fstart = 1000;
  record.Fstop = 1e7F;
  record.NrIntervals = 1000;
  record.LossBottom = -60;
  record.DelayTop = 0.0001F;
  record.VSWRTop = 2.2F;
  record.ImpedanceTop = 1200;
  record.NrXints = 10;
  record.NrYints = 6;
  return record;
}

DesignRecord DesignOfEveryType() {
  DesignRecord record = PlainDesign();
  const i16 types[] = {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16, 19, 20, 21};
  for (const i16 type : types) {
    Stage& stage = record.stage[++record.Stages];
    stage.ElementType = type;
    SetValues(stage);
  }
  return record;
}

}  // namespace quilm
