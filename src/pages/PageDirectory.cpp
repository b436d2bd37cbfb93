#include "pages/PageDirectory.h"

#include "pages/analysis/frmAnalyze.h"
#include "pages/coils/frmFindInductance.h"
#include "pages/coils/frmToroidDesign.h"
#include "pages/coils/frmWindInductor.h"
#include "pages/design/EntryForms.h"
#include "pages/design/frmAddInfo.h"
#include "pages/design/frmBailout.h"
#include "pages/design/frmChangeTitle.h"
#include "pages/design/frmDesign.h"
#include "pages/design/frmEndSections.h"
#include "pages/design/frmMderived.h"
#include "pages/design/frmNearest5.h"
#include "pages/design/frmSeeNormalized.h"
#include "pages/design/frmSinglyTermCheby.h"
#include "pages/diplexer/frmDipMarkers.h"
#include "pages/diplexer/frmDipResonate.h"
#include "pages/diplexer/frmDiplexer.h"
#include "pages/diplexer/frmPlotDiplexer.h"
#include "pages/diplexer/frmTuneDipPart.h"
#include "pages/edit/frmEditCircuit.h"
#include "pages/edit/frmManualEntry.h"
#include "pages/edit/frmManualEntryOptions.h"
#include "pages/export/frmGetSnPoptions.h"
#include "pages/export/frmWriteFiles.h"
#include "pages/guidance/frmEntryAssistance.h"
#include "pages/guidance/frmHelp.h"
#include "pages/guidance/frmHelpFamily.h"
#include "pages/plot/frmBlank.h"
#include "pages/plot/frmEditLimits.h"
#include "pages/plot/frmLimits.h"
#include "pages/plot/frmMarker.h"
#include "pages/plot/frmMonteCarloSetup.h"
#include "pages/plot/frmOverlayLists.h"
#include "pages/plot/frmPlotted.h"
#include "pages/plot/frmTuneApass.h"
#include "pages/plot/frmTunePart.h"
#include "pages/plot/frmTuneWidthCenter.h"
#include "pages/schematic/frmSchematic.h"
#include "pages/schematic/frmSchematicSimple.h"
#include "pages/start/frmAbout.h"
#include "pages/start/frmExit.h"
#include "pages/start/frmOpening.h"
#include "pages/studies/frmModulationResponsePlot.h"
#include "pages/studies/frmNoise.h"
#include "pages/studies/frmPhasePlot.h"
#include "pages/studies/frmPhaseSetup.h"
#include "pages/studies/frmTransientPlot.h"
#include "pages/tabulate/frmTabulated.h"
#include "pages/transforms/frmBisection.h"
#include "pages/transforms/frmDrawLines.h"
#include "pages/transforms/frmImpedanceMatch.h"
#include "pages/transforms/frmLumpedToTubular.h"
#include "pages/transforms/frmMeshTeePi.h"
#include "pages/transforms/frmNorton.h"
#include "pages/transforms/frmSpecifyInductor.h"

namespace quilm {

namespace {

template <class P>
std::unique_ptr<Page> Make(Session& session) {
  return std::make_unique<P>(session);
}

}  // namespace

PageDirectory AllPages() {
  return {
      {PageId::Opening, Make<frmOpening>},
      {PageId::Design, Make<frmDesign>},
      {PageId::Schematic, Make<frmSchematic>},
      {PageId::SchematicSimple, Make<frmSchematicSimple>},
      {PageId::Edit, Make<frmEditCircuit>},
      {PageId::Analyze, Make<frmAnalyze>},
      {PageId::Plotted, Make<frmPlotted>},
      {PageId::Tabulated, Make<frmTabulated>},
      {PageId::TunePart, Make<frmTunePart>},
      {PageId::TuneWidthCenter, Make<frmTuneWidthCenter>},
      {PageId::TuneApass, Make<frmTuneApass>},
      {PageId::MonteCarloSetup, Make<frmMonteCarloSetup>},
      {PageId::Blank, Make<frmBlank>},
      {PageId::Limits, Make<frmLimits>},
      {PageId::EditLimits, Make<frmEditLimits>},
      {PageId::Marker, Make<frmMarker>},
      {PageId::ManualEntry, Make<frmManualEntry>},
      {PageId::ManualEntryOptions, Make<frmManualEntryOptions>},
      {PageId::OverlaySaveList, Make<frmOverlaySaveList>},
      {PageId::OverlayGetList, Make<frmOverlayGetList>},
      {PageId::WriteFiles, Make<frmWriteFiles>},
      {PageId::GetSnPoptions, Make<frmGetSnPoptions>},
      {PageId::Exit, Make<frmExit>},
      {PageId::ChangeTitle, Make<frmChangeTitle>},
      {PageId::AddInfo, Make<frmAddInfo>},
      {PageId::About, Make<frmAbout>},
      {PageId::Help, Make<frmHelp>},
      {PageId::HelpFamily, Make<frmHelpFamily>},
      {PageId::EntryAssistance, Make<frmEntryAssistance>},
      {PageId::Bailout, Make<frmBailout>},
      {PageId::Mderived, Make<frmMderived>},
      {PageId::Nearest5, Make<frmNearest5>},
      {PageId::SpecifyInductor, Make<frmSpecifyInductor>},
      {PageId::Norton, Make<frmNorton>},
      {PageId::Bisection, Make<frmBisection>},
      {PageId::MeshTeePi, Make<frmMeshTeePi>},
      {PageId::SinglyTermCheby, Make<frmSinglyTermCheby>},
      {PageId::EndSections, Make<frmEndSections>},
      {PageId::ImpedanceMatch, Make<frmImpedanceMatch>},
      {PageId::SeeNormalized, Make<frmSeeNormalized>},
      {PageId::WindInductor, Make<frmWindInductor>},
      {PageId::FindInductance, Make<frmFindInductance>},
      {PageId::ToroidDesign, Make<frmToroidDesign>},
      {PageId::LumpedToTubular, Make<frmLumpedToTubular>},
      {PageId::DrawLines, Make<frmDrawLines>},
      {PageId::ModulationPlot, Make<frmModulationResponsePlot>},
      {PageId::PhaseSetup, Make<frmPhaseSetup>},
      {PageId::PhasePlot, Make<frmPhasePlot>},
      {PageId::Noise, Make<frmNoise>},
      {PageId::TransientPlot, Make<frmTransientPlot>},
      {PageId::PlotDiplexer, Make<frmPlotDiplexer>},
      {PageId::TuneDipPart, Make<frmTuneDipPart>},
      {PageId::DipMarkers, Make<frmDipMarkers>},
      {PageId::Diplexer, Make<frmDiplexer>},
      {PageId::DipResonate, Make<frmDipResonate>},
      {PageId::EnterWidth, Make<frmEnterWidth>},
      {PageId::EnterCenterFreq, Make<frmEnterCenterFreq>},
      {PageId::EnterInput, Make<frmEnterInput>},
      {PageId::EnterFstopband, Make<frmEnterFstopband>},
  };
}

}  // namespace quilm
