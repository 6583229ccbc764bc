#include "base/rtf.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <exception>
#include <utility>

#include "base/page_in_making.h"

namespace tonarix {

namespace {

using namespace std::string_view_literals;

constexpr std::size_t kDeepest = 100;
constexpr char16_t kUnreadable = 0xFFFD;

/// Code page 1252 from 0x80 to 0x9F; the rest of its upper half is Latin-1.
constexpr std::array<char16_t, 32> kCodePage1252{
    0x20AC,      kUnreadable, 0x201A, 0x0192, 0x201E, 0x2026,      0x2020, 0x2021,
    0x02C6,      0x2030,      0x0160, 0x2039, 0x0152, kUnreadable, 0x017D, kUnreadable,
    kUnreadable, 0x2018,      0x2019, 0x201C, 0x201D, 0x2022,      0x2013, 0x2014,
    0x02DC,      0x2122,      0x0161, 0x203A, 0x0153, kUnreadable, 0x017E, 0x0178};

struct NamedCharacter {
  std::string_view word;
  char32_t character;
};
constexpr std::array<NamedCharacter, 12> kCharacters{{{"tab", '\t'},
                                                      {"cell", '\t'},
                                                      {"line", '\n'},
                                                      {"bullet", 0x2022},
                                                      {"endash", 0x2013},
                                                      {"emdash", 0x2014},
                                                      {"lquote", 0x2018},
                                                      {"rquote", 0x2019},
                                                      {"ldblquote", 0x201C},
                                                      {"rdblquote", 0x201D},
                                                      {"enspace", 0x2002},
                                                      {"emspace", 0x2003}}};

struct Symbol {
  char symbol;
  char32_t character;
};
constexpr std::array<Symbol, 6> kSymbols{{{'\\', '\\'},
                                          {'{', '{'},
                                          {'}', '}'},
                                          {'\t', '\t'},
                                          {'~', 0xA0},      // a blank that holds the line together
                                          {'_', 0x2011}}};  // such a hyphen

/// Groups that are not part of the page's text. Any group that begins with "\*" is none either.
constexpr std::array kPassedOver{
    "fonttbl"sv,  "colortbl"sv, "stylesheet"sv, "info"sv,    "pict"sv,    "object"sv,  "header"sv,
    "headerl"sv,  "headerr"sv,  "headerf"sv,    "footer"sv,  "footerl"sv, "footerr"sv, "footerf"sv,
    "footnote"sv, "fldinst"sv,  "listtable"sv,  "filetbl"sv, "revtbl"sv,  "xe"sv,      "tc"sv};

constexpr std::array kParagraphEnds{"par"sv, "sect"sv, "page"sv, "row"sv};

bool is_one_of(std::string_view word, const auto& words) {
  return std::find(words.begin(), words.end(), word) != words.end();
}

bool is_letter(char c) {
  return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
}

/// The source is no page in Rich Text Format.
struct NoRtf final : std::exception {};

/// What holds until the end of a group; a group within begins with the same.
struct Group {
  PageInMaking::Shape shape;
  bool hidden = false;
  bool in_list = false;
  bool passed_over = false;
  int fallback = 1;  ///< how many characters behind a Unicode number stand for it
};

class Reader {
 public:
  explicit Reader(std::string_view source) : rest_(source) {}
  RichText read();

 private:
  char take();
  void open_group();
  void close_group();
  Group& outer_group() { return groups_[std::max<std::size_t>(groups_.size(), 2) - 2]; }
  void control();
  void control_word();
  void control_symbol(char symbol);
  std::optional<int> parameter();
  void binary(std::optional<int> length);
  void obey(std::string_view word, std::optional<int> value);
  bool structure(std::string_view word, std::optional<int> value);
  void shape(std::string_view word, std::optional<int> value);
  bool stands_in();
  char hexadecimal_byte();
  void add_byte(char byte);
  void add(char32_t character);
  void end_paragraph();

