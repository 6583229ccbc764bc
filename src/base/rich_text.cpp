#include "base/rich_text.h"

#include <string_view>

namespace tonarix {

namespace {

std::string escaped(std::string_view text) {
  std::string html;
  for (const char c : text) {
    switch (c) {
      case '&':
        html += "&amp;";
        break;
      case '<':
        html += "&lt;";
        break;
      case '>':
        html += "&gt;";
        break;
      case '"':
        html += "&quot;";
        break;
      case '\t':
        html += "&emsp;";
        break;
      case '\n':
        html += "<br>";
        break;
      default:
        html += c;
    }
  }
  return html;
}

std::string within(std::string_view tag, const std::string& html) {
  return "<" + std::string(tag) + ">" + html + "</" + std::string(tag) + ">";
}

std::string run_html(const TextRun& run) {
  std::string html = escaped(run.text);
  if (run.italic) html = within("i", html);
  return run.bold ? within("b", html) : html;
}

std::string_view tag_of(ParagraphKind kind) {
  switch (kind) {
    case ParagraphKind::heading:
      return "h3";
    case ParagraphKind::list_item:
      return "li";
    default:
      return "p";
  }
}

}  // namespace

std::string rich_text_html(const RichText& text) {
  std::string html;
  bool in_list = false;
  for (const TextParagraph& paragraph : text.paragraphs) {
    const bool item = paragraph.kind == ParagraphKind::list_item;
    if (item != in_list) html += item ? "<ul>" : "</ul>";
    in_list = item;
    std::string runs;
    for (const TextRun& run : paragraph.runs) runs += run_html(run);
    html += within(tag_of(paragraph.kind), runs);
  }
  return in_list ? html + "</ul>" : html;
}

}  // namespace tonarix
