// Overlay files of any bytes: reading ends with as many values as frequencies, all of them numbers, and what was read
// is written and read again alike; a drawing of it has no place outside the frame.
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <sstream>
#include <string>

#include "display/OverlayCurves.h"
#include "display/PlotFrame.h"
#include "files/OverlayFile.h"
#include "shell/Picture.h"

namespace {

using namespace quilm;

void Require(bool holds) {
  if (!holds) std::abort();
}

OverlayRead Read(const std::string& text) {
  std::istringstream in(text);
  return ReadOverlay(in);
}

// The text has seven digits.
bool Alike(f32 a, f32 b) { return std::fabs(a - b) <= 1e-6F * std::fabs(a) + 1e-38F; }

void Draw(const StoredCurve& curve, bool logarithmic) {
  PlotSetup setup{
      .axis = HorizontalAxis(AxisSettings{logarithmic, 1e3F, 1e7F}), .scales = {}, .colors = {}, .chart = {}};
  setup.scales.PlotCode = 1;
  setup.scales.LossBottom = -60;
  Picture picture(plotScale);
  DrawOverlay(setup, {{Quantity::Transmission, curve}}, picture);
  for (const PictureOp& operation : picture.Operations()) {
    for (const Point at : std::get<PolylineOp>(operation).points) {
      Require(at.x >= plotFrame.left && at.x <= plotFrame.Right());
      Require(at.y >= plotFrame.top && at.y <= plotFrame.Bottom());
    }
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const StoredCurve curve = Read(std::string(reinterpret_cast<const char*>(data), size)).curve;
  Require(curve.freq.size() == curve.value.size() && curve.freq.size() <= 2050);
  for (std::size_t i = 0; i < curve.freq.size(); ++i) {
    Require(std::isfinite(curve.freq[i]) && std::isfinite(curve.value[i]) && curve.freq[i] >= 0);
  }
  const OverlayRead again = Read(OverlayText(curve.freq, curve.value));
  Require(again.unread == 0 && again.curve.freq.size() == curve.freq.size());
  for (std::size_t i = 0; i < curve.freq.size(); ++i) {
    Require(Alike(curve.freq[i], again.curve.freq[i]) && Alike(curve.value[i], again.curve.value[i]));
  }
  Draw(curve, true);
  Draw(curve, false);
  return 0;
}
