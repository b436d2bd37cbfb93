// The canvas of a printed document.
#pragma once

#include <QPainter>
#include <QPrinter>
#include <memory>

#include "app/QtCanvas.h"

namespace quilm {

namespace detail {

// What the canvas stands on has to be there before it.
struct PrintJob {
  explicit PrintJob(std::unique_ptr<QPrinter> device);
  std::unique_ptr<QPrinter> printer;
  QPainter painter;
  bool ready;
};

}  // namespace detail

class PrinterCanvas : private detail::PrintJob, public QtCanvas {
 public:
  // Begins the document on its first sheet. The default scale is the printable part of the sheet in twips.
  explicit PrinterCanvas(std::unique_ptr<QPrinter> device);

  // False when the printer did not take the document.
  bool IsReady() const { return ready; }

  // Both throw a Fault when the printer fails.
  void NewPage() override;
  void EndDoc() override;
};

}  // namespace quilm
