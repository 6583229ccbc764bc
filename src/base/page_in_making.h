#pragma once

#include <limits>

#include "base/rich_text.h"

namespace tonarix {

/// A page of text put together character by character.
class PageInMaking {
 public:
  struct Shape {
    bool bold = false;
    bool italic = false;
    int half_points = 24;
  };

  /// Adds one UTF-16 unit or a whole Unicode character; two surrogates become one character. What
  /// is none, or a control character other than tab and line feed, becomes U+FFFD.
  void add(char32_t character, const Shape& shape);
  /// A paragraph of blanks alone is left out. One of 14 points and more that is no list item is a
  /// heading.
  void end_paragraph(bool list_item);
  const RichText& page() const { return page_; }

 private:
  void append(char32_t character, const Shape& shape);

  RichText page_;
  TextParagraph paragraph_;
  char32_t high_surrogate_ = 0;                     ///< waits for its second half
  bool visible_ = false;                            ///< the paragraph holds more than blanks
  int smallest_ = std::numeric_limits<int>::max();  ///< half points of what is visible
};

}  // namespace tonarix
