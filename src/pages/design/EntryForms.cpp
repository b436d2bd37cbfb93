#include "pages/design/EntryForms.h"

#include <algorithm>

#include "core/Fault.h"
#include "core/modGeneral.h"
#include "network/DesignStanding.h"
#include "shell/Session.h"

namespace quilm {

namespace {

const EntryQuestion questions[] = {
    {PageId::EnterWidth, "Enter bandwidth", "Please enter a bandwidth, Hz:", "txtWidth",
     [](DesignRecord& record) -> f32& { return record.Width; }, FormatFrequency},
    {PageId::EnterCenterFreq, "Enter center frequency", "Please enter a center frequency, Hz:", "txtCenterFreq",
     [](DesignRecord& record) -> f32& { return record.Fcenter; }, FormatFrequency},
    {PageId::EnterInput, "Enter input termination", "Please enter an input termination, ohms:", "txtInput",
     [](DesignRecord& record) -> f32& { return record.Rsource[1]; }, FormatResistance},
    {PageId::EnterFstopband, "Enter stopband", "Please enter a stopband, Hz:", "txtFstopband",
     [](DesignRecord& record) -> f32& { return record.Fstopband; }, FormatFrequency},
    {PageId::EnterAstop, "Enter stopband depth", "Please enter a stopband depth, dB:", "txtAstop",
     [](DesignRecord& record) -> f32& { return record.Astop; }, FormatValue},
};

}  // namespace

const EntryQuestion& QuestionOf(PageId page) {
  const auto at = std::find_if(std::begin(questions), std::end(questions),
                               [page](const EntryQuestion& question) { return question.page == page; });
  if (at == std::end(questions)) throw Fault("There is no entry form " + std::string(FormName(page)));
  return *at;
}

EntryForm::EntryForm(Session& session, const EntryQuestion& question)
    : Page(session, question.page, question.title),
      question_(question),
      lblEntry_(*this, "lblEntry", question.question),
      txtEntry_(*this, question.box, question.question) {
  txtEntry_.onChange = [this] { ParseBox(txtEntry_, value_, question_.format); };
  txtEntry_.onLeave = [this] { EchoBox(txtEntry_, value_, question_.format); };
  cmdOk_.onClick = [this] { Accept(); };
  cmdIgnore_.onClick = [this] { session_.pages.UnloadPage(Id()); };
  acceptButton = &cmdOk_;
  cancelButton = &cmdIgnore_;
}

void EntryForm::Load() {
  value_ = question_.field(session_.record);
  txtEntry_.text = FilledText(value_, question_.format);
  SetFocus(txtEntry_);
}

void EntryForm::Accept() {
  question_.field(session_.record) = value_;
  ForgetNetwork(session_.record);
  session_.pages.UnloadPage(Id());
}

Layout EntryForm::MakeLayout() {
  return Column({Form({{Put(lblEntry_), Put(txtEntry_)}}), Row({Space(), Put(cmdOk_), Put(cmdIgnore_)})});
}

frmEnterTopology::frmEnterTopology(Session& session) : Page(session, PageId::EnterTopology, "Enter topology") {
  topologies_.OnChoice([this](const std::string& letter) { chosen_ = letter; });
  cmdOk_.onClick = [this] { Accept(); };
  cmdIgnore_.onClick = [this] { session_.pages.UnloadPage(Id()); };
  acceptButton = &cmdOk_;
  cancelButton = &cmdIgnore_;
}

void frmEnterTopology::Load() {
  chosen_ = session_.record.Topology;
  topologies_.Choose(chosen_);
  topologies_.OfferFor(session_.record.Family);
}

void frmEnterTopology::Accept() {
  DesignRecord& record = session_.record;
  if (chosen_ != record.Topology) {
    record.Topology = chosen_;
    if (IsLowOrHighpass(chosen_)) record.Fcenter = 0;
    ForgetNetwork(record);
  }
  session_.pages.UnloadPage(Id());
}

Layout frmEnterTopology::MakeLayout() {
  std::vector<Layout> options;
  for (int number = 1; number <= topologyCount; ++number) options.push_back(Put(topologies_.Option(number)));
  return Column({Put(lblTopology_), Column(std::move(options)), Row({Space(), Put(cmdOk_), Put(cmdIgnore_)})});
}

}  // namespace quilm
