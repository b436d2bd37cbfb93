#include "pages/transforms/TubularDrawing.h"

#include <algorithm>
#include <cmath>

#include "core/modGeneral.h"
#include "shell/PenScope.h"

namespace quilm {

namespace {

constexpr f32 metre = 1000;  // millimetres
constexpr f32 mmPerInch = 25.4F;
constexpr f32 inchesPerFoot = 12;

std::string Plain(f32 value) { return value == 0 ? "0" : Trimmed(FormatValue(value)); }

bool ToldInMetres(f32 mm) { return std::abs(mm) >= metre; }

// The table: blocks of lines side by side, so that a network of any length fits at one size of letters.
constexpr Scale tableSheet{0, 0, 9600, 6900};
constexpr f32 margin = 200;
constexpr f32 pitch = 240;
constexpr int blockRows = 22;
constexpr f32 blockWidth = 4800;
constexpr f32 columns[] = {0, 500, 1700, 3000};

void PrintCells(f32 left, f32 y, const std::string (&cells)[4], Canvas& canvas) {
  for (std::size_t i = 0; i < 4; ++i) canvas.PrintAt(left + columns[i], y, cells[i]);
}

void PrintBlockHead(int block, Canvas& canvas) {
  const PenScope pen(canvas);
  canvas.FontBold = true;
  PrintCells(margin + blockWidth * static_cast<f32>(block), margin + 2 * pitch, {"#:", "deg:", "mm:", "in:"}, canvas);
}

void PrintLineRow(const TubularLines& lines, int s, Canvas& canvas) {
  const int block = (s - 1) / blockRows;
  const int row = (s - 1) % blockRows;
  if (row == 0) PrintBlockHead(block, canvas);
  PrintCells(margin + blockWidth * static_cast<f32>(block), margin + pitch * static_cast<f32>(row + 3),
             {std::to_string(s), Plain(lines.LineDegrees[s]), Plain(lines.LineMm[s]), Plain(lines.LineInches[s])},
             canvas);
}

// The drawing.
constexpr Scale drawingSheet{0, 0, 13000, 8000};
constexpr f32 roomLeft = 700;
constexpr f32 roomWidth = 11600;
constexpr f32 roomTop = 700;
constexpr f32 roomHeight = 4700;
constexpr f32 axis = roomTop + roomHeight / 2;
constexpr Color rodColor = 0xE0E0E0;
constexpr Color axisColor = 0x808080;

f32 LengthDrawn(const TubularLines& lines, int stages) {
  f32 total = 0;
  for (int s = 1; s <= stages; ++s) total += std::abs(lines.LineMm[s]);
  return total;
}

void DrawSection(f32 x, f32 width, f32 height, f32 bore, int stage, Canvas& canvas) {
  canvas.Rectangle(x, axis - height / 2, x + width, axis + height / 2, rodColor, true);
  canvas.Rectangle(x, axis - height / 2, x + width, axis + height / 2, colorBlack, false);
  const std::string number = std::to_string(stage);
  constexpr f32 above = 320;
  const f32 textWidth = canvas.TextWidth(number);
  if (width > textWidth) canvas.PrintAt(x + (width - textWidth) / 2, axis - bore - above, number);
}

void PrintMeasures(const TubularLines& lines, const TubeData& tube, Canvas& canvas) {
  const f32 inches = lines.TotalMm / mmPerInch;
  const std::string imperial =
      ToldInMetres(lines.TotalMm) ? Plain(inches / inchesPerFoot) + " ft" : Plain(inches) + " in";
  constexpr f32 measurePitch = 330;
  f32 y = roomTop + roomHeight + 300;
  canvas.Fit.anchor = 0;
  for (const std::string& line :
       {"Total length:  " + MetricLength(lines.TotalMm) + "   " + imperial,
        "Interior diameter of outside tube:  " + Plain(tube.TubeDiaInterior) + " mm",
        "Diameter for capacitor (major):  " + Plain(tube.TubeDiaCapacitors) + " mm",
        "Resulting line impedance:  " + Plain(lines.ZCapacitors) + " ohms",
        "Diameter for inductor (minor):  " + Plain(tube.TubeDiaInductors) + " mm",
        // The capital tells the second impedance from the first for whoever searches a printed sheet.
        "Resulting line Impedance:  " + Plain(lines.ZInductors) + " ohms"}) {
    canvas.PrintAt(roomLeft, y, line);
    y += measurePitch;
  }
}

}  // namespace

std::string MetricLength(f32 mm) { return ToldInMetres(mm) ? Plain(mm / metre) + " m" : Plain(mm) + " mm"; }

void PrintLineLengths(const TubularLines& lines, int stages, f32 frequency, Canvas& canvas) {
  canvas.SetScale(tableSheet);
  canvas.Clear();
  const PenScope pen(canvas);
  canvas.FontSize = 9;
  canvas.Fit.anchor = 0;  // columns keep their left edges where a small picture enlarges its letters
  canvas.PrintAt(margin, margin, "Line lengths at " + Trimmed(FormatFrequency(frequency)) + "Hz");
  for (int s = 1; s <= stages; ++s) PrintLineRow(lines, s, canvas);
  canvas.PrintAt(margin, margin + pitch * static_cast<f32>(std::min(stages, blockRows) + 4),
                 "Total length: " + MetricLength(lines.TotalMm) + "   " + Plain(lines.TotalMm / mmPerInch) + " in");
}

void DrawTubular(const Network& network, const TubularLines& lines, const TubeData& tube, Canvas& canvas) {
  canvas.SetScale(drawingSheet);
  canvas.Clear();
  const PenScope pen(canvas);
  canvas.FontSize = 9;
  const f32 length = LengthDrawn(lines, network.Stages);
  f32 unit = roomHeight / tube.TubeDiaInterior;
  if (length > 0) unit = std::min(unit, roomWidth / length);
  f32 x = roomLeft + (roomWidth - length * unit) / 2;
  const f32 bore = tube.TubeDiaInterior * unit / 2;
  const f32 left = x;
  canvas.DrawWidth = 2;
  canvas.Rectangle(x, axis - bore, x + length * unit, axis + bore, colorBlack, false);
  canvas.DrawWidth = 1;
  for (int s = 1; s <= network.Stages; ++s) {
    const f32 width = std::abs(lines.LineMm[s]) * unit;
    if (width == 0) continue;
    const bool inductor = network.stage[s].ElementType == SeriesL;
    DrawSection(x, width, (inductor ? tube.TubeDiaInductors : tube.TubeDiaCapacitors) * unit, bore, s, canvas);
    x += width;
  }
  constexpr f32 beyond = 150;  // of the axis at both ends
  canvas.DrawStyle = LineStyle::Dash;
  canvas.Line(left - beyond, axis, x + beyond, axis, axisColor);
  PrintMeasures(lines, tube, canvas);
}

}  // namespace quilm
