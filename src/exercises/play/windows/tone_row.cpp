#include "exercises/play/windows/tone_row.h"

#include <QPainter>
#include <algorithm>

namespace tonarix {
namespace {

constexpr int kNumberHeight = 20;
constexpr int kFieldHeight = 68;
constexpr int kWarningHeight = 34;  // two lines
constexpr int kWarningGap = 2;
constexpr int kLineHeight = kNumberHeight + kFieldHeight + theme::inside;
constexpr int kNarrowest = 96;  // of a field
constexpr int kWidest = 152;
constexpr int kMark = 16;  // the circle of a tone that sounds

std::size_t at(int tone) {
  return static_cast<std::size_t>(tone);
}

}  // namespace

ToneRow::ToneRow(QWidget* parent) : QWidget(parent) {
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
  for (std::size_t i = 0; i < kTones; ++i) {
    marks[i] = new NumberMark(this);
    sounding[i] = new SoundingMark(this);
    sounding[i]->hide();
    fields[i] = new AnswerField(this);
    fields[i]->setFont(theme::font(TextRole::choice));
    warnings[i] = new Label(TextRole::note, this);
    warnings[i]->setAlignment(Qt::AlignCenter);
    warnings[i]->setWordWrap(true);
    warnings[i]->hide();
  }
}

void ToneRow::set_number(int tone, const QString& number) {
  if (numbers_[at(tone)] == number) return;
  numbers_[at(tone)] = number;
  marks[at(tone)]->set_text(number);
  update();
}

void ToneRow::show_state(int tones, int asked, int tries) {
  if (count_ != tones) {
    count_ = tones;
    updateGeometry();
  }
  for (int i = 0; i < kTones; ++i) fields[at(i)]->set_current(i == asked, tries);
  arrange();
  update();
}

int ToneRow::columns() const {
  const int room = (width() + theme::inside) / (kNarrowest + theme::inside);
  return std::clamp(room, 1, std::max(count_, 1));
}

int ToneRow::field_width() const {
  return std::clamp((width() + theme::inside) / columns() - theme::inside, kNarrowest, kWidest);
}

QSize ToneRow::sizeHint() const {
  return {count_ * (kWidest + theme::inside) - theme::inside, minimumSizeHint().height()};
}

QSize ToneRow::minimumSizeHint() const {
  const int lines = (count_ + columns() - 1) / columns();
  return {kNarrowest, std::max(lines, 1) * kLineHeight - theme::inside};
}

QRect ToneRow::number_place(int tone) const {
  return {tone % columns() * (field_width() + theme::inside), tone / columns() * kLineHeight,
          field_width(), kNumberHeight};
}

// A field makes room for its warning, so that nothing else moves.
void ToneRow::arrange() {
  for (int i = 0; i < kTones; ++i) {
    const QRect number = number_place(std::min(i, count_ - 1));
    marks[at(i)]->setGeometry(number);
    sounding[at(i)]->setGeometry(number.x(), number.y() + 1, kMark, kMark);
    QRect field(number.bottomLeft() + QPoint(0, 1), QSize(number.width(), kFieldHeight));
    QRect warning = field;
    warning.setTop(field.bottom() + 1 - kWarningHeight);
    if (!warnings[at(i)]->isHidden()) field.setBottom(warning.top() - 1 - kWarningGap);
    fields[at(i)]->setGeometry(field);
    warnings[at(i)]->setContentsMargins(4, 2, 4, 2);
    warnings[at(i)]->setGeometry(warning);
  }
  const int height = minimumSizeHint().height();
  if (minimumHeight() != height) setFixedHeight(height);
}

void ToneRow::resizeEvent(QResizeEvent*) {
  arrange();
}

void ToneRow::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setFont(theme::font(TextRole::note));
  for (int i = 0; i < count_; ++i) {
    if (marks[at(i)]->isHidden()) {
      painter.setPen(theme::colour(theme::note));
      painter.drawText(marks[at(i)]->geometry(), Qt::AlignCenter, numbers_[at(i)]);
    }
    painter.setPen(QPen(theme::colour(theme::hairline).darker(115), 1.2));
    painter.drawEllipse(QRectF(sounding[at(i)]->geometry()).adjusted(4, 4, -4, -4));
  }
}

}  // namespace tonarix
