#include "files/export/LtspiceSchematic.h"

#include <algorithm>

#include "core/DesignRecord.h"
#include "core/NumberText.h"
#include "core/NumericFault.h"
#include "files/export/LtspiceSheet.h"
#include "files/export/LtspiceStages.h"
#include "files/export/SpiceTexts.h"

namespace quilm {

namespace {

// The amplitude with which a lossless matched network has 0 dB across the load.
f32 Amplitude(const DesignRecord& record) {
  NumericFaultScope scope;
  const f64 rs = record.Rsource[1];
  const f64 rl = record.Rload[1];
  return scope.Store((rs + rl) / rl);
}

// The sweep, at the foot of the sheet; none for a mode that is not linear or logarithmic.
void WriteDirective(LtspiceSheet& sheet, const DesignRecord& record) {
  const std::string place = "TEXT 0 544 Left 0 ";
  const std::string limits = NumText(record.Fstart) + NumText(record.Fstop);
  if (record.SweepMode == 1) sheet.Line(place + " !.AC LIN " + NumText(SpiceCount(record.NrIntervals)) + limits);
  if (record.SweepMode == 2) sheet.Line(place + " !.AC DEC " + NumText(SpicePointsPerDecade(record)) + limits);
}

void DrawSource(LtspiceSheet& sheet, const DesignRecord& record) {
  DrawLtspiceGenerator(sheet, SpiceFix(SpiceResistance(Amplitude(record))));
  WriteDirective(sheet, record);
  sheet.Line("TEXT 0 576 Left 0  ;Schematic drawn by Quilm");
  sheet.Advance(48);
  DrawLtspiceSourceResistor(sheet, "RS", record.Rsource[1]);
}

std::string Schematic(const DesignRecord& record) {
  const f32 Fq = SpiceReferenceFrequency(record);
  LtspiceSheet sheet;
  sheet.Line("Version 4");
  sheet.Line("SHEET 1 " + NumText(SheetWidthFor(record)) + " 600");
  DrawSource(sheet, record);
  for (i16 s = 1; s <= record.Stages; ++s) DrawLtspiceStage(sheet, record, s, Fq);
  DrawLtspiceLoad(sheet, "RL", record.Rload[1]);
  return sheet.Take();
}

}  // namespace

ExportText LtspiceSchematic(const DesignRecord& record) {
  try {
    return {Schematic(record), {}};
  } catch (const NumericFault&) {
    return {{}, "A problem was encountered and so we did not write the LTspice schematic file"};
  }
}

i16 SheetWidthFor(const Network& network) {
  constexpr int withoutStages = 304;
  constexpr int least = 800;
  int width = withoutStages;
  for (int s = 1; s <= network.Stages; ++s) width += LtspiceStageWidth(network.stage[s].ElementType);
  return static_cast<i16>(std::max(width, least));
}

}  // namespace quilm
