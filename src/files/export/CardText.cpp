#include "files/export/CardText.h"

namespace quilm {

void CardText::At(std::size_t column) {
  if (text_.size() - lineStart_ + 1 > column) EndLine();
  text_.append(lineStart_ + column - 1 - text_.size(), ' ');
}

void CardText::EndLine() {
  text_ += "\r\n";
  lineStart_ = text_.size();
}

}  // namespace quilm
