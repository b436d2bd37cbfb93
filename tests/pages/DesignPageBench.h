// The Design page with its entry forms, and plain pages in the places of those that it leads to.
#pragma once

#include "core/Configuration.h"
#include "core/DesignRecord.h"
#include "pages/PageBench.h"
#include "pages/design/EntryForms.h"
#include "pages/design/frmDesign.h"

namespace quilm {

class PlainPage : public Page {
 public:
  PlainPage(Session& session, PageId id) : Page(session, id, "Plain") {}
  Layout MakeLayout() override { return Column({}); }
};

template <class P>
std::unique_ptr<Page> MakePage(Session& session) {
  return std::make_unique<P>(session);
}

inline PageDirectory DesignDirectory() {
  PageDirectory pages = {
      {PageId::Design, MakePage<frmDesign>},
      {PageId::EnterWidth, MakePage<frmEnterWidth>},
      {PageId::EnterCenterFreq, MakePage<frmEnterCenterFreq>},
      {PageId::EnterInput, MakePage<frmEnterInput>},
      {PageId::EnterFstopband, MakePage<frmEnterFstopband>},
  };
  for (const PageId id : {PageId::Plotted, PageId::Help, PageId::ChangeTitle, PageId::AddInfo, PageId::WriteFiles,
                          PageId::SeeNormalized, PageId::ManualEntry, PageId::Mderived}) {
    pages[id] = [id](Session& session) -> std::unique_ptr<Page> { return std::make_unique<PlainPage>(session, id); };
  }
  return pages;
}

class DesignPageBench : public PageBench {
 protected:
  DesignPageBench() : PageBench(DesignDirectory()) { ApplyDefaults(record, session.configuration); }

  void Open() {
    session.pages.ShowPage(PageId::Design);
    platform.pageEvents.clear();
  }

  // A design that needs no repair: a Butterworth lowpass of order 3, 1 MHz, 50 ohms.
  void OpenLowpass() {
    SetLowpass();
    Open();
  }

  void SetLowpass() {
    record.Family = familyButterworth;
    record.Topology = "A";
    record.Order = 3;
    record.Width = 1e6F;
    record.Rsource[1] = 50;
  }

  // The same as a Cauer design, whose option stands on the page though it is not on offer.
  void SetCauer(const std::string& letter, f32 order) {
    SetLowpass();
    record.Family = familyCauer;
    record.CauerFlag = 1;
    record.Topology = letter;
    record.Order = order;
    record.Apass = 0.5F;
    record.Astop = 60;
    record.FstopNorm = 1.5F;
    if (letter == "H") record.Fcenter = 1e7F;
  }

  std::string TextOf(const std::string& name) { return Get<TextBox>(name).text; }
  std::string CaptionOf(const std::string& name) { return Get<Control>(name).caption; }
  bool Shown(const std::string& name) { return Get<Control>(name).Shown(); }
  bool Set(const std::string& name) { return Get<OptionButton>(name).Value(); }
  void Spin(const std::string& name, int direction) { Step(session, Get<quilm::Spin>(name), direction); }
  void Put(const std::string& name, const std::string& text) { Type(session, Get<TextBox>(name), text); }

  // Chooses a family whether it is on offer or not.
  void PressAnyFamily(const std::string& name) {
    Get<OptionButton>(name).enabled = true;
    Press(name);
  }

  // While the next modal page is open: enters `text` and presses Ok.
  void AnswerForm(PageId id, const std::string& box, const std::string& text) {
    platform.modalActs.push_back([this, id, box, text](Page& page) {
      EXPECT_EQ(page.Id(), id);
      Enter(box, text);
      Press("cmdOk");
    });
  }

  // Leaves the next form by its own close box.
  void CloseForm(PageId id) {
    platform.modalActs.push_back([id](Page& page) { EXPECT_EQ(page.Id(), id); });
  }

  DesignRecord& record = session.record;
};

}  // namespace quilm
