#include "exercises/build/windows/pitch_slider.h"

#include <QMouseEvent>
#include <QPainter>
#include <QWheelEvent>
#include <algorithm>
#include <cmath>

#include "base/windows/style.h"
#include "base/windows/theme.h"

namespace tonarix {
namespace {

constexpr int kHeight = 64;
constexpr int kMiddle = 24;  // of bar and handle, from the top
constexpr double kBarHalf = 7.5;
constexpr double kHandleRadius = 19;
constexpr double kDotRadius = 5;
constexpr double kRingRadius = 22;
constexpr int kTickTop = 48;
constexpr int kTickParts = 32;
constexpr int kLongTick = 4;  // every fourth is long
constexpr int kPageSteps = 5;

/// What the handle covers at x, its focus ring included.
QRect handle_room(double x) {
  return QRectF(x - kRingRadius - 2, kMiddle - kRingRadius - 2, 2 * kRingRadius + 4,
                2 * kRingRadius + 4)
      .toAlignedRect();
}

}  // namespace

PitchSlider::PitchSlider(QWidget* parent) : Slider(parent) {
  set_value_spoken(false);
  setLayoutDirection(Qt::LeftToRight);  // high is on the right in every language
  setSingleStep(1);
  setPageStep(kPageSteps);
}

void PitchSlider::set_ground(const QColor& ground) {
  if (ground_ == ground) return;
  ground_ = ground;
  update();
}

QSize PitchSlider::sizeHint() const {
  return {480, kHeight};
}

QSize PitchSlider::minimumSizeHint() const {
  return {240, kHeight};
}

double PitchSlider::way() const {
  return std::max(1, width() - 2 * kEnd);
}

double PitchSlider::handle_x() const {
  const int steps = std::max(1, maximum() - minimum());
  return kEnd + way() * (value() - minimum()) / steps;
}

void PitchSlider::move_handle(double x) {
  const double part = std::clamp((x - kEnd) / way(), 0.0, 1.0);
  setValue(minimum() + static_cast<int>(std::lround(part * (maximum() - minimum()))));
}

void PitchSlider::mousePressEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton) return event->ignore();
  const QPointF hand = event->position();
  // Who takes the handle beside its middle holds it there: taking it bends nothing.
  const QPointF off = hand - QPointF(handle_x(), kMiddle);
  const bool on_handle = std::hypot(off.x(), off.y()) <= kHandleRadius;
  grip_ = on_handle ? off.x() : 0;
  setSliderDown(true);
  if (!on_handle) move_handle(hand.x());
}

void PitchSlider::mouseMoveEvent(QMouseEvent* event) {
  if (grip_) move_handle(event->position().x() - *grip_);
}

void PitchSlider::mouseReleaseEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton) return event->ignore();
  grip_.reset();
  setSliderDown(false);
}

void PitchSlider::wheelEvent(QWheelEvent* event) {
  const QPoint turn = event->angleDelta();
  // Sideways, to the right is negative.
  const int delta = std::abs(turn.x()) > std::abs(turn.y()) ? -turn.x() : turn.y();
  if (wheel_rest_ * delta < 0) wheel_rest_ = 0;
  wheel_rest_ += delta;
  const int notches = wheel_rest_ / QWheelEvent::DefaultDeltasPerStep;
  wheel_rest_ %= QWheelEvent::DefaultDeltasPerStep;
  event->accept();
  setValue(value() + notches);
}

void PitchSlider::changeEvent(QEvent* event) {
  Slider::changeEvent(event);
  if (event->type() != QEvent::EnabledChange || isEnabled()) return;
  // What the hand began before is no move of the next task.
  grip_.reset();
  wheel_rest_ = 0;
  setSliderDown(false);
}

void PitchSlider::sliderChange(SliderChange change) {
  if (change != SliderValueChange) return Slider::sliderChange(change);
  update(handle_room(drawn_x_));
  update(handle_room(handle_x()));
}

void PitchSlider::paintEvent(QPaintEvent* event) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  if (event->rect().bottom() >= kTickTop) draw_ticks(painter);
  const QRectF bar(kEnd - kBarHalf, kMiddle - kBarHalf, way() + 2 * kBarHalf, 2 * kBarHalf);
  draw_surface(painter, bar, ground_, ground_.darker(isEnabled() ? 125 : 110), kBarHalf);
  drawn_x_ = handle_x();
  draw_handle(painter, drawn_x_);
}

void PitchSlider::draw_ticks(QPainter& painter) const {
  painter.setPen(QPen(theme::colour(theme::hairline).darker(130), 1));
  for (int tick = 0; tick <= kTickParts; ++tick) {
    const double x = std::floor(kEnd + way() * tick / kTickParts) + 0.5;
    const int length = tick % kLongTick == 0 ? 12 : 6;
    painter.drawLine(QPointF(x, kTickTop), QPointF(x, kTickTop + length));
  }
}

void PitchSlider::draw_handle(QPainter& painter, double x) const {
  const QPointF middle(x, kMiddle);
  painter.setPen(QPen(theme::colour(isEnabled() ? theme::ink : theme::faint), 2));
  painter.setBrush(theme::colour(isEnabled() ? theme::card : theme::ground));
  painter.drawEllipse(middle, kHandleRadius - 1, kHandleRadius - 1);
  painter.setPen(Qt::NoPen);
  painter.setBrush(ground_);
  painter.drawEllipse(middle, kDotRadius, kDotRadius);
  if (!hasFocus()) return;
  painter.setBrush(Qt::NoBrush);
  painter.setPen(QPen(theme::colour(theme::accent), 2));
  painter.drawEllipse(middle, kRingRadius, kRingRadius);
}

}  // namespace tonarix
