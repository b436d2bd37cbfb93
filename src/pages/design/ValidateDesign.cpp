#include "pages/design/ValidateDesign.h"

#include <cmath>

#include "core/DesignRecord.h"
#include "core/EntryLimits.h"
#include "core/Topology.h"
#include "desk/FamilyRules.h"
#include "network/DesignStanding.h"
#include "pages/design/DesignControls.h"
#include "shell/Session.h"
#include "synthesis/EntryRules.h"

namespace quilm {

namespace {

constexpr const char* cauerLowpassLine = "For a Cauer lowpass, the stopband must be greater than";
constexpr const char* cauerBandpassLine = "For a Cauer bandpass, the stopband must be greater than";
constexpr const char* cauerHighpassLine = "For a Cauer highpass, the stopband must be less than";

class Validation {
 public:
  Validation(Session& session, DesignControls& controls)
      : session_(session), record_(session.record), controls_(controls) {}
  void Run();

 private:
  void Tell(const std::string& text);
  void Ask(const std::string& text, PageId form, Entry& entry);
  void TakeFamily(i16 family);

  // In the order in which they run.
  void RequireWidth();
  void HoldCauerDepth();
  void RequireCauerStopband();
  void RequireCauerCenter();
  void RequireCenter();
  void RequireInput();
  void ChooseMissingTopology();
  void ChooseMissingFamily();
  void ChooseMissingOrder();
  void SettleManualNetwork();
  void ReadFamily();
  void ReadTopology();
  void HoldRipple();
  void SetReference();
  void LeaveCauerBandpass();
  void ReadCenter();

  void RequireStopbandAbove(const char* firstLine);
  void RequireStopbandBelow();

