#include "engine/windows/standing.h"

#include <QPainter>
#include <QPainterPath>
#include <algorithm>

#include "base/windows/style.h"

namespace tonarix {
namespace {

constexpr int kBarHeight = 16;
constexpr int kLine = 16;
constexpr int kNumberGap = 4;
const QColor kRest(0xE4, 0xE4, 0xE0);
const QColor kGained(0xFF, 0x80, 0x80);  // nearer to too difficult

}  // namespace

PercentBar::PercentBar(Words words, QWidget* parent) : QWidget(parent), words_(std::move(words)) {}

void PercentBar::set_percent(int percent) {
  if (percent_ == percent) return;
  before_ = percent_;
  percent_ = percent;
  update();
}

QSize PercentBar::minimumSizeHint() const {
  const QFontMetrics metrics(theme::font(TextRole::note));
  const int ends = metrics.horizontalAdvance(words_.solved) +
                   metrics.horizontalAdvance(words_.too_difficult) + theme::between;
  return {ends, kLine + kBarHeight + kNumberGap + kLine};
}

void PercentBar::draw_bar(QPainter& painter) const {
  const QRectF bar(0, kLine, width(), kBarHeight);
  QPainterPath shape;
  shape.addRoundedRect(bar, kBarHeight / 2.0, kBarHeight / 2.0);
  painter.setClipPath(shape);
  const auto fill = [&](int from, int to, const QColor& colour) {
    painter.fillRect(
        QRectF(width() * from / 100.0, bar.top(), width() * (to - from) / 100.0, kBarHeight),
        colour);
  };
  const int now = std::clamp(percent_, 0, 100);
  fill(0, 100, kRest);
  fill(0, now, theme::colour(signal::locked));
  if (before_ >= 0 && before_ < now) fill(before_, now, kGained);
  if (before_ > now) fill(now, before_, theme::colour(signal::marked));
  painter.fillRect(QRectF(width() * now / 100.0 - 1, bar.top(), 2, kBarHeight),
                   theme::colour(theme::ink));
  painter.setClipping(false);
}

void PercentBar::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  draw_bar(painter);
  const QRectF words(0, 0, width(), kLine);
  const QRectF middle(0, kLine + kBarHeight + kNumberGap, width(), kLine);
  painter.setFont(theme::font(TextRole::note));
  painter.setPen(theme::colour(theme::note));
  painter.drawText(words, Qt::AlignLeft, words_.solved);
  painter.drawText(words, Qt::AlignRight, words_.too_difficult);
  if (percent_ <= 0) return;
  QFont font = theme::font(TextRole::choice);
  font.setBold(true);
  painter.setFont(font);
  painter.setPen(theme::colour(theme::ink));
  painter.drawText(middle.adjusted(0, -1, 0, 4), Qt::AlignHCenter, number());
  if (before_ < 0) return;
  // An arrow beside the number tells the direction of the change without colour.
  const double x = width() / 2.0 + painter.fontMetrics().horizontalAdvance(number()) / 2.0 + 10;
  const double y = middle.top() + 8;
  const double tip = percent_ > before_ ? -4 : 4;
  painter.setPen(Qt::NoPen);
  painter.setBrush(theme::colour(theme::note));
  painter.drawPolygon(QPolygonF({{x - 5, y - tip}, {x + 5, y - tip}, {x, y + tip}}));
}

EndPanel::EndPanel(Sign sign, QWidget* parent) : Label(TextRole::title, parent) {
  setAlignment(Qt::AlignCenter);
  setMinimumHeight(28);
  set_sign(sign);
}

void EndPanel::paintEvent(QPaintEvent* event) {
  {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QColor surface = theme::colour(sign() == Sign::right ? signal::marked : signal::locked);
    draw_surface(painter, rect(), surface, surface.darker(120), theme::small_corner);
  }
  Label::paintEvent(event);
}

}  // namespace tonarix
