#include "base/windows/theme.h"

#include <QApplication>
#include <QPalette>

#include "base/windows/style.h"

namespace tonarix::theme {

QColor colour(const Colour& colour) {
  return QColor(colour.red, colour.green, colour.blue);
}

QFont font(TextRole role) {
  QFont font({QStringLiteral("Liberation Sans"), QStringLiteral("Arial")});
  font.setPixelSize(role == TextRole::question ? 20
                    : role == TextRole::choice ? 15
                    : role == TextRole::note   ? 12
                    : role == TextRole::number ? 26
                                               : 13);
  font.setBold(role == TextRole::question || role == TextRole::title || role == TextRole::number);
  return font;
}

QColor ink_on(const QColor& surface) {
  const double luminance =
      0.2126 * surface.redF() + 0.7152 * surface.greenF() + 0.0722 * surface.blueF();
  return luminance > 0.4 ? colour(ink) : QColor(Qt::white);
}

void apply(QApplication& application) {
  QPalette palette;
  const auto set = [&palette](QPalette::ColorRole role, const QColor& value) {
    palette.setColor(role, value);
  };
  set(QPalette::Window, colour(ground));
  set(QPalette::WindowText, colour(ink));
  set(QPalette::Base, colour(card));
  set(QPalette::AlternateBase, colour(ground));
  set(QPalette::Text, colour(ink));
  set(QPalette::Button, QColor(0xF6, 0xF6, 0xF4));
  set(QPalette::ButtonText, colour(ink));
  set(QPalette::ToolTipBase, colour(card));
  set(QPalette::ToolTipText, colour(ink));
  set(QPalette::PlaceholderText, colour(note));
  set(QPalette::Highlight, colour(accent));
  set(QPalette::HighlightedText, Qt::white);
  set(QPalette::Link, colour(accent));
  for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
    palette.setColor(QPalette::Disabled, role, colour(faint));
  }
  application.setStyle(new Style);  // the application owns it
  application.setPalette(palette);
  application.setFont(font(TextRole::plain));
}

}  // namespace tonarix::theme
