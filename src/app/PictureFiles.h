// Pictures as files of their own.
#pragma once

#include <QImage>
#include <QString>

#include "shell/Picture.h"

namespace quilm {

// Each writes the picture at its natural size (1440 units of its scale to the inch) on white paper. False when the file
// cannot be written.
bool SavePictureAsSvg(const Picture& picture, const QString& path);
bool SavePictureAsPdf(const Picture& picture, const QString& path);
// The same for one that is painted already.
bool SaveImageAsPng(const QImage& image, const QString& path);

}  // namespace quilm
