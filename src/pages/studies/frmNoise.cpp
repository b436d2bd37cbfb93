#include "pages/studies/frmNoise.h"

#include <cmath>

#include "core/DesignRecord.h"
#include "core/EntryLimits.h"
#include "core/Fault.h"
#include "core/modGeneral.h"
#include "shell/Session.h"

namespace quilm {

namespace {

constexpr f32 lowestStart = 1;  // Hz
constexpr Color earlyEndColor = 0xDDDDFF;

f32 StepsHeld(f32 steps) { return std::floor(limitsOf::NoiseSteps.Held(steps)); }

}  // namespace

frmNoise::frmNoise(Session& session) : StudyPage(session, PageId::Noise, "Noise Bandwidth") {
  lblHeading_.emphasised = true;
  lblNoiseBandwidth_.emphasised = true;
  entries.Bind({.box = txtStartingFrequency_, .field = NoiseStart_, .format = FormatFrequency});
  entries.Bind({.box = txtStoppingFrequency_, .field = NoiseStop_, .format = FormatFrequency});
  entries.Bind({.box = txtNrIntervals_, .field = NoiseSteps_, .format = PlainText});
  cmdCompute_.onClick = [this] { Compute(); };
  cmdExit_.onClick = [this] { Return(); };
  acceptButton = &cmdCompute_;
  cancelButton = &cmdExit_;
}

void frmNoise::Load() {
  const bool lowpass = LooksLikeLowpass(session_.network);
  lblBandpass_.visible = !lowpass;
  NoiseStart_ = lowpass ? lowestStart : session_.sweep.Fstart;
  NoiseStop_ = session_.sweep.Fstop;
  NoiseSteps_ = StepsHeld(session_.sweep.NrIntervals);
  entries.Fill();
  ClearResults();
  for (Label* advice : {&lblAdvice1_, &lblAdvice2_, &lblAdvice3_, &lblAdvice4_}) advice->visible = false;
  SetFocus(txtStartingFrequency_);
}

bool frmNoise::Refuses(bool refused, const std::string& text, TextBox& box) {
  if (!refused) return false;
  session_.platform.MessageBox(text, Buttons::Ok, Icon::Exclamation, "Entry examination");
  SetFocus(box);
  return true;
}

void frmNoise::Compute() {
  if (Refuses(NoiseStart_ < lowestStart, "The starting frequency entry is too low", txtStartingFrequency_)) return;
  if (Refuses(NoiseStop_ <= NoiseStart_, "The stopping frequency entry is less than the starting frequency",
              txtStoppingFrequency_)) {
    return;
  }
  NoiseSteps_ = StepsHeld(NoiseSteps_);
  entries.Repair();
  ClearResults();
  try {
    const auto band = ComputeNoiseBandwidth(session_.record, {NoiseStart_, NoiseStop_, static_cast<i32>(NoiseSteps_)});
    if (band) ShowResults(*band);
  } catch (const Fault&) {
    TellOfFault();
  }
}

void frmNoise::ClearResults() {
  lblNoiseBandwidth_.caption = "Noise bandwidth: ";
  for (Label* result : {&lblNoiseLow01_, &lblNoiseLow1_, &lblNoisePeakFreq_, &lblNoiseHigh1_, &lblNoiseHigh01_}) {
    result->caption.clear();
    result->visible = false;
  }
  MarkEarlyEnd(false);
}

void frmNoise::ShowResults(const NoiseBand& band) {
  const auto show = [](Label& label, f32 frequency) {
    label.caption = EntryText(frequency, FormatFrequency);
    label.visible = true;
  };
  lblNoiseBandwidth_.caption = "Noise bandwidth: " + EntryText(band.NoiseBandwidth, FormatFrequency);
  show(lblNoiseLow01_, band.NoiseLow01);
  show(lblNoiseLow1_, band.NoiseLow1);
  show(lblNoisePeakFreq_, band.NoisePeakFreq);
  show(lblNoiseHigh1_, band.NoiseHigh1);
  show(lblNoiseHigh01_, band.NoiseHigh01);
  for (Label* advice : {&lblAdvice1_, &lblAdvice2_, &lblAdvice3_, &lblAdvice4_}) advice->visible = true;
  MarkEarlyEnd(band.EndsEarly(NoiseStop_));
}

// A sweep that ends where there is still power gives too small a bandwidth.
void frmNoise::MarkEarlyEnd(bool early) {
  lblNoiseHigh01_.backColor = txtStoppingFrequency_.backColor = early ? earlyEndColor : colorWhite;
  if (early) SetFocus(txtStoppingFrequency_);
}

Layout frmNoise::MakeLayout() {
  const Layout sweep = Group("Sweep", Column({Form({{Put(lblStartingFrequency_), Put(txtStartingFrequency_)},
                                                    {Put(lblStoppingFrequency_), Put(txtStoppingFrequency_)},
                                                    {Put(lblNrIntervals_), Put(txtNrIntervals_)}}),
                                              KeepPlace(Put(lblBandpass_)), Put(cmdCompute_)}));
  const Layout results = Group(
      "Results", Column({Row({Put(lblNoiseBandwidth_), Word("Hz", lblNoiseBandwidth_), Space()}),
                         Form({{Put(lblLow01_), KeepPlace(Put(lblNoiseLow01_)), Word("Hz", lblNoiseLow01_)},
                               {Put(lblLow1_), KeepPlace(Put(lblNoiseLow1_)), Word("Hz", lblNoiseLow1_)},
                               {Put(lblPeakFreq_), KeepPlace(Put(lblNoisePeakFreq_)), Word("Hz", lblNoisePeakFreq_)},
                               {Put(lblHigh1_), KeepPlace(Put(lblNoiseHigh1_)), Word("Hz", lblNoiseHigh1_)},
                               {Put(lblHigh01_), KeepPlace(Put(lblNoiseHigh01_)), Word("Hz", lblNoiseHigh01_)}})}));
  const Layout advice = Column({KeepPlace(Put(lblAdvice1_)), KeepPlace(Put(lblAdvice2_)), KeepPlace(Put(lblAdvice3_)),
                                KeepPlace(Put(lblAdvice4_))});
  return Column({Put(lblHeading_), Row({sweep, results, Space()}), advice, Space(), Row({Space(), Put(cmdExit_)})});
}

}  // namespace quilm
