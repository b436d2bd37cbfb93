// Which letter of each caption presses its button together with Alt.
#pragma once

#include <QChar>
#include <QString>
#include <vector>

namespace quilm {

// One letter or digit a caption, no letter twice; a null character for captions whose letters are all taken. Earlier
// captions choose first, and prefer the first letters of their words.
std::vector<QChar> ChooseMnemonics(const std::vector<QString>& captions);

}  // namespace quilm
