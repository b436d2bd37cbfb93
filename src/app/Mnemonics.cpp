#include "app/Mnemonics.h"

namespace quilm {

namespace {

bool BeginsWord(const QString& caption, qsizetype at) { return at == 0 || !caption[at - 1].isLetterOrNumber(); }

QChar FirstFree(const QString& caption, const QSet<QChar>& taken, bool wordsOnly) {
  for (qsizetype at = 0; at < caption.size(); ++at) {
    const QChar letter = caption[at].toLower();
    const bool usable = letter.unicode() < 128 && letter.isLetterOrNumber() && !taken.contains(letter);
    if (usable && (!wordsOnly || BeginsWord(caption, at))) return letter;
  }
  return {};
}

}  // namespace

std::vector<QChar> ChooseMnemonics(const std::vector<QString>& captions, QSet<QChar>& taken) {
  std::vector<QChar> letters(captions.size());
  for (const bool wordsOnly : {true, false}) {
    for (std::size_t i = 0; i < captions.size(); ++i) {
      if (!letters[i].isNull()) continue;
      letters[i] = FirstFree(captions[i], taken, wordsOnly);
      if (!letters[i].isNull()) taken.insert(letters[i]);
    }
  }
  return letters;
}

}  // namespace quilm