  std::string_view rest_;
  std::vector<Group> groups_;
  int fallback_left_ = 0;  ///< characters to come that stand for a Unicode number
  bool has_list_mark_ = false;
  PageInMaking page_;
};

RichText Reader::read() {
  const auto begin = R"({\rtf)"sv;
  if (rest_.size() > kLongestRtf || !rest_.starts_with(begin)) throw NoRtf();
  if (rest_.size() > begin.size() && is_letter(rest_[begin.size()])) throw NoRtf();
  do {
    switch (const char c = take()) {
      case '{':
        open_group();
        break;
      case '}':
        close_group();
        break;
      case '\\':
        control();
        break;
      case '\r':
      case '\n':
        break;
      default:
        if (!stands_in()) add_byte(c);
    }
  } while (!groups_.empty());
  if (rest_.find_first_not_of(" \t\r\n\0"sv) != rest_.npos) throw NoRtf();
  if (page_.page().paragraphs.empty()) throw NoRtf();
  return page_.page();
}

/// The next byte; a page that needs one more is cut off, and no text holds a control character.
char Reader::take() {
  if (rest_.empty()) throw NoRtf();
  const char c = rest_.front();
  const auto byte = static_cast<unsigned char>(c);
  if ((byte < 0x20 && c != '\t' && c != '\r' && c != '\n') || byte == 0x7F) throw NoRtf();
  rest_.remove_prefix(1);
  return c;
}

void Reader::open_group() {
  fallback_left_ = 0;
  if (groups_.size() == kDeepest) throw NoRtf();
  groups_.push_back(groups_.empty() ? Group{} : groups_.back());
}

void Reader::close_group() {
  fallback_left_ = 0;
  if (groups_.size() == 1) end_paragraph();
  groups_.pop_back();
}

void Reader::control() {
  if (!rest_.empty() && is_letter(rest_.front())) {
    control_word();
  } else {
    control_symbol(take());
  }
}

void Reader::control_word() {
  const auto end = std::find_if_not(rest_.begin(), rest_.end(), is_letter);
  const std::string_view word = rest_.substr(0, static_cast<std::size_t>(end - rest_.begin()));
  rest_.remove_prefix(word.size());
  const std::optional<int> value = parameter();
  if (rest_.starts_with(' ')) rest_.remove_prefix(1);
  if (word == "bin") binary(value);
  if (!stands_in()) obey(word, value);
}

std::optional<int> Reader::parameter() {
  const std::size_t sign = rest_.starts_with('-') ? 1 : 0;
  if (rest_.size() <= sign || rest_[sign] < '0' || rest_[sign] > '9') return {};
  int value = 0;
  const auto [end, error] = std::from_chars(rest_.begin(), rest_.end(), value);
  if (error != std::errc()) throw NoRtf();
  rest_.remove_prefix(static_cast<std::size_t>(end - rest_.begin()));
  return value;
}

/// Bytes of a picture or object, which are no text and may be braces.
void Reader::binary(std::optional<int> length) {
  const int bytes = length.value_or(0);
  if (bytes < 0 || static_cast<std::size_t>(bytes) > rest_.size()) throw NoRtf();
  rest_.remove_prefix(static_cast<std::size_t>(bytes));
}

void Reader::control_symbol(char symbol) {
  const char byte = symbol == '\'' ? hexadecimal_byte() : symbol;
  if (stands_in()) return;
  const auto found = std::find_if(kSymbols.begin(), kSymbols.end(),
                                  [&](const Symbol& one) { return one.symbol == symbol; });
  if (found != kSymbols.end()) {
    add(found->character);
  } else if (symbol == '\'') {
    add_byte(byte);
  } else if (symbol == '\r' || symbol == '\n') {
    end_paragraph();
  } else if (symbol == '*') {
    groups_.back().passed_over = true;
  }
}

char Reader::hexadecimal_byte() {
  const std::array<char, 2> digits{take(), take()};
  unsigned value = 0;
  const auto [end, error] = std::from_chars(digits.begin(), digits.end(), value, 16);
  if (error != std::errc() || end != digits.end()) throw NoRtf();
  return static_cast<char>(value);
}

void Reader::obey(std::string_view word, std::optional<int> value) {
  const auto named = std::find_if(kCharacters.begin(), kCharacters.end(),
                                  [&](const NamedCharacter& one) { return one.word == word; });
  if (named != kCharacters.end()) {
    add(named->character);
  } else if (word == "u") {
    const int number = value.value_or(0);
    add(static_cast<char32_t>(number < 0 ? number + 0x10000 : number));
    fallback_left_ = groups_.back().fallback;
  } else if (!structure(word, value)) {
    shape(word, value);
  }
}

bool Reader::structure(std::string_view word, std::optional<int> value) {
  Group& group = groups_.back();
  if (is_one_of(word, kParagraphEnds)) {
    end_paragraph();
  } else if (is_one_of(word, kPassedOver)) {
    group.passed_over = true;
  } else if (word == "pntext" || word == "listtext") {  // the mark before an item, written out
    has_list_mark_ = has_list_mark_ || !outer_group().passed_over;
    group.passed_over = true;
  } else if (word == "pn") {  // describes the items of the group around it
    group.passed_over = true;
    outer_group().in_list = true;
  } else if (word == "ls") {
    group.in_list = value.value_or(0) != 0;
  } else if (word == "pard") {
    group.in_list = false;
  } else {
    return false;
  }
  return true;
}

void Reader::shape(std::string_view word, std::optional<int> value) {
  Group& group = groups_.back();
  const bool on = value.value_or(1) != 0;
  if (word == "b") {
    group.shape.bold = on;
  } else if (word == "i") {
    group.shape.italic = on;
  } else if (word == "v") {
    group.hidden = on;
  } else if (word == "fs") {
    group.shape.half_points = value.value_or(PageInMaking::Shape{}.half_points);
  } else if (word == "uc") {
    group.fallback = std::max(0, value.value_or(1));
  } else if (word == "plain") {
    group.shape = {};
    group.hidden = false;
  }
}

/// True for a character that only stands for the Unicode number before it.
bool Reader::stands_in() {
  if (fallback_left_ == 0) return false;
  --fallback_left_;
  return true;
}

void Reader::add_byte(char c) {
  const auto byte = static_cast<unsigned char>(c);
  const bool special = byte >= 0x80 && byte < 0xA0;
  add(special ? char32_t{kCodePage1252[byte - 0x80]} : char32_t{byte});
}

void Reader::add(char32_t character) {
  const Group& group = groups_.back();
  if (!group.passed_over && !group.hidden) page_.add(character, group.shape);
}

void Reader::end_paragraph() {
  const Group& group = groups_.back();
  if (group.passed_over) return;
  page_.end_paragraph(std::exchange(has_list_mark_, false) || group.in_list);
}

}  // namespace

std::optional<RichText> read_rtf(std::string_view source) {
  try {
    return Reader(source).read();
  } catch (const NoRtf&) {
    return {};
  }
}

}  // namespace tonarix
