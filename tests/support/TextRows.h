// Value texts row by row, from both sides of each threshold.
#pragma once

#include <gtest/gtest.h>

#include <cmath>
#include <initializer_list>

#include "core/Types.h"

namespace quilm {

struct TextRow {
  f32 value;
  const char* text;
};

template <class Text>
void ExpectTexts(Text text, std::initializer_list<TextRow> rows) {
  for (const TextRow& row : rows) EXPECT_EQ(text(row.value), row.text) << row.value;
}

// The next number towards 0.
inline f32 Below(f32 value) { return std::nextafter(value, 0.0F); }

}  // namespace quilm
