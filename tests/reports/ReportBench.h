// What a report put on its sheets, and printers that fail.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "core/Fault.h"
#include "shell/HeadlessPlatform.h"

namespace quilm {

inline std::vector<TextOp> TextsOn(const Picture& sheet) {
  std::vector<TextOp> texts;
  for (const PictureOp& operation : sheet.Operations()) {
    if (const auto* text = std::get_if<TextOp>(&operation)) texts.push_back(*text);
  }
  return texts;
}

// Where the text stands; fails with {-1, -1} when it does not stand there exactly once.
inline Point PlaceOf(const Picture& sheet, const std::string& text) {
  Point place{-1, -1};
  int count = 0;
  for (const TextOp& op : TextsOn(sheet)) {
    if (op.text != text) continue;
    place = op.at;
    ++count;
  }
  return count == 1 ? place : Point{-1, -1};
}

// A printer with other paper than letter, in twips.
inline SheetPrinter PrinterWith(f32 width, f32 height) {
  SheetPrinter printer;
  printer.SetScale({0, 0, width, height});
  return printer;
}

// A platform whose print dialog gives the printer of the test, nothing, or a fault.
class PrintingPlatform : public HeadlessPlatform {
 public:
  PrintingPlatform() : HeadlessPlatform("") {}
  Canvas* PrintDialog(Orientation paper) override {
    asked = paper;
    if (refuses) throw Fault("no such printer");
    return printer;
  }
  Canvas* printer = nullptr;
  bool refuses = false;
  std::optional<Orientation> asked;
};

constexpr f32 a4Width = 11906;  // 210 mm
constexpr f32 a4Height = 16838;

}  // namespace quilm
