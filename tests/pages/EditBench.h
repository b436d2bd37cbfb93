// The Edit page over a Butterworth lowpass of 1 MHz between 50 ohms: C, L, C.
#pragma once

#include <map>
#include <string>
#include <vector>

#include "desk/StartUp.h"
#include "pages/PageBench.h"
#include "pages/PageDirectory.h"

namespace quilm {

inline constexpr const char* valueBoxes[] = {"txtInductorsValue", "txtCapacitorsValue",  "txtResistorsValue",
                                             "txtLineLength",     "txtLineFrequency",    "txtLineImpedance",
                                             "txtTransformer",    "txtReactanceValue",   "txtReactanceFrequency",
                                             "txtPrimaryHenries", "txtSecondaryHenries", "txtCouplingCoefficient"};

class EditBench : public PageBench {
 protected:
  EditBench() : PageBench(AllPages()) {
    StartProgram(session);
    Press("cmdDesignNew");
    Press("optButterworth");
    Press("optCapInLowpass");
    Enter("txtBandwidth", "1M");
    Enter("txtInputTerm", "50");
    Press("cmdEdit");
  }

  DesignRecord& Record() { return session.record; }
  Stage& StageOf(int s) { return session.record.stage[s]; }
  PictureBox& Sheet() { return Get<PictureBox>("picEdit"); }

  void MouseAt(f32 x, f32 y, MouseButton button = MouseButton::Left, MouseAct act = MouseAct::Down) {
    Mouse(session, Sheet(), act, x, y, button);
  }
  void Area(const std::string& name) { PressArea(session, Sheet(), name); }

  // The page as it loads over these stages, each without values.
  void ShowStages(const std::vector<i16>& types) {
    Record().Stages = 0;
    for (const i16 type : types) {
      Stage stage;
      stage.ElementType = type;
      Record().stage[++Record().Stages] = stage;
    }
    Record().Family = familyManual;
    Record().NetworkEdited = 1;
    session.pages.ShowPage(PageId::Edit);
  }

  // The value boxes in view, in the order of the list above.
  std::vector<std::string> Boxes() {
    std::vector<std::string> shown;
    for (const char* name : valueBoxes) {
      if (Get<TextBox>(name).Shown()) shown.emplace_back(name);
    }
    return shown;
  }

  // Which of Change topology, Insert, Delete, Edit values and Accept can be pressed: "CIDEA".
  std::string Commands() {
    std::string usable;
    for (const char* name : {"cmdChangeTopology", "cmdInsertPart", "cmdDeletePart", "cmdEditValues", "cmdAccept"}) {
      if (Get<Button>(name).Usable()) usable += name[3];
    }
    return usable;
  }

  bool PaletteIsBlack() {
    for (const PictureOp& operation : Sheet().picture.Operations()) {
      const auto* text = std::get_if<TextOp>(&operation);
      if (text != nullptr && text->text == "L in line") return text->color == colorBlack;
    }
    throw Fault("no palette");
  }

  // The box above the selected cell; nothing without one.
  std::optional<RectangleOp> Mark() {
    for (const PictureOp& operation : Sheet().picture.Operations()) {
      const auto* box = std::get_if<RectangleOp>(&operation);
      if (box != nullptr && box->pen.color == 0xFFFF00) return *box;
    }
    return std::nullopt;
  }

  // Where the strip begins.
  f32 Origin() { return Sheet().FindArea("source")->from.x; }

  std::string FocusName() {
    const Control* control = Top().TakeFocusWish();
    return control == nullptr ? "" : control->name;
  }

  std::string LastMessage() { return platform.messages.empty() ? "" : platform.messages.back().text; }
};

}  // namespace quilm
