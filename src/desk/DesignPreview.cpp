#include "desk/DesignPreview.h"

#include "analysis/AnalysisEntries.h"
#include "analysis/SweepFit.h"
#include "analysis/modAnalysis.h"
#include "core/DesignRecord.h"
#include "core/Fault.h"
#include "core/Responses.h"
#include "core/modGeneral.h"
#include "display/PreviewPlot.h"
#include "display/SheetDrawing.h"
#include "shell/Session.h"
#include "synthesis/TryDesign.h"

namespace quilm {

namespace {

constexpr f32 pointsAcross = 400;  // as many as the plot has pixels, and soon swept

std::string Spoken(const DesignRecord& design) {
  return "Transmission and return from " + Trimmed(FormatFrequency(design.Fstart)) + "Hz to " +
         Trimmed(FormatFrequency(design.Fstop)) + "Hz";
}

}  // namespace

DesignPreview::DesignPreview(Page& page, Session& session, Of of, std::function<void()> toPlot)
    : picPreview(page, "picPreview", "Preview of transmission and return"),
      session_(session),
      of_(of),
      scale_(of == Of::Entries ? narrowPreview : widePreview),
      responses_(std::make_unique<Responses>()) {
  const Point corner{scale_.left + scale_.width, scale_.top + scale_.height};
  picPreview.areas = {{.name = "preview",
                       .from = {scale_.left, scale_.top},
                       .to = corner,
                       .toolTip = "Go to the plot",
                       .enabled = true,
                       .onPress = std::move(toPlot)}};
}

DesignPreview::~DesignPreview() = default;

void DesignPreview::CatchUp() {
  if (shown_ && *shown_ == session_.record) return;
  shown_ = std::make_unique<DesignRecord>(session_.record);
  DesignRecord design = session_.record;
  const std::string reason = Show(design);
  if (!reason.empty()) DrawNoPreview(reason, scale_, picPreview.picture);
  picPreview.description = reason.empty() ? Spoken(design) : reason;
}

// A fault here concerns nobody but the preview: it comes after each act, and must not end the one that it follows.
std::string DesignPreview::Show(DesignRecord& design) {
  constexpr const char* failure = "The network cannot be analysed with these values";
  try {
    if (std::string reason = Prepare(design); !reason.empty()) return reason;
    if (!SweepLadder(design, *responses_).empty()) return failure;
    Draw(design);
  } catch (const Fault&) {
    return failure;
  }
  return {};
}

std::string DesignPreview::Prepare(DesignRecord& design) const {
  if (of_ == Of::Network && design.Stages == 0) return "There is no network yet";
  if (of_ == Of::Entries) {
    if (std::string reason = TryDesign(design, session_.configuration); !reason.empty()) return reason;
  }
  FillMissingEntries(design, session_.configuration);
  HoldAnalysisEntries(design, session_.configuration);
  if (of_ == Of::Network) return SweepFault(design);
  if (const auto fitting = FittingSweep(design)) {
    design.Fstart = fitting->from;
    design.Fstop = fitting->to;
  }
  design.NrIntervals = pointsAcross;
  return SweepFault(design);
}

void DesignPreview::Draw(const DesignRecord& design) {
  PlotSetup setup = SetupOf(session_);
  setup.axis = HorizontalAxis(static_cast<const SweepSettings&>(design));
  setup.scales = design;
  setup.colors = {};
  DrawPreview(setup, SpansOf(*responses_, LastPoint(design)), places_, scale_, picPreview.picture);
}

}  // namespace quilm
