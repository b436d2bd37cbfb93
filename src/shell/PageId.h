// The pages of the program by name. Pages never include one another; they go by these.
#pragma once

#include <string_view>

namespace quilm {

enum class PageId {
  Opening,
  Design,
  Schematic,
  SchematicSimple,
  Edit,
  Analyze,
  Plotted,
  Tabulated,
  ManualEntry,
  ManualEntryOptions,
  WriteFiles,
  GetSnPoptions,
  Exit,
  ChangeTitle,
  AddInfo,
  About,
  EnterWidth,
  EnterCenterFreq,
  EnterInput,
  EnterFstopband,
  Bailout,
  Mderived,
  SinglyTermCheby,
  EndSections,
  SeeNormalized,
  Help,
  HelpFamily,
  EntryAssistance,
  Limits,
  EditLimits,
  Marker,
  OverlaySaveList,
  OverlayGetList,
  TunePart,
  TuneWidthCenter,
  TuneApass,
  MonteCarloSetup,
  Nearest5,
  ImpedanceMatch,
  SpecifyInductor,
  Norton,
  Bisection,
  MeshTeePi,
  LumpedToTubular,
  DrawLines,
  WindInductor,
  FindInductance,
  ToroidDesign,
  TransientPlot,
  ModulationPlot,
  PhaseSetup,
  PhasePlot,
  Noise,
  Diplexer,
  PlotDiplexer,
  TuneDipPart,
  DipMarkers,
  DipResonate,
  Blank,
};

// The form name of a page, "frmDesign" for Design.
std::string_view FormName(PageId id);

}  // namespace quilm
