// Overlays: responses kept in ten slots of the program's folder, Data1 to Data10, to be laid over later plots.
#pragma once

#include <string>

#include "files/OverlayFile.h"

namespace quilm {

class Session;

// The file of a slot, 1..10, and a quantity that is kept: "Data3.S21" in a folder.
std::string OverlayPath(const std::string& folder, int slot, Quantity quantity);

// Whether a slot is in use, which its transmission tells.
bool HasOverlay(const Session& session, int slot);

// Writes the seven files of a slot from the last sweep, over what it held. Each is written whole or not at all; the
// first that fails ends the save without a message, the status line says why. Without valid responses nothing is
// written.
void SaveOverlay(Session& session, int slot);

// What the plot of a code draws of a slot.
struct OverlaySet {
  StoredCurves curves;
  bool complete = false;  // no file is missing or without a point
  int unread = 0;         // lines that hold no point
};
OverlaySet ReadOverlaySet(const std::string& folder, int slot, i16 plotCode);

// Draws a slot over the present plot and remembers that it is there. A file that is missing, or has no point, is told
// to the user, and nothing is drawn; lines that cannot be read are left out, which the status line tells.
void GetOverlay(Session& session, int slot);

// Takes the seven files of a slot away, and tells the user when one of them was missing.
void DeleteOverlay(Session& session, int slot);

// Takes all overlays off the plot by drawing it anew.
void HideOverlays(Session& session);

}  // namespace quilm
