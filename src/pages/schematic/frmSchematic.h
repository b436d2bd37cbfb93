// The Schematic page: the ladder as a circuit diagram with its values.
#pragma once

#include "desk/NavigationRow.h"
#include "schematic/modSchematic.h"
#include "shell/Page.h"

namespace quilm {

class frmSchematic : public Page {
 public:
  explicit frmSchematic(Session& session);
  void Load() override;
  void CloseBox() override;
  Layout MakeLayout() override;

 private:
  void Choose(SchematicMode mode);
  void ShowLosses(bool show);
  void Scroll(i32 distance);
  void Zoom(f32 zoom);
  void RefreshZoom();
  void CutStages();
  void Draw();

  SchematicView& view_;
  NavigationRow navigation_;
  PictureBox picSchematic_{*this, "picSchematic", "Schematic of the design"};
  Label lblEmptyList_{*this, "lblEmptyList", "The parts list is empty"};
  Label lblNegativePart_{*this, "lblNegativePart", "Negative component"};
  Button cmdLeftLeft_{*this, "cmdLeftLeft", "<<", "Show much of what is further left"};
  Button cmdLeft_{*this, "cmdLeft", "<", "Show a little of what is further left"};
  Button cmdRight_{*this, "cmdRight", ">", "Show a little of what is further right"};
  Button cmdRightRight_{*this, "cmdRightRight", ">>", "Show much of what is further right"};
  Button cmdZoomIn_{*this, "cmdZoomIn", "Zoom in", "Show less of the network, larger (Ctrl++, wheel)"};
  Button cmdZoomOut_{*this, "cmdZoomOut", "Zoom out", "Show more of the network, smaller (Ctrl+-, wheel)"};
  Button cmdZoomFit_{*this, "cmdZoomFit", "Fit width", "Show the whole width of the network (Ctrl+0)"};
  Button cmdSimple_{*this, "cmdSimple", "Artwork only", "The bare network, without values and data"};
  Frame fraMode_{*this, "fraMode", "Unbalanced preview"};
  OptionGroup modes_;
  OptionButton Option0_{*this, modes_, "Option0", "Normal - unbalanced", "Series parts on the upper rail"};
  OptionButton Option1_{*this, modes_, "Option1", "Balanced - B", "Series parts on both rails"};
  OptionButton Option2_{*this, modes_, "Option2", "Balanced - A", "Series parts of half the value on both rails"};
  Frame fraShowQ_{*this, "fraShowQ", "Show Q-value resistances?"};
  OptionGroup showQ_;
  OptionButton optYes_{*this, showQ_, "optYes", "Yes", "Show the loss of each part as a resistance"};
  OptionButton optNo_{*this, showQ_, "optNo", "No"};
};

}  // namespace quilm
