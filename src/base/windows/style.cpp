#include "base/windows/style.h"

#include <QComboBox>
#include <QPainter>
#include <QPushButton>
#include <QStyleFactory>
#include <QStyleOptionButton>
#include <algorithm>

#include "base/windows/theme.h"
#include "base/windows/widgets.h"

namespace tonarix {
namespace {

const QColor kButtonLine(0xB4, 0xB8, 0xB6);
const QColor kFaintLine(0xDC, 0xDC, 0xD8);
const QColor kFaintFill(0xF1, 0xF1, 0xEE);
const QColor kRadioLine(0x70, 0x76, 0x74);

QColor accent() {
  return theme::colour(theme::accent);
}

void draw_ring(QPainter& painter, const QRectF& rect, const QColor& colour, qreal radius) {
  painter.setBrush(Qt::NoBrush);
  painter.setPen(QPen(colour, 2));
  painter.drawRoundedRect(rect.adjusted(1, 1, -1, -1), radius, radius);
}

void draw_button(QPainter& painter, const QStyleOption& option, const Button* button) {
  const bool enabled = option.state & QStyle::State_Enabled;
  const bool down = option.state & (QStyle::State_Sunken | QStyle::State_On);
  const bool over = enabled && (option.state & QStyle::State_MouseOver);
  const bool primary = enabled && button && button->primary();
  const bool coloured = button && button->back();
  QBrush fill = kFaintFill;
  QColor line = kFaintLine;
  if (coloured || primary) {
    QColor base = coloured ? *button->back() : accent();
    if (down) base = base.darker(115);
    if (over && !down) base = base.lighter(108);
    fill = base;
    line = base.darker(125);
  } else if (enabled) {
    QLinearGradient shade(option.rect.topLeft(), option.rect.bottomLeft());
    shade.setColorAt(0, down ? QColor(0xE2, 0xE4, 0xE2) : QColor(Qt::white));
    shade.setColorAt(1, down   ? QColor(0xE8, 0xEA, 0xE8)
                        : over ? QColor(0xF6, 0xF7, 0xF6)
                               : QColor(0xEC, 0xEE, 0xEC));
    fill = shade;
    line = kButtonLine;
  }
  draw_surface(painter, option.rect, fill, line, theme::small_corner);
  if (!(option.state & QStyle::State_HasFocus)) return;
  draw_ring(painter, option.rect, primary ? accent().darker(150) : accent(), theme::small_corner);
  if (primary || coloured) {
    draw_ring(painter, QRectF(option.rect).adjusted(2, 2, -2, -2), Qt::white, 3);
  }
}

void draw_radio(QPainter& painter, const QStyleOption& option) {
  const bool enabled = option.state & QStyle::State_Enabled;
  const QRectF circle = QRectF(option.rect).adjusted(0.75, 0.75, -0.75, -0.75);
  if (option.state & QStyle::State_On) {
    painter.setPen(Qt::NoPen);
    painter.setBrush(enabled ? accent() : QColor(0x84, 0x84, 0x80));
    painter.drawEllipse(circle);
    painter.setBrush(Qt::white);
    painter.drawEllipse(circle.center(), circle.width() * 0.2, circle.width() * 0.2);
    return;
  }
  const bool over = enabled && (option.state & QStyle::State_MouseOver);
  painter.setPen(QPen(!enabled ? QColor(0xA8, 0xA8, 0xA2) : over ? accent() : kRadioLine, 1.3));
  painter.setBrush(enabled ? QBrush(Qt::white) : QBrush(Qt::NoBrush));
  painter.drawEllipse(circle);
}

void draw_chevron(QPainter& painter, const QPointF& centre, const QColor& colour) {
  painter.setPen(QPen(colour, 1.6, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  painter.setBrush(Qt::NoBrush);
  const QPointF points[] = {centre + QPointF(-4, -2), centre + QPointF(0, 2),
                            centre + QPointF(4, -2)};
  painter.drawPolyline(points, 3);
}

void draw_list(QPainter& painter, const QStyleOptionComboBox& option) {
  const bool enabled = option.state & QStyle::State_Enabled;
  const bool over = enabled && (option.state & QStyle::State_MouseOver);
  const QColor fill =
      option.palette.color(enabled ? QPalette::Active : QPalette::Disabled, QPalette::Button);
  draw_surface(painter, option.rect, fill,
               !enabled ? kFaintLine.darker(108)
               : over   ? kRadioLine
                        : kButtonLine,
               theme::small_corner);
  const QPointF centre(
      option.direction == Qt::RightToLeft ? option.rect.left() + 15 : option.rect.right() - 14,
      option.rect.center().y() + 0.5);
  draw_chevron(painter, centre, enabled ? theme::colour(theme::title) : QColor(0xA8, 0xA8, 0xA2));
  if (option.state & QStyle::State_HasFocus) {
    draw_ring(painter, option.rect, accent(), theme::small_corner);
  }
}

void draw_slider(QPainter& painter, const QStyleOptionSlider& option, const QRectF& handle) {
  const bool enabled = option.state & QStyle::State_Enabled;
  const QColor colour = enabled ? accent() : QColor(0x9A, 0x9A, 0x94);
  const QRectF rect(option.rect);
  const bool level = option.orientation == Qt::Horizontal;
  const QPointF at = handle.center();
  const QRectF groove = level ? QRectF(rect.left() + 2, at.y() - 2, rect.width() - 4, 4)
                              : QRectF(at.x() - 2, rect.top() + 2, 4, rect.height() - 4);
  QRectF filled = groove;
  if (level) {
    filled.setRight(at.x());
  } else {
    filled.setTop(at.y());
  }
  painter.setPen(Qt::NoPen);
  painter.setBrush(QColor(0, 0, 0, 45));
  painter.drawRoundedRect(groove, 2, 2);
  painter.setBrush(colour);
  painter.drawRoundedRect(filled, 2, 2);
  painter.setPen(QPen(Qt::white, 1));
  painter.drawEllipse(at, 7.5, 7.5);
  if (option.state & QStyle::State_HasFocus) {
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(accent(), 2));
    painter.drawEllipse(at, 10, 10);
  }
}

}  // namespace

void draw_surface(QPainter& painter, const QRectF& rect, const QBrush& fill, const QColor& line,
                  qreal radius) {
  painter.setPen(QPen(line, 1));
  painter.setBrush(fill);
  painter.drawRoundedRect(rect.adjusted(0.5, 0.5, -0.5, -0.5), radius, radius);
}

Style::Style() : QProxyStyle(QStyleFactory::create(QStringLiteral("Fusion"))) {}

void Style::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                          const QWidget* widget) const {
  painter->save();
  painter->setRenderHint(QPainter::Antialiasing);
  switch (element) {
    case PE_PanelButtonCommand:
      draw_button(*painter, *option, dynamic_cast<const Button*>(widget));
      break;
    case PE_IndicatorRadioButton:
      draw_radio(*painter, *option);
      break;
    case PE_FrameFocusRect:
      if (!dynamic_cast<const QPushButton*>(widget) && !dynamic_cast<const QComboBox*>(widget)) {
        draw_ring(*painter, option->rect, accent(), theme::small_corner);
      }
      break;
    default:
      painter->setRenderHint(QPainter::Antialiasing, false);
      QProxyStyle::drawPrimitive(element, option, painter, widget);
  }
  painter->restore();
}

void Style::drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                        const QWidget* widget) const {
  const auto* label = qstyleoption_cast<const QStyleOptionButton*>(option);
  const auto* button = dynamic_cast<const Button*>(widget);
  if (element == CE_PushButtonLabel && label && button && (option->state & State_Enabled)) {
    QStyleOptionButton own(*label);
    own.palette.setColor(QPalette::ButtonText, button->ink());
    QProxyStyle::drawControl(element, &own, painter, widget);
    return;
  }
  QProxyStyle::drawControl(element, option, painter, widget);
}

