// How the network passes a squarewave, a burst and its envelope.
#pragma once

#include <optional>

#include "core/StudyEntries.h"
#include "pages/studies/StudyPage.h"
#include "timedomain/Waves.h"

namespace quilm {

class frmTransientPlot : public StudyPage {
 public:
  explicit frmTransientPlot(Session& session);
  void Load() override;
  Layout MakeLayout() override;

 private:
  void SetWaveform(i16 WaveformType);
  void ShowChoices();
  // The message of the first frequency that the signal needs and that is missing, and its box; nullptr when all is
  // there.
  TextBox* Lacking(const char*& message);
  void Plot();
  // The waves of the signal; nothing where the network cannot be evaluated.
  std::optional<Waves> Computed() const;
  // Draws them, or the frame alone.
  void Show(std::optional<Waves> waves);

  WaveEntries& signal_;
  std::optional<Waves> shown_;  // what the picture shows; nothing before the first

  Frame fraWaveformType_{*this, "fraWaveformType", "Waveform type"};
  OptionGroup waveforms_;
  OptionButton Option1_{*this, waveforms_, "Option1", "Squarewave", "A squarewave from -1 to 1"};
  OptionButton Option2_{*this, waveforms_, "Option2", "Burst", "A carrier that the squarewave switches on and off"};
  OptionButton Option3_{*this, waveforms_, "Option3", "Envelope of burst", "What a detector makes of the burst"};
  Frame fraAnalysisType_{*this, "fraAnalysisType", "Analysis type"};
  OptionGroup analyses_;
  OptionButton Option4_{*this, analyses_, "Option4", "Normal", "With the phase of the network"};
  OptionButton Option5_{*this, analyses_, "Option5", "Delay equalized", "As behind a perfect equalizer of the delay"};
  OptionButton Option6_{*this, analyses_, "Option6", "Normal + equalized", "Both in one picture"};
  Frame fraSignal_{*this, "fraSignal", "Frequencies"};
  Label lblSquarewaveFreq_{*this, "lblSquarewaveFreq", "Squarewave frequency"};
  TextBox txtSquarewaveFreq_{*this, "txtSquarewaveFreq", "Squarewave frequency", "Of its fundamental, in Hz"};
  Label lblCarrierFreq_{*this, "lblCarrierFreq", "Carrier frequency"};
  TextBox txtCarrierFreq_{*this, "txtCarrierFreq", "Carrier frequency", "Of the burst, in Hz"};
  Button cmdPlot_{*this, "cmdPlot", "(Re)Plot", "Compute the wave with these choices"};
  Button cmdPrint_{*this, "cmdPrint", "Print", "Print the wave that is shown"};
  Button cmdExitTransient_{*this, "cmdExitTransient", "Return to Analysis page", "Leave the design as it is"};
  PictureBox picWaves_{*this, "picWaves", "Waves over a period"};
};

}  // namespace quilm
