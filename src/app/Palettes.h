// The look of the program: its style, the two palettes by hand, and what is mended in the system's.
#pragma once

#include <QPalette>
#include <QString>

#include "shell/Canvas.h"

namespace quilm {

QPalette LightPalette();
QPalette DarkPalette();

// The system's palette with captions of what is disabled, and quiet ones, dark enough or light enough to be read. Only
// these are its own; all other colours go on following the system.
QPalette Legible(const QPalette& system);

// The ring of an option's mark: seen on the window and on a card.
QColor RingColor(const QPalette& palette, QPalette::ColorGroup group);

// How far two opaque colours are apart, from 1 to 21: (L1 + 0.05) / (L2 + 0.05) of their relative luminances, as the
// Web Content Accessibility Guidelines define it.
double Contrast(const QColor& one, const QColor& other);

// The colours of a widget whose ground is marked, with dark letters on it in whichever palette: marks are light. White
// marks nothing, and gives a palette without any colour of its own.
QPalette MarkedGround(Color ground, QPalette::ColorRole behind, QPalette::ColorRole letters);

// Sets the style of the program, and the palette that is asked for: "light", "dark", or anything else for the system's.
// The window runs from left to right whatever the desktop's language: its texts are English, units stand behind their
// numbers, and stages and buttons go the way of the ladder that is drawn.
void SetAppearance(const QString& palette);

}  // namespace quilm
