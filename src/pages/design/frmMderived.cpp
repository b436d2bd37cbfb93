#include "pages/design/frmMderived.h"

#include "core/Topology.h"
#include "core/modGeneral.h"
#include "shell/Session.h"

namespace quilm {

namespace {

// An unused zero reads 0.
std::string ZeroText(f32 zero) { return zero == 0 ? "0" : FormatFrequency(zero); }

}  // namespace

frmMderived::frmMderived(Session& session) : Page(session, PageId::Mderived, "M-derived design") {
  int number = 0;
  for (Zero& zero : zeros_) {
    const std::string digit = std::to_string(++number);
    zero.label = std::make_unique<Label>(*this, "lblZeroFreq" + digit, "Zero freq " + digit + ": ");
    zero.box = std::make_unique<TextBox>(*this, "txtZeroFreq" + digit, "Zero frequency " + digit + ", Hz",
                                         "A frequency of the stopband, or 0 for none");
    entries.Bind({.box = *zero.box, .field = zero.frequency, .format = ZeroText, .refusal = [this](f32 frequency) {
                    return Refusal(frequency);
                  }});
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
  for (Zero& zero : zeros_) zero.frequency = record.MderivedZero[++i];
  entries.Fill();
  SetFocus(*zeros_.front().box);
}

std::string frmMderived::Refusal(f32 frequency) const {
  const DesignRecord& record = session_.record;
  if (frequency == 0 || IsInStopband(record, frequency)) return {};
  const bool highpass = IsHighpass(record.Topology);
  return std::string("The zero frequency must be ") + (highpass ? "lower" : "greater") + " than " +
         PlainText(record.Width);
}

bool frmMderived::ZerosAreInStopband() {
  Entry* refused = entries.FirstRefused();
  if (refused == nullptr) return true;
  session_.platform.MessageBox(refused->Refusal(), Buttons::Ok, Icon::Exclamation, "");
  refused->Field() = 0;
  refused->Repair();
  SetFocus(refused->Box());
  return false;
}

void frmMderived::Accept() {
  if (!ZerosAreInStopband()) return;
  int i = 0;
  for (const Zero& zero : zeros_) session_.record.MderivedZero[++i] = zero.frequency;
  ComputeMderived(session_.record);
  session_.pages.UnloadPage(Id());
}

Layout frmMderived::MakeLayout() {
  std::vector<FormRow> rows = {{Put(lblInputTerm_), Put(lblInputTermValue_)},
                               {Put(lblBandwidth_), Put(lblBandwidthValue_)}};
  for (const Zero& zero : zeros_) rows.push_back({Put(*zero.label), Put(*zero.box)});
  return Column({Form(std::move(rows)), Row({Space(), Put(cmdOk_), Put(cmdIgnore_)})});
}

}  // namespace quilm
