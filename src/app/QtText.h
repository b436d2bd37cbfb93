// The few conversions between the program's plain values and the toolkit's.
#pragma once

#include <QColor>
#include <QString>
#include <string>

#include "shell/Canvas.h"

namespace quilm {

// UTF-8, with CR LF and CR as line breaks.
QString ToQt(const std::string& text);

// A caption with its ampersands shown literally, where the toolkit would take them for mnemonics.
QString LiteralCaption(const std::string& caption);

// A blue-green-red word.
QColor ToQt(Color color);

// The colour made readable on a dark background: the same hue, light enough. Black becomes `text`.
QColor ReadableOn(const QColor& background, const QColor& text, Color color);

}  // namespace quilm
