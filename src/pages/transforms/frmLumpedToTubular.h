// A lowpass ladder made of lines in a tube: the entries of the tube, and the lengths that follow.
#pragma once

#include "network/TubularLines.h"
#include "pages/transforms/TransformPage.h"

namespace quilm {

class frmLumpedToTubular : public TransformPage {
 public:
  explicit frmLumpedToTubular(Session& session);
  Layout MakeLayout() override;

 private:
  void Begin() override;
  void BindEntry(TextBox& box, f32& field, std::string (*format)(f32));
  void Calculate();
  void Refuse(TubeFault fault);
  void ShowLines(const TubularLines& lines);
  void HideLines();

  TubeData typed_;
  TubularLines lines_;

  Label lblFrequencyNormalization_{*this, "lblFrequencyNormalization", "Frequency for normalization:"};
  TextBox txtFrequencyNormalization_{*this, "txtFrequencyNormalization", "Frequency for normalization",
                                     "Where the lines have the reactances of the parts"};
  Label lblVelocityFactor_{*this, "lblVelocityFactor", "Velocity factor:"};
  TextBox txtVelocityFactor_{*this, "txtVelocityFactor", "Velocity factor",
                             "Divides the speed of light: 1.00059 for air"};
  Label lblDiameterInductors_{*this, "lblDiameterInductors", "Diameter for inductors (minor, mm):"};
  TextBox txtDiameterInductors_{*this, "txtDiameterInductors", "Diameter for inductors"};
  Label lblDiameterCapacitors_{*this, "lblDiameterCapacitors", "Diameter for capacitors (major, mm):"};
  TextBox txtDiameterCapacitors_{*this, "txtDiameterCapacitors", "Diameter for capacitors"};
  Label lblDiameterInterior_{*this, "lblDiameterInterior", "Diameter of tube interior (mm):"};
  TextBox txtDiameterInterior_{*this, "txtDiameterInterior", "Diameter of tube interior"};
  Label lblImpedanceInductors_{*this, "lblImpedanceInductors", "Impedance for inductors:"};
  TextBox txtImpedanceInductors_{*this, "txtImpedanceInductors", "Impedance for inductors"};
  Label lblImpedanceCapacitors_{*this, "lblImpedanceCapacitors", "Impedance for capacitors:"};
  TextBox txtImpedanceCapacitors_{*this, "txtImpedanceCapacitors", "Impedance for capacitors"};
  Button cmdCalculate_{*this, "cmdCalculate", "Calculate and display lengths", "Of the lines that stand for the parts"};
  PictureBox picLengths_{*this, "picLengths", "Lengths of the lines"};
  Button cmdDrawPicture_{*this, "cmdDrawPicture", "Show mechanical drawing", "Rod and tube to scale"};
  Button cmdTransfer_{*this, "cmdTransfer", "Accept and return to Design page", "The lines replace the parts"};
  Button cmdExit_{*this, "cmdExit", "Ignore and return to Design page", "Leave the parts as they are"};
};

}  // namespace quilm