  Session& session_;
  DesignRecord& record_;
  DesignControls& controls_;
};

void Validation::Run() {
  using Step = void (Validation::*)();
  constexpr Step steps[] = {
      &Validation::RequireWidth,
      &Validation::HoldCauerDepth,
      &Validation::RequireCauerStopband,
      &Validation::RequireCauerCenter,
      &Validation::RequireCenter,
      &Validation::RequireInput,
      &Validation::ChooseMissingTopology,
      &Validation::ChooseMissingFamily,
      &Validation::ChooseMissingOrder,
      &Validation::SettleManualNetwork,
      &Validation::ReadFamily,
      &Validation::ReadTopology,
      &Validation::HoldRipple,
      &Validation::SetReference,
      &Validation::LeaveCauerBandpass,
      &Validation::ReadCenter,
  };
  for (const Step step : steps) (this->*step)();
}

void Validation::Tell(const std::string& text) {
  ForgetResponses(record_);
  controls_.Refresh();
  session_.platform.MessageBox(text, Buttons::Ok, Icon::Exclamation, "");
}

void Validation::Ask(const std::string& text, PageId form, Entry& entry) {
  Tell(text);
  session_.pages.ShowModal(form);
  entry.Repair();
}

void Validation::TakeFamily(i16 family) {
  record_.Family = family;
  session_.familyOption = family;
  controls_.families.Choose(family);
}

void Validation::RequireWidth() {
  if (record_.NetworkEdited == 1) return;
  controls_.width.Take();
  if (record_.Width > limitsOf::leastEntered) return;
  Ask("No bandwidth has been entered.\r\nTo avoid a program crash, please enter a bandwidth", PageId::EnterWidth,
      controls_.width);
}

// A depth of exactly 10 is told again each time: the family needs more than that, and the message says so.
void Validation::HoldCauerDepth() {
  if (record_.Family != familyCauer || std::fabs(record_.Astop) > limitsOf::Astop.lowest) return;
  record_.Astop = limitsOf::Astop.lowest;
  controls_.depth.Repair();
  Tell(
      "The Cauer family needs a stopband depth greater than 10 dB.\r\n"
      "To avoid a program crash, Astop has been set to 10 dB");
}

void Validation::RequireCauerStopband() {
  if (record_.Family != familyCauer || IsEvenOrder(record_)) return;
  controls_.stopband.Take();
  controls_.width.Take();
  const std::string& letter = record_.Topology;
  if (IsLowpass(letter)) RequireStopbandAbove(cauerLowpassLine);
  if (letter == "H") RequireStopbandAbove(cauerBandpassLine);
  if (IsHighpass(letter)) RequireStopbandBelow();
}

void Validation::RequireStopbandAbove(const char* firstLine) {
  if (record_.Fstopband > record_.Width) return;
  Ask(std::string(firstLine) +
          "\r\nthe passband.  To avoid a program crash, please enter a\r\nnew stopband higher than the passband.",
      PageId::EnterFstopband, controls_.stopband);
}

void Validation::RequireStopbandBelow() {
  if (record_.Fstopband == 0) {
    Ask("For a Cauer highpass, we need a stopband.\r\nPlease enter a stiobabd lower than the passband.",
        PageId::EnterFstopband, controls_.stopband);
  }
  if (record_.Fstopband < record_.Width) return;
  Ask(std::string(cauerHighpassLine) +
          "\r\nthe passband.  To avoid a program crash, please enter a\r\nnew stopband lower than the passband.",
      PageId::EnterFstopband, controls_.stopband);
}

void Validation::RequireCauerCenter() {
  const bool withZeros = record_.Family == familyCauer || record_.Family == familyMderived;
  if (!withZeros || record_.Topology != "H" || record_.Fcenter > limitsOf::leastEntered) return;
  Ask("The Cauer and M-derived bandpass designs must have\r\na center frequency.\r\n"
      "To avoid a program crash, please enter a center frequency.",
      PageId::EnterCenterFreq, controls_.center);
}

void Validation::RequireCenter() {
  if (record_.Topology == "H" || !NeedsCenter(record_.Topology) || record_.Fcenter > limitsOf::leastEntered) return;
  Ask("The bandpass and bandstop topologies must have a center frequency.\r\n"
      "To avoid a program crash, please enter a center frequency.",
      PageId::EnterCenterFreq, controls_.center);
}

void Validation::RequireInput() {
  controls_.input.Take();
  if (HasInputTermination(record_)) return;
  Ask("The filter needs an input termination.\r\n"
      "To avoid a program crash, please enter an input termination value.",
      PageId::EnterInput, controls_.input);
}

void Validation::ChooseMissingTopology() {
  if (record_.Family == familyManual || !record_.Topology.empty()) return;
  controls_.TakeTopology("A");
  Tell(
      "No topology has been chosen. To avoid a program crash,\r\n"
      "the program will use a capacitor-input lowpass topology.");
}

void Validation::ChooseMissingFamily() {
  if (record_.Family >= 1 || record_.NetworkEdited == 1) return;
  TakeFamily(familyButterworth);
  Tell("No family has been specified. To avoid a program crash,\r\nthe program will use the Butterworth family.");
}

void Validation::ChooseMissingOrder() {
  if (record_.Family == familyMderived) return;
  if (record_.Order >= 1 && !controls_.lblOrderInput.caption.empty()) return;
  record_.Order = 3;
  Tell("No order has been specified. To avoid a program crash,\r\nthe program will use an order of three.");
}

void Validation::SettleManualNetwork() {
  if (!IsByHand(record_)) return;
  SettleByHand(record_);
  TakeFamily(familyManual);
  controls_.families.Enable(false);
}

void Validation::ReadFamily() {
  const i16 chosen = controls_.families.Chosen();
  if (chosen != familyNone) {
    record_.Family = chosen;
    session_.familyOption = chosen;
    return;
  }
  // A code that is no family has no option.
  TakeFamily(familyButterworth);
  Tell(
      "No design family has been specified. To avoid a program crash,\r\nthe program will use the Butterworth family.");
}

// A network entered by hand may have a letter that no option stands for.
void Validation::ReadTopology() {
  const std::string chosen = controls_.topologies.Chosen();
  if (!chosen.empty()) record_.Topology = chosen;
  if (!record_.Topology.empty()) return;
  controls_.TakeTopology("A");
  Tell("No topology has been chosen. To avoid a program crash,\r\nthe program will use a capacitor-input lowpass");
}

// Only where the ripple is an entry: the other families keep Apass 0, or have it as a result.
void Validation::HoldRipple() {
  if (!ViewOf(record_).ripple) return;
  controls_.ripple.Take();
  if (limitsOf::Apass.Contain(record_.Apass) && controls_.ripple.Agrees()) return;
  record_.Apass = limitsOf::Apass.Held(record_.Apass);
  ForgetResponses(record_);
  controls_.ripple.Repair();
}

void Validation::SetReference() {
  controls_.input.Take();
  if (record_.NetworkEdited == 0 && record_.Rstandard <= 0) record_.Rstandard = record_.Rsource[1];
}

void Validation::LeaveCauerBandpass() {
  const i16 family = record_.Family;
  if (record_.Topology != "H" || family == familyCauer || family == familyMderived || family == familyManual) return;
  controls_.TakeTopology("E");
  Tell(
      "The Cauer bandpass topology filter was selected\r\n"
      "and that requires the use of the Cauer or M-Derived\r\n"
      "family along with a center frequency and width.\r\n"
      " \r\n"
      "Quilm will now select a shunt-input bandpass topology\r\n"
      "for use with the non-Cauer family you chose.");
}

void Validation::ReadCenter() {
  if (NeedsCenter(record_.Topology)) controls_.center.Take();
}

}  // namespace

void ValidateDesign(Session& session, DesignControls& controls) {
  Validation(session, controls).Run();
  controls.Refresh();
}

}  // namespace quilm
