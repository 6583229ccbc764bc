#include "exercises/build/windows/pitch_gap.h"

#include <QPainter>
#include <algorithm>

#include "base/windows/accessibility.h"
#include "base/windows/theme.h"
#include "exercises/build/windows/pitch_slider.h"

namespace tonarix {
namespace {

constexpr int kEnd = PitchSlider::kEnd;
constexpr int kHalf = kGapTriangle.width() / 2;
constexpr int kBeside = kHalf + 5;  // from a pitch to its text
constexpr int kOffLine = 4;         // from the line to a text

QFont sentence_font() {
  QFont font = theme::font(TextRole::choice);
  font.setBold(true);
  return font;
}

QSize size_of(const QString& text, const QFont& font) {
  const QFontMetrics metrics(font);
  return {metrics.horizontalAdvance(text), metrics.height()};
}

/// Left edge of a text beside a pitch at x.
int beside(int x, int text, int width, bool on_the_right) {
  const bool fits = on_the_right ? x + kBeside + text <= width : x - kBeside - text >= 0;
  const int left = on_the_right == fits ? x + kBeside : x - kBeside - text;
  return std::clamp(left, 0, std::max(0, width - text));
}

void draw_triangle(QPainter& painter, int x, int line, int depth, const QColor& colour) {
  const QPointF tip(x + 0.5, line + 0.5);
  const QPointF corners[] = {tip, tip + QPointF(-kHalf, depth), tip + QPointF(kHalf, depth)};
  painter.setPen(Qt::NoPen);
  painter.setBrush(colour);
  painter.drawPolygon(corners, 3);
}

}  // namespace

int narrowest_gap(const GapTexts& texts) {
  const int words = std::max(texts.formed.width(), texts.target.width());
  return std::max(2 * (words + kBeside), texts.sentence.width());
}

GapPlaces gap_places(int width, int low, int high, int formed, int target, const GapTexts& texts) {
  const int way = std::max(1, width - 2 * kEnd);
  const auto x_of = [=](int pitch) {
    return kEnd + (std::clamp(pitch, low, high) - low) * way / std::max(1, high - low);
  };
  const int row = std::max(
      {kGapTriangle.height(), texts.formed.height() + kOffLine, texts.target.height() + kOffLine});
  GapPlaces places{kEnd, kEnd + way, row, x_of(formed), x_of(target), {}, {}, {}};
  const bool high_side = formed >= target;
  places.formed = {{beside(places.formed_x, texts.formed.width(), width, high_side), 0},
                   texts.formed};
  places.target = {{beside(places.target_x, texts.target.width(), width, !high_side),
                    places.line + 1 + kOffLine},
                   texts.target};
  places.sentence = {
      {std::max(0, places.right - texts.sentence.width()), 2 * places.line + theme::inside},
      texts.sentence};
  return places;
}

PitchGap::PitchGap(QWidget* parent) : QWidget(parent) {
  set_accessible_role(*this, QAccessible::StaticText);
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

void PitchGap::show_pitches(int low, int high, int formed, int target, const QString& formed_words,
                            const QString& target_words, const QString& sentence) {
  show_now({low, high, formed, target, formed_words, target_words, sentence});
}

void PitchGap::clear() {
  show_now({});
}

void PitchGap::show_now(const Shown& shown) {
  // Told again with each move of the slider, it must cost nothing.
  if (shown_ == shown) return;
  shown_ = shown;
  set_accessible_name(*this, shown_.sentence);
  updateGeometry();
  update();
}

GapTexts PitchGap::sizes() const {
  const QFont note = theme::font(TextRole::note);
  return {size_of(shown_.formed_words, note), size_of(shown_.target_words, note),
          size_of(shown_.sentence, sentence_font())};
}

QSize PitchGap::minimumSizeHint() const {
  const GapTexts texts = sizes();
  return {std::max(240, narrowest_gap(texts)),
          gap_places(0, 0, 0, 0, 0, texts).sentence.bottom() + 1};
}

void PitchGap::paintEvent(QPaintEvent*) {
  if (shown_.sentence.isEmpty()) return;
  const GapPlaces places =
      gap_places(width(), shown_.low, shown_.high, shown_.formed, shown_.target, sizes());
  const QColor ink = theme::colour(theme::ink);
  const QColor accent = theme::colour(theme::accent);
  QPainter painter(this);
  painter.setPen(QPen(theme::colour(theme::hairline).darker(130), 1));
  painter.drawLine(places.left, places.line, places.right, places.line);
  painter.setRenderHint(QPainter::Antialiasing);
  draw_triangle(painter, places.formed_x, places.line, -kGapTriangle.height(), ink);
  draw_triangle(painter, places.target_x, places.line, kGapTriangle.height(), accent);
  const auto write = [&painter](const QRect& place, const QString& text, const QFont& font,
                                const QColor& colour) {
    painter.setFont(font);
    painter.setPen(colour);
    painter.drawText(place, Qt::AlignCenter | Qt::TextDontClip, text);
  };
  write(places.formed, shown_.formed_words, theme::font(TextRole::note), ink);
  write(places.target, shown_.target_words, theme::font(TextRole::note), accent);
  write(places.sentence, shown_.sentence, sentence_font(), ink);
}

}  // namespace tonarix
