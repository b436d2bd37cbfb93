#include "shell/HelpPages.h"

#include "shell/Session.h"

namespace quilm {

std::string_view HelpFile(PageId id) {
  switch (id) {
    case PageId::Opening:
      return "opening.htm";
    case PageId::Design:
      return "design.htm";
    case PageId::Schematic:
      return "schematic.htm";
    case PageId::SchematicSimple:
      return "artwork.htm";
    case PageId::Edit:
      return "editing.htm";
    case PageId::Analyze:
      return "analysis.htm";
    case PageId::Plotted:
    case PageId::Blank:  // in its place while the scales are set
      return "plots.htm";
    case PageId::Tabulated:
      return "tabulate.htm";
    case PageId::ManualEntry:
      return "manual-entry.htm";
    case PageId::ManualEntryOptions:
      return "manual-entry-options.htm";
    case PageId::WriteFiles:
      return "write-files.htm";
    case PageId::GetSnPoptions:
      return "s-parameters.htm";
    case PageId::Exit:
      return "exit.htm";
    case PageId::ChangeTitle:
      return "title.htm";
    case PageId::AddInfo:
      return "added-info.htm";
    case PageId::About:
      return "about.htm";
    case PageId::EnterWidth:
    case PageId::EnterCenterFreq:
    case PageId::EnterInput:
    case PageId::EnterFstopband:
      return "missing-entries.htm";
    case PageId::Bailout:
      return "cauer-failure.htm";
    case PageId::Mderived:
      return "m-derived.htm";
    case PageId::SinglyTermCheby:
      return "singly-terminated.htm";
    case PageId::EndSections:
      return "end-sections.htm";
    case PageId::SeeNormalized:
      return "normalized.htm";
    case PageId::Help:
      return "topology-guide.htm";
    case PageId::HelpFamily:
      return "family-guide.htm";
    case PageId::EntryAssistance:
      return "entry-assistance.htm";
    case PageId::Limits:
      return "limits.htm";
    case PageId::EditLimits:
      return "edit-limits.htm";
    case PageId::Marker:
      return "markers.htm";
    case PageId::OverlaySaveList:
    case PageId::OverlayGetList:
      return "overlays.htm";
    case PageId::TunePart:
      return "tune-parts.htm";
    case PageId::TuneWidthCenter:
      return "tune-band.htm";
    case PageId::TuneApass:
      return "tune-ripple.htm";
    case PageId::MonteCarloSetup:
      return "stepsize.htm";
    case PageId::Nearest5:
      return "nearest-values.htm";
    case PageId::ImpedanceMatch:
      return "impedance-match.htm";
    case PageId::SpecifyInductor:
      return "specify-inductor.htm";
    case PageId::Norton:
      return "norton.htm";
    case PageId::Bisection:
      return "bisection.htm";
    case PageId::MeshTeePi:
      return "tee-to-pi.htm";
    case PageId::LumpedToTubular:
      return "tubular.htm";
    case PageId::DrawLines:
      return "draw-lines.htm";
    case PageId::WindInductor:
      return "wind-inductor.htm";
    case PageId::FindInductance:
      return "find-inductance.htm";
    case PageId::ToroidDesign:
      return "toroid.htm";
    case PageId::TransientPlot:
      return "transient.htm";
    case PageId::ModulationPlot:
      return "modulation.htm";
    case PageId::PhaseSetup:
      return "phase-linearity.htm";
    case PageId::PhasePlot:
      return "phase-plot.htm";
    case PageId::Noise:
      return "noise-bandwidth.htm";
    case PageId::Diplexer:
      return "diplexer.htm";
    case PageId::PlotDiplexer:
      return "diplexer-plot.htm";
    case PageId::TuneDipPart:
      return "tune-diplexer.htm";
    case PageId::DipMarkers:
      return "diplexer-markers.htm";
    case PageId::DipResonate:
      return "diplexer-resonance.htm";
  }
  return "index.htm";
}

void OpenHelp(Session& session, PageId id) { OpenHelp(session, HelpFile(id)); }

void OpenHelp(Session& session, std::string_view file) {
  const std::string path = session.platform.HelpFolder() + "/" + std::string(file);
  session.note = "Help: " + path;
  if (session.platform.ShellOpen(path)) return;
  session.platform.MessageBox("No browser was found that could show the help page. It lies here:\r\n" + path,
                              Buttons::Ok, Icon::Information, "Help");
}

}  // namespace quilm
