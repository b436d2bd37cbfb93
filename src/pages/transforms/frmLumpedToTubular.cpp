#include "pages/transforms/frmLumpedToTubular.h"

#include "core/DesignRecord.h"
#include "core/modGeneral.h"
#include "pages/transforms/TubularDrawing.h"
#include "shell/Session.h"

namespace quilm {

frmLumpedToTubular::frmLumpedToTubular(Session& session)
    : TransformPage(session, PageId::LumpedToTubular, "Lumped-to-tubular conversion", Proposes::OnPress) {
  BindEntry(txtFrequencyNormalization_, typed_.TubeFreq, FormatFrequency);
  BindEntry(txtVelocityFactor_, typed_.TubeVelocity, FormatValue);
  BindEntry(txtDiameterInductors_, typed_.TubeDiaInductors, FormatValue);
  BindEntry(txtDiameterCapacitors_, typed_.TubeDiaCapacitors, FormatValue);
  BindEntry(txtDiameterInterior_, typed_.TubeDiaInterior, FormatValue);
  txtImpedanceInductors_.readOnly = txtImpedanceCapacitors_.readOnly = true;
  cmdCalculate_.onClick = [this] { Calculate(); };
  cmdDrawPicture_.onClick = [this] { session_.pages.ShowModal(PageId::DrawLines); };
  cmdTransfer_.onClick = [this] { Accept(ToTubular(Found(), lines_, session_.tube.TubeFreq)); };
  cmdExit_.onClick = [this] { Ignore(); };
  acceptButton = &cmdCalculate_;
  cancelButton = &cmdExit_;
}

void frmLumpedToTubular::BindEntry(TextBox& box, f32& field, std::string (*format)(f32)) {
  entries.Bind(
      {.box = box, .field = field, .format = format, .ofZero = OfZero::Blank, .onTaken = [this] { HideLines(); }});
}

void frmLumpedToTubular::Begin() {
  typed_ = session_.tube;
  entries.Fill();
  // What was never entered begins with a tube of air that many a workshop has.
  const auto begin = [](TextBox& box, f32& field, const char* text) {
    if (field != 0) return;
    box.text = text;
    std::string entry = text;
    ParseEntry(entry, field);
  };
  begin(txtVelocityFactor_, typed_.TubeVelocity, "1.00059");
  begin(txtDiameterInductors_, typed_.TubeDiaInductors, "3");
  begin(txtDiameterCapacitors_, typed_.TubeDiaCapacitors, "70");
  begin(txtDiameterInterior_, typed_.TubeDiaInterior, "75");
  HideLines();
  SetFocus(txtFrequencyNormalization_);
}

void frmLumpedToTubular::HideLines() {
  for (Control* control :
       std::initializer_list<Control*>{&lblImpedanceInductors_, &txtImpedanceInductors_, &lblImpedanceCapacitors_,
                                       &txtImpedanceCapacitors_, &cmdDrawPicture_, &cmdTransfer_}) {
    control->visible = false;
  }
  picLengths_.picture.Clear();
  picLengths_.description.clear();
}

void frmLumpedToTubular::Calculate() {
  HideLines();
  // Also what is refused below is remembered: the next opening begins with it.
  session_.tube = typed_;
  if (const auto fault = FindTubeFault(typed_)) {
    Refuse(*fault);
    return;
  }
  if (Computes([this] { lines_ = ComputeTubularLines(Found(), typed_); })) ShowLines(lines_);
}

void frmLumpedToTubular::Refuse(TubeFault fault) {
  const auto tell = [this](TextBox& box, const char* text) {
    session_.platform.MessageBox(text, Buttons::Ok, Icon::Question, "Error Checker");
    SetFocus(box);
  };
  switch (fault) {
    case TubeFault::Frequency:
      // The least frequency that is named is advice: everything above 0 is taken.
      return tell(txtFrequencyNormalization_, "Please enter a value for normalization frequency, 10K min");
    case TubeFault::Velocity:
      return tell(txtVelocityFactor_, "Please enter a value for the velocity factor, .01 min to 2 max");
    case TubeFault::MinorDiameter:
      return tell(txtDiameterInductors_, "Please enter a value for inductors' diameters");
    case TubeFault::MajorDiameter:
      return tell(txtDiameterCapacitors_, "Please enter a value for capacitors' diameters");
    case TubeFault::InteriorDiameter:
      return tell(txtDiameterInterior_, "Please enter a value for tube interior diameter");
    case TubeFault::InteriorWithinMajor:
      return tell(txtDiameterInterior_, "The tube interior diameter must be greater than the capacitors' diameters");
    case TubeFault::InteriorWithinMinor:
      return tell(txtDiameterInterior_, "The tube interior diameter must be greater than the inductors' diameters");
    case TubeFault::MajorWithinMinor:
      return tell(txtDiameterCapacitors_, "The capacitor' diameters must be greater than the inductors' diameter");
  }
}

void frmLumpedToTubular::ShowLines(const TubularLines& lines) {
  session_.tube.TubeZInductors = lines.ZInductors;
  session_.tube.TubeZCapacitors = lines.ZCapacitors;
  txtImpedanceInductors_.text = EntryText(lines.ZInductors, FormatValue);
  txtImpedanceCapacitors_.text = EntryText(lines.ZCapacitors, FormatValue);
  for (Control* control :
       std::initializer_list<Control*>{&lblImpedanceInductors_, &txtImpedanceInductors_, &lblImpedanceCapacitors_,
                                       &txtImpedanceCapacitors_, &cmdDrawPicture_, &cmdTransfer_}) {
    control->visible = true;
  }
  PrintLineLengths(lines, Found().Stages, typed_.TubeFreq, picLengths_.picture);
  picLengths_.description = "Total length " + MetricLength(lines.TotalMm);
}

Layout frmLumpedToTubular::MakeLayout() {
  const auto result = [](Label& label, TextBox& box) {
    return FormRow{KeepPlace(Put(label)), KeepPlace(Put(box)), Word("ohms", box)};
  };
  const Layout tube = Group(
      "Tube",
      Form({{Put(lblFrequencyNormalization_), Put(txtFrequencyNormalization_), Word("Hz", txtFrequencyNormalization_)},
            {Put(lblVelocityFactor_), Put(txtVelocityFactor_)},
            {Put(lblDiameterInductors_), Put(txtDiameterInductors_)},
            {Put(lblDiameterCapacitors_), Put(txtDiameterCapacitors_)},
            {Put(lblDiameterInterior_), Put(txtDiameterInterior_)},
            Under(Put(cmdCalculate_)),
            result(lblImpedanceInductors_, txtImpedanceInductors_),
            result(lblImpedanceCapacitors_, txtImpedanceCapacitors_)}));
  return Column({Row({Column({tube, Space()}), Group("Lines", Fill(Put(picLengths_)))}),
                 Row({Space(), KeepPlace(Put(cmdDrawPicture_)), KeepPlace(Put(cmdTransfer_)), Put(cmdExit_)})});
}

}  // namespace quilm
