#include "pages/PageDirectory.h"

#include "analysis/frmAnalyze.h"
#include "display/frmBlank.h"
#include "display/frmPlotted.h"
#include "display/frmTabulated.h"
#include "pages/frmAbout.h"
#include "pages/frmAddInfo.h"
#include "pages/frmChangeTitle.h"
#include "pages/frmExit.h"
#include "pages/frmHelp.h"
#include "pages/frmOpening.h"
#include "schematic/frmSchematic.h"
#include "schematic/frmSchematicSimple.h"
#include "synthesis/EntryForms.h"
#include "synthesis/frmBailout.h"
#include "synthesis/frmDesign.h"
#include "synthesis/frmEndSections.h"
#include "synthesis/frmMderived.h"
#include "synthesis/frmSeeNormalized.h"
#include "synthesis/frmSinglyTermCheby.h"

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
      {PageId::Analyze, Make<frmAnalyze>},
      {PageId::Plotted, Make<frmPlotted>},
      {PageId::Tabulated, Make<frmTabulated>},
      {PageId::Blank, Make<frmBlank>},
      {PageId::Exit, Make<frmExit>},
      {PageId::ChangeTitle, Make<frmChangeTitle>},
      {PageId::AddInfo, Make<frmAddInfo>},
      {PageId::About, Make<frmAbout>},
      {PageId::Help, Make<frmHelp>},
      {PageId::Bailout, Make<frmBailout>},
      {PageId::Mderived, Make<frmMderived>},
      {PageId::SinglyTermCheby, Make<frmSinglyTermCheby>},
      {PageId::EndSections, Make<frmEndSections>},
      {PageId::SeeNormalized, Make<frmSeeNormalized>},
      {PageId::EnterWidth, Make<frmEnterWidth>},
      {PageId::EnterCenterFreq, Make<frmEnterCenterFreq>},
      {PageId::EnterInput, Make<frmEnterInput>},
      {PageId::EnterFstopband, Make<frmEnterFstopband>},
      {PageId::EnterAstop, Make<frmEnterAstop>},
      {PageId::EnterTopology, Make<frmEnterTopology>},
  };
}

}  // namespace quilm
