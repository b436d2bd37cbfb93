// The two palettes by hand, for systems that give none and for pictures of the program.
#pragma once

#include <QPalette>
#include <QString>

namespace quilm {

QPalette LightPalette();
QPalette DarkPalette();

// Sets the style of the program, and the palette that is asked for: "light", "dark", or anything else for the system's.
void SetAppearance(const QString& palette);

}  // namespace quilm
