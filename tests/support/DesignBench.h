// A session with a Design page of bare entry boxes, for tests of what the synthesis modules tell the user.
#pragma once

#include <memory>

#include "core/DesignRecord.h"
#include "core/Responses.h"
#include "shell/HeadlessPlatform.h"
#include "shell/Page.h"
#include "shell/Session.h"

namespace quilm {

// Some page with boxes of given names. Counts its loads.
class BoxPage : public Page {
 public:
  BoxPage(Session& session, PageId id, const std::vector<std::string>& names, int& loads)
      : Page(session, id, "Boxes"), loads_(loads) {
    for (const std::string& name : names) boxes_.push_back(std::make_unique<TextBox>(*this, name, name));
  }
  void Load() override { ++loads_; }
  Layout MakeLayout() override { return Column({}); }

 private:
  int& loads_;
  std::vector<std::unique_ptr<TextBox>> boxes_;
};

struct DesignBench {
  int designLoads = 0;
  int analysisLoads = 0;
  HeadlessPlatform platform{"/nowhere"};
  Session session{platform, Pages()};
  DesignRecord& record = session.record;

  // The name of the control that the Design page's focus was sent to, empty for none.
  std::string Focus() {
    Page* page = session.pages.Find(PageId::Design);
    const Control* control = page == nullptr ? nullptr : page->TakeFocusWish();
    return control == nullptr ? "" : control->name;
  }

  std::string TextOf(PageId id, const std::string& name) {
    const Page* page = session.pages.Find(id);
    const auto* box = page == nullptr ? nullptr : dynamic_cast<TextBox*>(page->Find(name));
    return box == nullptr ? "" : box->text;
  }

 private:
  PageDirectory Pages() {
    return {{PageId::Design,
             [this](Session& owner) -> std::unique_ptr<Page> {
               return std::make_unique<BoxPage>(
                   owner, PageId::Design,
                   std::vector<std::string>{"txtBandwidth", "txtCenterFrequency", "txtInputTerm", "txtPassbandRipple",
                                            "txtStopbandFreq", "txtStopbandDepth", "UpDown1", "lblOrderInput"},
                   designLoads);
             }},
            {PageId::Analyze, [this](Session& owner) -> std::unique_ptr<Page> {
               return std::make_unique<BoxPage>(
                   owner, PageId::Analyze,
                   std::vector<std::string>{"txtFstart", "txtFstop", "txtNrIntervals", "lblNrXints", "lblNrYints",
                                            "txtVSWRTop", "txtQinductor", "txtQcapacitor", "txtImpedanceTop"},
                   analysisLoads);
             }}};
  }
};

}  // namespace quilm
