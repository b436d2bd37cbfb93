#include "schematic/LabelDrawing.h"

#include "shell/PenScope.h"

namespace quilm {

void PrintLabel(Canvas& canvas, f32 x, f32 y, f32 room, const StageLabel& label) {
  constexpr f32 unitGap = 20;
  const PenScope pen(canvas);
  const f32 width = canvas.TextWidth(label.text) + (label.unit.empty() ? 0 : unitGap + canvas.TextWidth(label.unit));
  const f32 height = canvas.TextHeight(label.text);
  if (width > room) canvas.FontSize *= room / width;
  const f32 onLine = y + (height - canvas.TextHeight(label.text)) * 0.8F;  // about the same base line
  canvas.ForeColor = label.negative ? colorRed : colorBlack;
  canvas.PrintAt(x, onLine, label.text);
  if (label.unit.empty()) return;
  canvas.ForeColor = colorBlack;
  canvas.PrintAt(x + canvas.TextWidth(label.text) + unitGap, onLine, label.unit);
}

}  // namespace quilm
