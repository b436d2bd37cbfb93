// The noise bandwidth of the finished network.
#pragma once

#include <array>

#include "pages/studies/StudyPage.h"
#include "timedomain/NoiseBandwidth.h"

namespace quilm {

class frmNoise : public StudyPage {
 public:
  explicit frmNoise(Session& session);
  void Load() override;
  Layout MakeLayout() override;

 private:
  void Compute();
  bool Refuses(bool refused, const std::string& text, TextBox& box);
  void ClearResults();
  void ShowResults(const NoiseBand& band);
  void MarkEarlyEnd(bool early);

  f32 NoiseStart_ = 0;  // Hz
  f32 NoiseStop_ = 0;
  f32 NoiseSteps_ = 0;

  Label lblHeading_{*this, "lblHeading", "Noise Bandwidth Routine"};
  Label lblStartingFrequency_{*this, "lblStartingFrequency", "Starting frequency (Hz):"};
  TextBox txtStartingFrequency_{*this, "txtStartingFrequency", "Starting frequency in Hz"};
  Label lblStoppingFrequency_{*this, "lblStoppingFrequency", "Stopping frequency (Hz):"};
  TextBox txtStoppingFrequency_{*this, "txtStoppingFrequency", "Stopping frequency in Hz"};
  Label lblNrIntervals_{*this, "lblNrIntervals", "Number of steps:"};
  TextBox txtNrIntervals_{*this, "txtNrIntervals", "Number of steps", "100 to 10000"};
  Label lblBandpass_{*this, "lblBandpass", "This network appears to be a bandpass or highpass type."};
  Button cmdCompute_{*this, "cmdCompute", "Compute Noise Bandwidth"};

  Label lblNoiseBandwidth_{*this, "lblNoiseBandwidth", ""};
  Label lblLow01_{*this, "lblLow01", "Lower frequency for 0.1% power:"};
  Label lblNoiseLow01_{*this, "lblNoiseLow01", ""};
  Label lblLow1_{*this, "lblLow1", "Lower frequency for 1% power:"};
  Label lblNoiseLow1_{*this, "lblNoiseLow1", ""};
  Label lblPeakFreq_{*this, "lblPeakFreq", "Frequency of maximum transmission:"};
  Label lblNoisePeakFreq_{*this, "lblNoisePeakFreq", ""};
  Label lblHigh1_{*this, "lblHigh1", "Upper frequency for 1% power:"};
  Label lblNoiseHigh1_{*this, "lblNoiseHigh1", ""};
  Label lblHigh01_{*this, "lblHigh01", "Upper frequency for 0.1% power:"};
  Label lblNoiseHigh01_{*this, "lblNoiseHigh01", ""};

  Label lblAdvice1_{*this, "lblAdvice1", "Lowpass filters should be swept starting from a very low frequency."};
  Label lblAdvice2_{*this, "lblAdvice2", "to above the 0.1% frequency."};
  Label lblAdvice3_{*this, "lblAdvice3", "Bandpass filters should be swept from below the lower 0.1% frequency"};
  Label lblAdvice4_{*this, "lblAdvice4", "to above the upper 0.1% frequency."};
  Button cmdExit_{*this, "cmdExit", "Return to Analysis page"};
};

}  // namespace quilm