void Style::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                               QPainter* painter, const QWidget* widget) const {
  const auto* list = qstyleoption_cast<const QStyleOptionComboBox*>(option);
  const auto* slider = qstyleoption_cast<const QStyleOptionSlider*>(option);
  painter->save();
  painter->setRenderHint(QPainter::Antialiasing);
  if (control == CC_ComboBox && list) {
    draw_list(*painter, *list);
  } else if (control == CC_Slider && slider) {
    draw_slider(*painter, *slider, subControlRect(control, option, SC_SliderHandle, widget));
  } else {
    painter->setRenderHint(QPainter::Antialiasing, false);
    QProxyStyle::drawComplexControl(control, option, painter, widget);
  }
  painter->restore();
}

QRect Style::subControlRect(ComplexControl control, const QStyleOptionComplex* option,
                            SubControl part, const QWidget* widget) const {
  const QRect rect = QProxyStyle::subControlRect(control, option, part, widget);
  return control == CC_ComboBox && part == SC_ComboBoxEditField ? rect.adjusted(4, 0, 0, 0) : rect;
}

QSize Style::sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& size,
                              const QWidget* widget) const {
  QSize result = QProxyStyle::sizeFromContents(type, option, size, widget);
  switch (type) {
    case CT_PushButton:
      return {std::max(size.width() + 32, 76), std::max(size.height() + 14, 34)};
    case CT_ComboBox:
      return {result.width() + 8, std::max(result.height(), 30)};
    case CT_ItemViewItem:  // an entry of an open list
      return {result.width() + 8, std::max(result.height(), 24)};
    case CT_RadioButton:
      return {result.width() + 10, std::max(result.height(), 24)};
    default:
      return result;
  }
}

int Style::pixelMetric(PixelMetric metric, const QStyleOption* option,
                       const QWidget* widget) const {
  switch (metric) {
    case PM_ExclusiveIndicatorWidth:
    case PM_ExclusiveIndicatorHeight:
      return 15;
    case PM_RadioButtonLabelSpacing:
      return 7;
    case PM_SliderLength:
    case PM_SliderThickness:
    case PM_SliderControlThickness:
      return 22;
    default:
      return QProxyStyle::pixelMetric(metric, option, widget);
  }
}

int Style::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                     QStyleHintReturn* data) const {
  switch (hint) {
    case SH_UnderlineShortcut:
      return mnemonics_shown_;
    case SH_ComboBox_Popup:
      return 0;  // a list below the field, which keeps the field in view
    case SH_Slider_AbsoluteSetButtons:
      return Qt::LeftButton;
    default:
      return QProxyStyle::styleHint(hint, option, widget, data);
  }
}

}  // namespace tonarix
