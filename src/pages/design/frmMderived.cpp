#include "pages/design/frmMderived.h"

#include "core/NumberText.h"
#include "core/Topology.h"
#include "core/modGeneral.h"
#include "shell/EntryText.h"
#include "shell/Session.h"

namespace quilm {

namespace {

// An unused zero reads 0.
std::string ZeroText(f32 zero) { return zero == 0 ? "0" : FormatFrequency(zero); }

}  // namespace

frmMderived::frmMderived(Session& session) : Page(session, PageId::Mderived, "M-derived design") {
  int number = 0;
  for (Entry& entry : entries_) {
    const std::string digit = std::to_string(++number);
    entry.label = std::make_unique<Label>(*this, "lblZeroFreq" + digit, "Zero freq " + digit + ": ");
    entry.box = std::make_unique<TextBox>(*this, "txtZeroFreq" + digit, "Zero frequency " + digit + ", Hz",
                                          "A frequency of the stopband, or 0 for none");
    entry.box->onChange = [&entry] { ParseBox(*entry.box, entry.zero, ZeroText); };
    entry.box->onLeave = [&entry] { EchoBox(*entry.box, entry.zero, ZeroText); };
  }
  cmdOk_.onClick = [this] { Accept(); };
  cmdIgnore_.onClick = [this] { session_.pages.UnloadPage(Id()); };
  acceptButton = &cmdOk_;
  cancelButton = &cmdIgnore_;
}

void frmMderived::Load() {
  const DesignRecord& record = session_.record;
  lblInputTermValue_.caption = EntryText(record.Rsource[1], FormatResistance);
  lblBandwidthValue_.caption = EntryText(record.Width, FormatFrequency);
  int i = 0;
  for (Entry& entry : entries_) {
    entry.zero = record.MderivedZero[++i];
    entry.box->text = EntryText(entry.zero, ZeroText);
  }
  SetFocus(*entries_.front().box);
}

bool frmMderived::ZerosAreInStopband() {
  const DesignRecord& record = session_.record;
  for (Entry& entry : entries_) {
    if (entry.zero == 0 || IsInStopband(record, entry.zero)) continue;
    const bool highpass = IsHighpass(record.Topology);
    session_.platform.MessageBox(std::string("The zero frequency must be ") + (highpass ? "lower" : "greater") +
                                     " than " + ShortText(record.Width, LeadingZero::Keep),
                                 Buttons::Ok, Icon::Exclamation, "");
    entry.zero = 0;
    entry.box->Repair("0");
    SetFocus(*entry.box);
    return false;
  }
  return true;
}

void frmMderived::Accept() {
  if (!ZerosAreInStopband()) return;
  int i = 0;
  for (const Entry& entry : entries_) session_.record.MderivedZero[++i] = entry.zero;
  ComputeMderived(session_.record);
  session_.pages.UnloadPage(Id());
}

Layout frmMderived::MakeLayout() {
  std::vector<FormRow> rows = {{Put(lblInputTerm_), Put(lblInputTermValue_)},
                               {Put(lblBandwidth_), Put(lblBandwidthValue_)}};
  for (const Entry& entry : entries_) rows.push_back({Put(*entry.label), Put(*entry.box)});
  return Column({Form(std::move(rows)), Row({Space(), Put(cmdOk_), Put(cmdIgnore_)})});
}

}  // namespace quilm
