#include "files/modOverlays.h"

#include <algorithm>
#include <array>
#include <filesystem>

#include "core/DesignRecord.h"
#include "core/Responses.h"
#include "core/TextFile.h"
#include "display/SheetDrawing.h"
#include "shell/Session.h"

namespace quilm {

namespace {

struct OverlayKind {
  Quantity quantity;
  const char* extension;
};

// In the order of writing.
constexpr std::array<OverlayKind, 7> kinds = {{{Quantity::Transmission, ".S21"},
                                               {Quantity::Return, ".S11"},
                                               {Quantity::Angle, ".PHS"},
                                               {Quantity::Delay, ".DEL"},
                                               {Quantity::VSWR, ".SWR"},
                                               {Quantity::Zin, ".ZIN"},
                                               {Quantity::ZinAngle, ".ZAN"}}};

// In the order of deleting: what tells that a slot is in use goes before most of the others.
constexpr std::array deleted = {Quantity::Delay, Quantity::Angle,    Quantity::Transmission, Quantity::Return,
                                Quantity::VSWR,  Quantity::ZinAngle, Quantity::Zin};

const char* ExtensionOf(Quantity quantity) {
  const auto at = std::find_if(kinds.begin(), kinds.end(),
                               [quantity](const OverlayKind& kind) { return kind.quantity == quantity; });
  if (at == kinds.end()) throw Fault("No overlay holds this quantity");
  return at->extension;
}

void TellMissing(Session& session, int slot) {
  session.platform.MessageBox("Files enabling 'Get overlay " + std::to_string(slot) + "' have not been written.",
                              Buttons::Ok, Icon::Exclamation, "Overlay 262");
}

}  // namespace

std::string OverlayPath(const std::string& folder, int slot, Quantity quantity) {
  return folder + "/Data" + std::to_string(slot) + ExtensionOf(quantity);
}

bool HasOverlay(const Session& session, int slot) {
  std::error_code unknown;
  return std::filesystem::exists(OverlayPath(session.platform.ProgramFolder(), slot, Quantity::Transmission), unknown);
}

void SaveOverlay(Session& session, int slot) {
  if (session.record.ResponsesValid != 1) {
    session.note = "There is no response to save";
    return;
  }
  const ResponseSpans responses = SpansOf(session.responses, LastPoint(session.record));
  std::vector<f64> derived;
  for (const OverlayKind& kind : kinds) {
    const Curve curve = CurveOf(responses, kind.quantity, derived);
    const std::string path = OverlayPath(session.platform.ProgramFolder(), slot, kind.quantity);
    const WriteOutcome outcome =
        WriteTextFile(path, OverlayText(curve.frequencies, std::get<std::span<const f32>>(curve.values)));
    if (!outcome) {
      session.note = path + " was not written: " + outcome.failure;
      return;
    }
  }
  session.note = "The responses are overlay " + std::to_string(slot);
}

OverlaySet ReadOverlaySet(const std::string& folder, int slot, i16 plotCode) {
  OverlaySet set;
  for (const Quantity quantity : OverlaidQuantities(plotCode)) {
    std::ifstream in = OpenTextFile(OverlayPath(folder, slot, quantity));
    OverlayRead read = in ? ReadOverlay(in) : OverlayRead{};
    if (read.curve.freq.empty()) return set;
    set.unread += read.unread;
    set.curves[quantity] = std::move(read.curve);
  }
  set.complete = true;
  return set;
}

void GetOverlay(Session& session, int slot) {
  const OverlaySet overlay = ReadOverlaySet(session.platform.ProgramFolder(), slot, session.record.PlotCode);
  if (!overlay.complete) {
    TellMissing(session, slot);
    return;
  }
  DrawOverlay(SetupOf(session), overlay.curves, session.plot.picture);
  session.plot.overlays.OverlayShown = 1;
  std::vector<int>& fetched = session.plot.overlays.fetched;
  if (std::find(fetched.begin(), fetched.end(), slot) == fetched.end()) fetched.push_back(slot);
  session.note = "Overlay " + std::to_string(slot);
  if (overlay.unread > 0)
    session.note += ": " + std::to_string(overlay.unread) + " lines that cannot be read are left out";
}

void DeleteOverlay(Session& session, int slot) {
  bool missing = false;
  for (const Quantity quantity : deleted) {
    std::error_code failure;
    const std::string path = OverlayPath(session.platform.ProgramFolder(), slot, quantity);
    missing = !std::filesystem::remove(path, failure) && !failure ? true : missing;
    if (failure) session.note = path + " was not deleted: " + failure.message();
  }
  if (!missing) return;
  session.platform.MessageBox("One or more Data" + std::to_string(slot) + " files were missing", Buttons::Ok,
                              Icon::Exclamation, "");
}

void HideOverlays(Session& session) {
  session.plot.overlays.OverlayShown = 0;
  RedrawPlot(session);
}

}  // namespace quilm
