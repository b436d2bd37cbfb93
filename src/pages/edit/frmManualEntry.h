// The page for entry by hand: a network is composed from nothing, part by part from left to right.
//
// The palette is dead until both terminations have been typed. What is bad is refused and leaves the list as it was,
// but for the reactances, whose place stays.
#pragma once

#include <functional>

#include "pages/edit/CircuitSheet.h"
#include "pages/edit/ValueBoxes.h"
#include "shell/Page.h"

namespace quilm {

struct PartRule;

class frmManualEntry : public Page {
 public:
  explicit frmManualEntry(Session& session);
  void Load() override;
  void Reload() override;
  void CloseBox() override;
  Layout MakeLayout() override;

 private:
  void BindEntries();
  void Show();
  void FollowTerminations();
  void OpenPalette();
  void Press(f32 x, f32 y);
  void ChooseElement(i16 element);
  void Accept();
  void Refuse(const PartRule& rule);
  void EndEntry();
  void DeleteLast();
  void Finish();
  void GoTo(PageId target);
  void Tell(const char* text, const char* heading, bool stops);
  f32 Origin() const;
  void Draw();

  // The box of a termination. It shows nothing until it was typed in, whatever the network has.
  struct Termination {
    TextBox& box;
    f32& field;
    i16& typed;
    f32 entered = 0;
    f32 found = 0;  // the field when the page was loaded
  };
  void ShowTermination(Termination& termination);

  i16 ChosenElement_ = 0;
  i16 PaletteOpen_ = 0;
  i16 InputTyped_ = 0;
  i16 OutputTyped_ = 0;
  Color PaletteColor_ = paletteOff;

  PictureBox picEntry_{*this, "picEntry", "Network and palette"};
  Label lblEnterTerminations_{*this, "lblEnterTerminations", "Enter the input and output terminations"};
  Label lblEmptyList_{*this, "lblEmptyList",
                      "The parts list is empty; select parts one at a time to enter the network."};
  Label lblClickOnAnElement_{*this, "lblClickOnAnElement", "Click on an element to select it"};
  Label lblInputTermination_{*this, "lblInputTermination", "Input termination, ohms:"};
  TextBox txtInputTermination_{*this, "txtInputTermination", "Input termination, ohms"};
  Label lblOutputTermination_{*this, "lblOutputTermination", "Output termination, ohms:"};
  TextBox txtOutputTermination_{*this, "txtOutputTermination", "Output termination, ohms"};
  ValueBoxes boxes_;
  Button cmdAccept_{*this, "cmdAccept", "Accept this part", "Add the part at the right end of the network"};
  Button cmdDeleteLast_{*this, "cmdDeleteLast", "Delete the last part", "Take the part at the right end away"};
  Label lblBandEdge_{*this, "lblBandEdge", "If LPF or HPF, band edge:"};
  TextBox txtBandEdge_{*this, "txtBandEdge", "Band edge of a lowpass or highpass"};
  Label lblBandCenter_{*this, "lblBandCenter", "If BPF, band center:"};
  TextBox txtBandCenter_{*this, "txtBandCenter", "Band center of a bandpass"};
  Button cmdExitEntry_{*this, "cmdExitEntry", "Continue on to Analysis screen", "The network is complete"};
  Button cmdEscape_{*this, "cmdEscape", "Stop; restart the program", "Go to the opening page; the parts stay"};
  Termination input_;
  Termination output_;
  f32 bandEdge_ = 0;  // as entered
  f32 bandCenter_ = 0;
};

}  // namespace quilm
