// Any page of the program, as it loads over a 3rd-order Butterworth lowpass of 1 MHz and 50 ohms: 1, 2, 1 as prototype.
#pragma once

#include "desk/StartUp.h"
#include "pages/PageBench.h"
#include "pages/PageDirectory.h"

namespace quilm {

inline std::vector<PageId> AllIds() {
  std::vector<PageId> ids;
  for (const auto& entry : AllPages()) ids.push_back(entry.first);
  return ids;
}

inline std::string NameOfPage(const testing::TestParamInfo<PageId>& info) { return std::string(FormName(info.param)); }

class PageOverLowpass : public PageBench, public testing::WithParamInterface<PageId> {
 protected:
  PageOverLowpass() : PageBench(AllPages()) {
    StartProgram(session);
    DesignRecord& record = session.record;
    record.Family = familyButterworth;
    record.Topology.assign(1, 'A');
    record.Order = 3;
    record.Width = 1e6F;
    record.Rsource[1] = record.Rload[1] = 50;
    record.Rratio = 1;
    record.Stages = 3;
    record.stage[1].ElementType = record.stage[3].ElementType = ShuntC;
    record.stage[1].Cval.value = record.stage[3].Cval.value = 3.1831e-9F;
    record.stage[2].ElementType = SeriesL;
    record.stage[2].Lval.value = 1.5915e-5F;
    session.pages.ShowPage(GetParam());
    page = session.pages.Find(GetParam());
    if (page == nullptr) throw Fault("the page did not stay open");
  }

  Page* page = nullptr;
};

}  // namespace quilm
