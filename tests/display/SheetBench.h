// A session without pages, since a plot needs none, with a linear sweep and round scales.
#pragma once

#include <gtest/gtest.h>

#include "core/DesignRecord.h"
#include "core/Responses.h"
#include "shell/HeadlessPlatform.h"
#include "shell/Session.h"

namespace quilm {

class SheetBench : public testing::Test {
 protected:
  SheetBench() : platform(""), session(platform, {}) {
    DesignRecord& record = session.record;
    record.SweepMode = 1;
    record.NrYints = 6;
    record.LossBottom = -60;
    record.DelayTop = 6e-6F;
    record.VSWRTop = 7;
    record.ImpedanceTop = 120;
    record.Rstandard = 50;
  }

  HeadlessPlatform platform;
  Session session;
};

}  // namespace quilm
