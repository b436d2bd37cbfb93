#include "app/PrinterCanvas.h"

#include <utility>

#include "core/Fault.h"

namespace quilm {

namespace {

constexpr f64 pixelsPerInch = 96;  // what a pen width counts on paper

Surface SheetOf(const QPrinter& printer) {
  return {.target = QRectF(QPointF(0, 0), printer.pageRect(QPrinter::DevicePixel).size()),
          .pixel = printer.resolution() / pixelsPerInch,
          .density = 1,
          .smallestText = 0,
          .paper = true,
          .medium = Medium::Paper};
}

}  // namespace

detail::PrintJob::PrintJob(std::unique_ptr<QPrinter> device)
    : printer(std::move(device)), painter(), ready(painter.begin(printer.get())) {}

PrinterCanvas::PrinterCanvas(std::unique_ptr<QPrinter> device)
    : PrintJob(std::move(device)), QtCanvas(painter, SheetOf(*printer)) {
  const QSizeF points = printer->pageRect(QPrinter::Point).size();
  SetScale({0, 0, static_cast<f32>(points.width() * twipsPerPoint), static_cast<f32>(points.height() * twipsPerPoint)});
}

void PrinterCanvas::NewPage() {
  if (!printer->newPage()) throw Fault("The printer did not take another sheet.");
  CurrentX = 0;
  CurrentY = 0;
}

// A printer that has failed before tells so here; of a document that was closed already there is nothing to tell.
void PrinterCanvas::EndDoc() {
  if (!painter.isActive()) return;
  const bool ended = painter.end();
  if (!ended || printer->printerState() == QPrinter::Error) throw Fault("The printer did not take the document.");
}

}  // namespace quilm
