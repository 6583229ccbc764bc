#include "engine/windows/answer_row.h"

#include <QPainter>
#include <algorithm>

#include "base/windows/style.h"

namespace tonarix {
namespace {

constexpr int kNumberHeight = 20;
constexpr int kFieldHeight = 52;
constexpr int kLineHeight = kNumberHeight + kFieldHeight + theme::inside;
constexpr int kToneWidth = 24;
constexpr int kNarrowest = 104;  // of a field
constexpr int kWidest = 152;
constexpr QSize kMarkSize(16, 16);

QFont number_font(bool current) {
  QFont font = theme::font(TextRole::note);
  font.setBold(current);
  return font;
}

}  // namespace

AnswerField::AnswerField(QWidget* parent) : Label(TextRole::plain, parent) {
  setAlignment(Qt::AlignCenter);
  setWordWrap(true);
}

void AnswerField::set_current(bool current, int tries) {
  if (current_ == current && tries_ == tries) return;
  current_ = current;
  tries_ = tries;
  update();
}

void AnswerField::paintEvent(QPaintEvent* event) {
  {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    draw_surface(painter, rect(), theme::colour(theme::card), theme::colour(theme::hairline),
                 theme::small_corner);
  }
  Label::paintEvent(event);
  if (!current_) return;
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QPen(theme::colour(theme::accent), 2));
  painter.drawRoundedRect(QRectF(rect()).adjusted(1, 1, -1, -1), theme::small_corner,
                          theme::small_corner);
  painter.setPen(Qt::NoPen);
  painter.setBrush(palette().color(QPalette::WindowText));
  painter.setOpacity(0.7);
  for (int dot = 0; dot < tries_; ++dot) {
    const double x = width() / 2.0 + (dot - (tries_ - 1) / 2.0) * 9;
    painter.drawEllipse(QPointF(x, height() - 8), 2, 2);
  }
}

void NumberMark::set_text(const QString& text) {
  if (text_ == text) return;
  text_ = text;
  update();
}

void NumberMark::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setFont(number_font(true));
  const QColor accent = theme::colour(theme::accent);
  const int text_width = painter.fontMetrics().horizontalAdvance(text_);
  const double left = (width() - text_width - 11) / 2.0;
  const double middle = height() / 2.0;
  painter.setPen(Qt::NoPen);
  painter.setBrush(accent);
  painter.drawPolygon(QPolygonF({{left, middle - 4}, {left + 7, middle}, {left, middle + 4}}));
  painter.setPen(accent);
  painter.drawText(QRectF(left + 11, 0, text_width + 1, height()), Qt::AlignVCenter, text_);
}

void SoundingMark::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  painter.setBrush(theme::colour(theme::accent));
  painter.drawEllipse(QRectF(rect()).adjusted(1, 1, -1, -1));
}

AnswerRow::AnswerRow(bool sounds, QWidget* parent) : QWidget(parent), sounds_(sounds) {
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
  for (int i = 0; i < kFields; ++i) {
    const auto at = static_cast<std::size_t>(i);
    marks[at] = new NumberMark(this);
    fields[at] = new AnswerField(this);
  }
  for (SoundingMark*& mark : sounding) {
    mark = new SoundingMark(this);
    mark->hide();
  }
}

void AnswerRow::set_lead(Label& lead) {
  lead.setParent(this);
  lead_ = &lead;
}

void AnswerRow::set_number(int field, const QString& number) {
  numbers_.at(static_cast<std::size_t>(field)) = number;
  marks.at(static_cast<std::size_t>(field))->set_text(number);
}

void AnswerRow::show_state(int fields_shown, int current, int tries) {
  if (count_ != fields_shown) {
    count_ = fields_shown;
    arrange();
    updateGeometry();
  }
  current_ = current;
  for (int i = 0; i < kFields; ++i) {
    fields[static_cast<std::size_t>(i)]->set_current(i == current, tries);
  }
  update();
}

int AnswerRow::columns() const {
  return std::clamp((width() - kToneWidth) / (kNarrowest + kToneWidth), 1, std::max(count_, 1));
}

int AnswerRow::field_width() const {
  return std::clamp((width() - kToneWidth) / columns() - kToneWidth, kNarrowest, kWidest);
}

QSize AnswerRow::sizeHint() const {
  return {count_ * (kWidest + kToneWidth) + kToneWidth, minimumSizeHint().height()};
}

QSize AnswerRow::minimumSizeHint() const {
  const int lines = (count_ + columns() - 1) / columns();
  return {kNarrowest + 2 * kToneWidth, std::max(lines, 1) * kLineHeight - theme::inside};
}

/// Top left corner of a tone's place. The last tone stands behind the last field.
QPoint AnswerRow::place_of(int tone) const {
  const bool last = tone == count_;
  const int field = last ? tone - 1 : tone;
  const int x = (field % columns() + (last ? 1 : 0)) * (field_width() + kToneWidth);
  const int y = field / columns() * kLineHeight + kNumberHeight;
  return {x, y};
}

void AnswerRow::arrange() {
  for (int i = 0; i < kFields; ++i) {
    const QPoint tone = place_of(std::min(i, count_ - 1));
    const auto at = static_cast<std::size_t>(i);
    marks[at]->setGeometry(tone.x() + kToneWidth, tone.y() - kNumberHeight, field_width(),
                           kNumberHeight);
    fields[at]->setGeometry(tone.x() + kToneWidth, tone.y(), field_width(), kFieldHeight);
  }
  for (int i = 0; i <= kFields; ++i) {
    const QRect place(place_of(std::min(i, count_)), QSize(kToneWidth, kFieldHeight));
    QRect mark(QPoint(), kMarkSize);
    mark.moveCenter(place.center());
    sounding[static_cast<std::size_t>(i)]->setGeometry(mark);
  }
  if (lead_) lead_->setGeometry(0, 0, 2 * kToneWidth, kNumberHeight);
  const int height = minimumSizeHint().height();
  if (minimumHeight() != height) setFixedHeight(height);
}

void AnswerRow::resizeEvent(QResizeEvent*) {
  arrange();
}

void AnswerRow::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setFont(number_font(false));
  painter.setPen(theme::colour(theme::note));
  for (int i = 0; i < count_; ++i) {
    const auto at = static_cast<std::size_t>(i);
    if (i != current_) painter.drawText(marks[at]->geometry(), Qt::AlignCenter, numbers_[at]);
  }
  if (!sounds_) return;
  painter.setPen(QPen(QColor(0xB4, 0xB8, 0xB6), 1.2));
  for (int i = 0; i <= count_; ++i) {
    const QRectF place(sounding[static_cast<std::size_t>(i)]->geometry());
    painter.drawEllipse(place.adjusted(4, 4, -4, -4));
  }
}

}  // namespace tonarix
