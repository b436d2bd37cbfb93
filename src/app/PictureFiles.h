// Pictures outside the program: as files of their own and on the clipboard, always on white paper, whatever the
// palette.
#pragma once

#include <QByteArray>
#include <QImage>
#include <QMimeData>
#include <QString>
#include <memory>

#include "core/TextFile.h"
#include "shell/Picture.h"

namespace quilm {

// How wide a picture is at 300 pixels to the inch; its natural size has 1440 units of its scale to the inch.
int PrintWidth(const Picture& picture);

// The picture in so many pixels of width, with its resolution, so that it is placed in its natural size.
QImage ImageOf(const Picture& picture, int width);

// As vectors, and at 300 pixels to the inch for who takes no vectors.
std::unique_ptr<QMimeData> ClipboardForms(const Picture& picture);

// Writes the picture as PNG, SVG or PDF by the ending of the path; a PNG has the width in pixels, or 300 to the inch
// for 0. What stood there is replaced by a whole file or stays. Fails, with words for the user, for any other ending
// and whenever the file cannot be written.
WriteOutcome SavePicture(const Picture& picture, const QString& path, int width = 0);

}  // namespace quilm
