// Impedance matching, in three stages: a new input termination, a new output termination, and a look at both ends
// before they are accepted. Nothing of the design changes until then.
#pragma once

#include <deque>
#include <string>
#include <vector>

#include "network/ImpedanceMatch.h"
#include "pages/transforms/MatchDrawing.h"
#include "pages/transforms/TransformPage.h"

namespace quilm {

class frmImpedanceMatch : public TransformPage {
 public:
  explicit frmImpedanceMatch(Session& session);
  Layout MakeLayout() override;

 protected:
  void Begin() override;

 private:
  struct SideNames;
  static const SideNames inputNames;
  static const SideNames outputNames;

  // A side of the network: its stage of the page, and what was chosen there.
  struct Side {
    Side(frmImpedanceMatch& page, const SideNames& names);

    const SideNames& names;
    MatchSide side;
    Frame frame;
    Label lblCurrent;
    Label lblCurrentValue;
    Label lblNew;
    TextBox txtNew;
    Button cmdPreview;
    Label lblAdvice;
    std::deque<Button> choices;  // as it is, then options 1 to 5

    f32 Current = 0;  // ohms
    f32 New = 0;
    std::string given;  // the text that the page put into the box
    std::vector<MatchOption> options;
    i16 Option = 0;            // the code of what was chosen
    std::vector<Stage> shown;  // the end as it is, then as it will be
  };

  void OpenSide(Side& side);
  void HideOptions(Side& side);
  void Preview(Side& side);
  void Offer(Side& side, int number, MatchRow row, std::vector<MatchRow>& rows);
  void Show(const std::vector<MatchRow>& rows);
  void Choose(Side& side, int number);
  void GoOn(Side& side);
  void ShowFinal();
  void AcceptEnds();

  // The network that the options of a side are worked out for.
  Network Before(const Side& side) const;

  // What was chosen at a side, nullptr where that stays as it is; its termination then; and the network with it.
  static const MatchOption* Chosen(const Side& side);
  static f32 Outcome(const Side& side);
  static void Set(const Side& side, Network& network);

  Layout SideForm(Side& side);
  Layout FinalForm();

  f32 OmegaCenter_ = 0;
  Label lblHeading_{*this, "lblHeading", "Impedance-matching"};
  Side input_;
  Side output_;
  Frame fraFinal_{*this, "fraFinal", "Final Design Preview"};
  Label lblOriginalInput_{*this, "lblOriginalInput", "Original input:"};
  Label lblOriginalInputValue_{*this, "lblOriginalInputValue", ""};
  Label lblNewInput_{*this, "lblNewInput", "New input:"};
  Label lblNewInputValue_{*this, "lblNewInputValue", ""};
  Label lblOriginalOutput_{*this, "lblOriginalOutput", "Original output:"};
  Label lblOriginalOutputValue_{*this, "lblOriginalOutputValue", ""};
  Label lblNewOutput_{*this, "lblNewOutput", "New output:"};
  Label lblNewOutputValue_{*this, "lblNewOutputValue", ""};
  PictureBox picMatch_{*this, "picMatch", "Ends of the network"};
  Button cmdAccept_{*this, "cmdAccept", "Accept and return to Design page", "The design takes the new ends"};
  Button cmdRedesign_{*this, "cmdRedesign", "New design", "Begin again with the present terminations"};
  Button cmdIgnore_{*this, "cmdIgnore", "Ignore and return to Design page", "Leave the network as it was"};
};

}  // namespace quilm
