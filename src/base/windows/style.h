#pragma once

#include <QProxyStyle>

namespace tonarix {

/// Fusion with the shapes of this program: round corners, one accent, a focus ring on every
/// control.
class Style final : public QProxyStyle {
 public:
  Style();

  /// Underlines the letters that work together with Alt; only while Alt is held.
  void show_mnemonics(bool shown) { mnemonics_shown_ = shown; }
  bool mnemonics_shown() const { return mnemonics_shown_; }

  void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;
  void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                   const QWidget* widget) const override;
  void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                          QPainter* painter, const QWidget* widget) const override;
  QRect subControlRect(ComplexControl control, const QStyleOptionComplex* option, SubControl part,
                       const QWidget* widget) const override;
  QSize sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& size,
                         const QWidget* widget) const override;
  int pixelMetric(PixelMetric metric, const QStyleOption* option,
                  const QWidget* widget) const override;
  int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                QStyleHintReturn* data) const override;

 private:
  bool mnemonics_shown_ = false;
};

/// A filled shape with round corners and a hairline just inside the rectangle.
void draw_surface(QPainter& painter, const QRectF& rect, const QBrush& fill, const QColor& line,
                  qreal radius);

}  // namespace tonarix
