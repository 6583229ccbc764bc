#include "base/page_in_making.h"

#include <algorithm>
#include <utility>

namespace tonarix {

namespace {

constexpr int kHeadingSize = 28;  // half points
constexpr char32_t kUnreadable = 0xFFFD;

bool is_high_surrogate(char32_t c) {
  return c >= 0xD800 && c < 0xDC00;
}
bool is_low_surrogate(char32_t c) {
  return c >= 0xDC00 && c < 0xE000;
}

bool is_character(char32_t c) {
  const bool control = c < 0x20 || (c >= 0x7F && c < 0xA0);
  return !control && !is_low_surrogate(c) && (c & 0xFFFE) != 0xFFFE && c <= 0x10FFFF;
}

void append_utf8(std::string& text, char32_t c) {
  const auto tail = [&](int shift) { text += static_cast<char>(0x80 | ((c >> shift) & 0x3F)); };
  if (c < 0x80) {
    text += static_cast<char>(c);
  } else if (c < 0x800) {
    text += static_cast<char>(0xC0 | (c >> 6));
    tail(0);
  } else if (c < 0x10000) {
    text += static_cast<char>(0xE0 | (c >> 12));
    tail(6);
    tail(0);
  } else {
    text += static_cast<char>(0xF0 | (c >> 18));
    tail(12);
    tail(6);
    tail(0);
  }
}

}  // namespace

void PageInMaking::add(char32_t character, const Shape& shape) {
  const char32_t high = std::exchange(high_surrogate_, 0);
  if (high != 0 && is_low_surrogate(character)) {
    append(0x10000 + ((high - 0xD800) << 10) + (character - 0xDC00), shape);
    return;
  }
  if (high != 0) append(kUnreadable, shape);
  if (is_high_surrogate(character)) {
    high_surrogate_ = character;
  } else {
    append(character, shape);
  }
}

void PageInMaking::append(char32_t character, const Shape& shape) {
  const bool blank =
      character == ' ' || character == '\t' || character == '\n' || character == 0xA0;
  if (!blank && !is_character(character)) character = kUnreadable;
  auto& runs = paragraph_.runs;
  if (runs.empty() || runs.back().bold != shape.bold || runs.back().italic != shape.italic) {
    runs.push_back({"", shape.bold, shape.italic});
  }
  append_utf8(runs.back().text, character);
  if (!blank) smallest_ = std::min(smallest_, shape.half_points);
  visible_ = visible_ || !blank;
}

void PageInMaking::end_paragraph(bool list_item) {
  high_surrogate_ = 0;
  const bool large = std::exchange(smallest_, std::numeric_limits<int>::max()) >= kHeadingSize;
  TextParagraph paragraph = std::exchange(paragraph_, {});
  if (large) paragraph.kind = ParagraphKind::heading;
  if (list_item) paragraph.kind = ParagraphKind::list_item;
  if (std::exchange(visible_, false)) page_.paragraphs.push_back(std::move(paragraph));
}

}  // namespace tonarix
