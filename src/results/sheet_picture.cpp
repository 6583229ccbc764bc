#include "results/sheet_picture.h"

#include <algorithm>

#include "results/percentage.h"

namespace tonarix {

namespace {

constexpr double kLeftWidth = 330;
constexpr double kGap = 16;
constexpr double kTableWidth = 448;
constexpr double kPadding = 12;
constexpr double kTitleHeight = 36;
constexpr double kLineStep = 20;
constexpr double kValueLeft = 146;  // begin of the value column beside its labels
constexpr double kFrameEnd = 7;     // from the last line to the end of its frame
constexpr double kCorner = 6;
constexpr double kFieldCorner = 3;

// Within the table: columns 216 apart, values 136 to the right of their labels.
constexpr double kWorkTop = 42;
constexpr double kWorkHeight = 32;  // two lines
constexpr double kTableTop = 78;
constexpr double kColumnStep = 216;
constexpr double kColumnLeft = 8;
constexpr double kFieldLeft = 136;
constexpr double kFieldWidth = 68;
constexpr double kRowHeight = 20;
constexpr double kTotalWidth = 112;

// Where the counts lead, they stand side by side, each above its name.
constexpr double kCountStep = 144;
constexpr double kCountWidth = 136;
constexpr double kCountHeight = 34;
constexpr double kCountsEnd = kWorkTop + kCountHeight + kRowHeight + 8;

class Composer {
 public:
  Composer(const SheetContent& content, SheetGround ground, SheetShape shape)
      : content_(content), ground_(ground), tall_(shape == SheetShape::tall) {}

  SheetPicture compose() {
    const double head_end = frame(0, content_.head_title, content_.head);
    if (tall_) table_top_ = head_end + kGap;
    const double table_end = table_top_ + table_height();
    double end = tall_ ? table_end : head_end;
    if (!content_.settings.empty()) {
      end = frame(end + kGap, content_.settings_title, content_.settings);
    }
    const double height = std::max(end, table_end);
    table(tall_ ? table_end : height);
    picture_.name = content_.caption;
    picture_.ground = ground_;
    picture_.width = table_left() + kTableWidth;
    picture_.height = height;
    return std::move(picture_);
  }

 private:
  void text(SheetBox box, const std::string& words, SheetFont font, bool at_right = false) {
    picture_.texts.push_back({box, words, font, at_right});
  }
  double left_width() const { return tall_ ? kTableWidth : kLeftWidth; }
  double table_left() const { return tall_ ? 0 : kLeftWidth + kGap; }
  void card(SheetBox box) { picture_.surfaces.push_back({box, signal::white, true, kCorner}); }

  template <typename Lines>
  double frame(double top, const std::string& title, const Lines& lines) {
    double line_top = top + kTitleHeight;
    const auto shown = std::count_if(lines.begin(), lines.end(),
                                     [](const SheetLine& line) { return line.visible; });
    const double end = line_top + static_cast<double>(shown) * kLineStep + kFrameEnd;
    card({0, top, left_width(), end - top});
    text({kPadding, top + 8, left_width() - 2 * kPadding, kRowHeight}, title, SheetFont::title);
    for (const SheetLine& line : lines) {
      if (!line.visible) continue;
      text({kPadding, line_top, kValueLeft - kPadding, kLineStep}, line.label, SheetFont::label);
      text({kValueLeft, line_top, left_width() - kPadding - kValueLeft, kLineStep}, line.value,
           SheetFont::plain);
      line_top += kLineStep;
    }
    return end;
  }

  double table_height() const {
    if (content_.counts_lead) return kCountsEnd + 2 * kLineStep + kPadding;
    double end = kTableTop;
    for (const ResultRow& row : content_.table.rows) {
      end = std::max(end, kTableTop + row.top + kRowHeight);
    }
    return end + kPadding;
  }

  void field(SheetBox box, const ResultField& field, SheetFont font) {
    const bool coloured = field.back && ground_ == SheetGround::screen;
    if (coloured) picture_.surfaces.push_back({box, *field.back, false, kFieldCorner});
    const double margin = 8;
    text({box.left, box.top, box.width - margin, box.height}, field.text, font, true);
  }

