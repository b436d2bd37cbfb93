#include "app/EndSignal.h"

#include <gtest/gtest.h>

#include <QTest>
#include <csignal>

namespace quilm {
namespace {

TEST(EndSignal, TheSystemsSignalReachesTheEventLoop) {
  int heard = 0;
  const EndSignal signal([&heard] { ++heard; });
  std::raise(SIGTERM);
  EXPECT_EQ(heard, 0) << "nothing runs within the signal itself";
  EXPECT_TRUE(QTest::qWaitFor([&heard] { return heard == 1; }, 1000));
}

}  // namespace
}  // namespace quilm
