#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace tonarix {

/// A piece of text in one shape. UTF-8; a tab is "\t", a line break within the paragraph "\n".
struct TextRun {
  std::string text;
  bool bold = false;
  bool italic = false;
};

enum class ParagraphKind : std::uint8_t { plain, heading, list_item };

struct TextParagraph {
  ParagraphKind kind = ParagraphKind::plain;
  std::vector<TextRun> runs;
};

/// A page of text with a little form.
struct RichText {
  std::vector<TextParagraph> paragraphs;
};

/// The page as HTML: "p", "h3" and "ul" of "li", "b" and "i"; what the text holds is escaped.
std::string rich_text_html(const RichText& text);

}  // namespace tonarix
