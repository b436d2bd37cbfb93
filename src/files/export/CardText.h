// Text whose fields stand at fixed columns.
#pragma once

#include <string>
#include <string_view>

namespace quilm {

class CardText {
 public:
  void Print(std::string_view text) { text_ += text; }

  // Fills with blanks up to the column, the first being 1. Where the line has passed it already, the next line begins
  // and is filled up to there.
  void At(std::size_t column);

  void EndLine();
  void Line(std::string_view text) {
    Print(text);
    EndLine();
  }

  std::string Take() { return std::move(text_); }

 private:
  std::string text_;
  std::size_t lineStart_ = 0;
};

}  // namespace quilm
