// Pictures for assistive tools: a graphic with its name and description, whose named areas are buttons in it.
#pragma once

namespace quilm {

// From now on each PictureView is one. Once is enough, more do no harm.
void InstallAccessiblePictures();

}  // namespace quilm
