// The zeros of an M-derived design.
#pragma once

#include <array>
#include <memory>

#include "shell/Page.h"
#include "synthesis/modMderived.h"

namespace quilm {

class frmMderived : public Page {
 public:
  explicit frmMderived(Session& session);
  void Load() override;
  Layout MakeLayout() override;

 private:
  struct Zero {
    std::unique_ptr<Label> label;
    std::unique_ptr<TextBox> box;
    f32 frequency = 0;  // Hz; 0 for none
  };

  // Why a zero cannot stand there; empty when it can.
  std::string Refusal(f32 frequency) const;
  bool ZerosAreInStopband();
  void Accept();

  Label lblInputTerm_{*this, "lblInputTerm", "Input term: "};
  Label lblInputTermValue_{*this, "lblInputTermValue", ""};
  Label lblBandwidth_{*this, "lblBandwidth", "Bandwidth: "};
  Label lblBandwidthValue_{*this, "lblBandwidthValue", ""};
  std::array<Zero, mostMderivedZeros> zeros_;
  Button cmdOk_{*this, "cmdOk", "Ok", "Design the filter with these zeros"};
  Button cmdIgnore_{*this, "cmdIgnore", "Ignore", "Leave the zeros as they were"};
};

}  // namespace quilm