  void counts() {
    const double left = table_left() + kColumnLeft;
    double count_left = left;
    double top = table_top_ + kWorkTop;
    for (const CountWords& count :
         {content_.work.tasks, content_.work.right, content_.work.wrong}) {
      text({count_left, top, kCountWidth, kCountHeight}, count.number, SheetFont::total);
      text({count_left, top + kCountHeight, kCountWidth, kRowHeight}, count.name, SheetFont::label);
      count_left += kCountStep;
    }
    top = table_top_ + kCountsEnd;
    text({left, top, kTableWidth - kColumnLeft - kPadding, kLineStep}, content_.work.time,
         SheetFont::plain);
    top += kLineStep;
    const double value_left = table_left() + kValueLeft;
    text({left, top, value_left - left - 4, kLineStep}, content_.total_label, SheetFont::label);
    text({value_left, top, kTotalWidth, kLineStep}, content_.table.total.text, SheetFont::label);
  }

  void table(double end) {
    const ResultTable& table = content_.table;
    card({table_left(), table_top_, kTableWidth, end - table_top_});
    text({table_left() + kColumnLeft, table_top_ + 8, 150, 30}, content_.results_title,
         SheetFont::title);
    if (content_.counts_lead) return counts();
    const double right = table_left() + kTableWidth - kPadding;
    const SheetBox total{right - kTotalWidth, table_top_ + 6, kTotalWidth, 34};
    text({table_left() + kColumnLeft, table_top_ + kWorkTop, kTableWidth - kColumnLeft - kPadding,
          kWorkHeight},
         content_.work.line(" · "), SheetFont::label);
    text({total.left - 128, table_top_ + 8, 120, 30}, content_.total_label, SheetFont::total_label,
         true);
    field(total, table.total, SheetFont::total);
    if (table.by_interval) {
      for (const int column : {0, 1}) {
        text({table_left() + kColumnLeft + kColumnStep * column, table_top_ + kTableTop, kFieldLeft,
              kRowHeight},
             content_.directions[static_cast<std::size_t>(column)], SheetFont::heading);
      }
    }
    for (const ResultRow& row : table.rows) {
      const double left = table_left() + kColumnLeft + kColumnStep * row.column;
      const double to_field = kFieldLeft + (table.by_interval ? 0 : kColumnStep);
      const double top = table_top_ + kTableTop + row.top;
      text({left, top, to_field - 4, kRowHeight}, row.label, SheetFont::plain);
      field({left + to_field, top, kFieldWidth, kRowHeight}, row.field, SheetFont::field);
    }
  }

  const SheetContent& content_;
  SheetGround ground_;
  bool tall_;
  double table_top_ = 0;
  SheetPicture picture_;
};

template <typename Lines>
void speak(std::string& spoken, const std::string& title, const Lines& lines) {
  spoken += title + "\n";
  for (const SheetLine& line : lines) {
    if (line.visible) spoken += line.label + line.value + "\n";
  }
}

}  // namespace

SheetPicture sheet_picture(const SheetContent& content, SheetGround ground, SheetShape shape) {
  return Composer(content, ground, shape).compose();
}

std::string spoken_sheet(const SheetContent& content, const Texts& texts) {
  std::string spoken;
  speak(spoken, content.head_title, content.head);
  speak(spoken, content.settings_title, content.settings);
  const ResultTable& table = content.table;
  spoken += content.results_title + "\n" + content.work.line(", ") + "\n" + content.total_label +
            " " + spoken_percentage(table.total.text, texts) + "\n";
  for (const ResultRow& row : table.rows) {
    spoken += row.label;
    if (table.by_interval) {
      spoken += " " + content.directions[static_cast<std::size_t>(row.column)];
    }
    spoken += ": " + spoken_percentage(row.field.text, texts) + "\n";
  }
  return spoken;
}

}  // namespace tonarix
