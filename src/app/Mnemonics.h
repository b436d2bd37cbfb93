// Which letter of each caption presses its button together with Alt.
#pragma once

#include <QChar>
#include <QSet>
#include <QString>
#include <vector>

namespace quilm {

// One letter or digit a caption, none of those that are `taken` and no letter twice; a null character for captions
// whose letters are all taken. Earlier captions choose first, and prefer the first letters of their words. What is
// chosen is taken from then on.
std::vector<QChar> ChooseMnemonics(const std::vector<QString>& captions, QSet<QChar>& taken);

}  // namespace quilm
