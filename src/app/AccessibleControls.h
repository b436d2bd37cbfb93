// What assistive tools hear of the window's own controls: numbers with arrows, and groups.
#pragma once

namespace quilm {

// As often as one likes.
void InstallAccessibleControls();

}  // namespace quilm
