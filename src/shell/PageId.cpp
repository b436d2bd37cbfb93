#include "shell/PageId.h"

namespace quilm {

std::string_view FormName(PageId id) {
  switch (id) {
    case PageId::Opening:
      return "frmOpening";
    case PageId::Design:
      return "frmDesign";
    case PageId::Schematic:
      return "frmSchematic";
    case PageId::SchematicSimple:
      return "frmSchematicSimple";
    case PageId::Edit:
      return "frmEditCircuit";
    case PageId::Analyze:
      return "frmAnalyze";
    case PageId::Plotted:
      return "frmPlotted";
    case PageId::Tabulated:
      return "frmTabulated";
    case PageId::ManualEntry:
      return "frmManualEntry";
    case PageId::ManualEntryOptions:
      return "frmManualEntryOptions";
    case PageId::WriteFiles:
      return "frmWriteFiles";
    case PageId::GetSnPoptions:
      return "frmGetSnPoptions";
    case PageId::Exit:
      return "frmExit";
    case PageId::ChangeTitle:
      return "frmChangeTitle";
    case PageId::AddInfo:
      return "frmAddInfo";
    case PageId::About:
      return "frmAbout";
    case PageId::EnterWidth:
      return "frmEnterWidth";
    case PageId::EnterCenterFreq:
      return "frmEnterCenterFreq";
    case PageId::EnterInput:
      return "frmEnterInput";
    case PageId::EnterFstopband:
      return "frmEnterFstopband";
    case PageId::Bailout:
      return "frmBailout";
    case PageId::Mderived:
      return "frmMderived";
    case PageId::SinglyTermCheby:
      return "frmSinglyTermCheby";
    case PageId::EndSections:
      return "frmEndSections";
    case PageId::SeeNormalized:
      return "frmSeeNormalized";
    case PageId::Help:
      return "frmHelp";
    case PageId::HelpFamily:
      return "frmHelpFamily";
    case PageId::EntryAssistance:
      return "frmEntryAssistance";
    case PageId::Limits:
      return "frmLimits";
    case PageId::EditLimits:
      return "frmEditLimits";
    case PageId::Marker:
      return "frmMarker";
    case PageId::OverlaySaveList:
      return "frmOverlaySaveList";
    case PageId::OverlayGetList:
      return "frmOverlayGetList";
    case PageId::TunePart:
      return "frmTunePart";
    case PageId::TuneWidthCenter:
      return "frmTuneWidthCenter";
    case PageId::TuneApass:
      return "frmTuneApass";
    case PageId::MonteCarloSetup:
      return "frmMonteCarloSetup";
    case PageId::Nearest5:
      return "frmNearest5";
    case PageId::Blank:
      return "frmBlank";
  }
  return "";
}

}  // namespace quilm
