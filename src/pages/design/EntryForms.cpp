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
  entries.Bind({.box = txtEntry_, .field = value_, .format = question_.format, .ofZero = OfZero::Blank});
  cmdOk_.onClick = [this] { Accept(); };
  cmdIgnore_.onClick = [this] { session_.pages.UnloadPage(Id()); };
  acceptButton = &cmdOk_;
  cancelButton = &cmdIgnore_;
}

void EntryForm::Load() {
  value_ = question_.field(session_.record);
  entries.Fill();
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

}  // namespace quilm
