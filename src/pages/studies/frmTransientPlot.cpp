#include "pages/studies/frmTransientPlot.h"

#include <utility>

#include "core/DesignRecord.h"
#include "core/NumericFault.h"
#include "core/modGeneral.h"
#include "display/WaveDrawing.h"
#include "display/modPlot.h"
#include "reports/PrintWaves.h"
#include "shell/Session.h"

namespace quilm {

namespace {

// What the shape does not tell, since it is drawn from peak to peak.
std::string PeaksText(const Waves& waves) {
  const auto peak = [](const char* name, f32 value) {
    return std::string(name) + " wave, peak " + EntryText(value, FormatValue) + (IsLow(value) ? ", low" : "");
  };
  const std::string normal = ShowsNormal(waves.signal) ? peak("Normal", waves.PeakNormal) : "";
  const std::string equalized = ShowsEqualized(waves.signal) ? peak("Equalized", waves.PeakEqualized) : "";
  return normal + (normal.empty() || equalized.empty() ? "" : "; ") + equalized;
}

}  // namespace

frmTransientPlot::frmTransientPlot(Session& session)
    : StudyPage(session, PageId::TransientPlot, "Transient Analysis"), signal_(session.studies.wave) {
  fraWaveformType_.Hold({&Option1_, &Option2_, &Option3_});
  fraAnalysisType_.Hold({&Option4_, &Option5_, &Option6_});
  fraSignal_.Hold({&lblSquarewaveFreq_, &txtSquarewaveFreq_, &lblCarrierFreq_, &txtCarrierFreq_});
  entries.Bind(
      {.box = txtSquarewaveFreq_, .field = signal_.SquareFreq, .format = FormatFrequency, .ofZero = OfZero::Blank});
  entries.Bind(
      {.box = txtCarrierFreq_, .field = signal_.CarrierFreq, .format = FormatFrequency, .ofZero = OfZero::Blank});
  Option1_.onClick = [this] { SetWaveform(squareWave); };
  Option2_.onClick = [this] { SetWaveform(burstWave); };
  Option3_.onClick = [this] { SetWaveform(envelopeWave); };
  Option4_.onClick = [this] { signal_.AnalysisType = 'N'; };
  Option5_.onClick = [this] { signal_.AnalysisType = 'E'; };
  Option6_.onClick = [this] { signal_.AnalysisType = 'B'; };
  cmdPlot_.onClick = [this] { Plot(); };
  cmdPrint_.onClick = [this] { PrintWaves(session_, *shown_); };
  cmdExitTransient_.onClick = [this] { Return(); };
  acceptButton = &cmdPlot_;
  cancelButton = &cmdExitTransient_;
}

// The signal of the last visit is at once seen behind the network as it is now.
void frmTransientPlot::Load() {
  entries.Fill();
  ShowChoices();
  const char* message = nullptr;
  Show(Lacking(message) == nullptr ? Computed() : std::nullopt);
  SetFocus(txtSquarewaveFreq_);
}

void frmTransientPlot::SetWaveform(i16 WaveformType) {
  signal_.WaveformType = WaveformType;
  // Two bursts, or two envelopes, in one picture could not be told apart.
  if (WaveformType == burstWave && signal_.AnalysisType == 'B') signal_.AnalysisType = 'E';
  if (WaveformType == envelopeWave) signal_.AnalysisType = Option4_.Value() ? 'N' : 'E';
  ShowChoices();
}

void frmTransientPlot::ShowChoices() {
  const bool square = signal_.WaveformType == squareWave;
  (square ? Option1_ : signal_.WaveformType == burstWave ? Option2_ : Option3_).Set();
  (signal_.AnalysisType == 'N' ? Option4_ : signal_.AnalysisType == 'E' ? Option5_ : Option6_).Set();
  Option6_.visible = square;
  lblCarrierFreq_.visible = txtCarrierFreq_.visible = !square;
}

TextBox* frmTransientPlot::Lacking(const char*& message) {
  if (!(signal_.SquareFreq > 0)) {
    message = "Please enter a fundamental (squarewave) frequency";
    return &txtSquarewaveFreq_;
  }
  if (signal_.WaveformType != squareWave && !(signal_.CarrierFreq > 0)) {
    message = "Please enter a carrier frequency";
    return &txtCarrierFreq_;
  }
  return nullptr;
}

void frmTransientPlot::Plot() {
  const char* message = nullptr;
  if (TextBox* box = Lacking(message)) {
    session_.platform.MessageBox(message, Buttons::Ok, Icon::Exclamation, "");
    SetFocus(*box);
    return;
  }
  entries.Fill();
  Show(Computed());
  if (!shown_) TellOfFault();
}

std::optional<Waves> frmTransientPlot::Computed() const {
  try {
    return ComputeWaves(session_.record, signal_);
  } catch (const NumericFault&) {
    return std::nullopt;
  }
}

void frmTransientPlot::Show(std::optional<Waves> waves) {
  shown_ = std::move(waves);
  cmdPrint_.enabled = shown_.has_value();
  picWaves_.description.clear();
  if (!shown_) {
    DrawWaveFrame(picWaves_.picture);
    return;
  }
  PlotWaves(*shown_, TraceWidth(session_.record), session_.record.CircuitTitle, picWaves_.picture);
  picWaves_.description = PeaksText(*shown_);
}

Layout frmTransientPlot::MakeLayout() {
  const Layout frequencies =
      Form({{Put(lblSquarewaveFreq_), Put(txtSquarewaveFreq_), Word("Hz", txtSquarewaveFreq_)},
            {KeepPlace(Put(lblCarrierFreq_)), KeepPlace(Put(txtCarrierFreq_)), Word("Hz", txtCarrierFreq_)}});
  return Row({Fill(Put(picWaves_)),
              Column({Group(fraSignal_, frequencies),
                      Group(fraWaveformType_, Column({Put(Option1_), Put(Option2_), Put(Option3_)})),
                      Group(fraAnalysisType_, Column({Put(Option4_), Put(Option5_), KeepPlace(Put(Option6_))})),
                      Grid(1, {Put(cmdPlot_), Put(cmdPrint_), Put(cmdExitTransient_)}), Space()})});
}

}  // namespace quilm
