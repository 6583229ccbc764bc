#include "exercises/play/windows/keyboard_picture.h"

#include <QPainterPath>
#include <algorithm>
#include <cmath>

#include "base/windows/theme.h"
#include "exercises/play/windows/key_name.h"

namespace tonarix {
namespace {

constexpr QColor kWhite(255, 255, 255);
constexpr QColor kWhiteAtRest(0xF8, 0xF8, 0xF6);
constexpr QColor kBlack(0x20, 0x24, 0x29);
constexpr QColor kBlackAtRest(0x45, 0x4B, 0x54);
constexpr QColor kSoundingWhite(255, 224, 192);
constexpr QColor kSoundingBlack(255, 128, 0);
constexpr QColor kKeyLine(0x8E, 0x90, 0x8E);
constexpr QColor kBlackLine(0x5A, 0x61, 0x6B);
constexpr QColor kHatchOnWhite(0xC6, 0xC8, 0xC4);
constexpr QColor kHatchOnBlack(0x78, 0x7F, 0x89);
constexpr QColor kFinishedWhite(0xD6, 0xF3, 0xD6);
constexpr QColor kFinishedBlack(0x1E, 0x5A, 0x2A);
constexpr QColor kFinishedDot(0x16, 0x86, 0x2C);
constexpr QColor kFinishedDotOnBlack(0x5C, 0xE0, 0x70);
constexpr QColor kOctave(0, 0, 255);
constexpr QColor kSoundingOctave(255, 0, 0);

// Logical pixels.
constexpr double kCorner = 4;
constexpr double kBlackCorner = 3;
constexpr double kRing = 3;
constexpr double kThinRing = 2;
constexpr double kHatchStep = 6;
constexpr int kLabelText = 13;
constexpr double kLabelBeside = 6;
constexpr double kLabelGap = 4;

QRect rect(const Box& box) {
  return {box.left, box.top, box.width(), box.height()};
}

/// A rectangle whose lower corners alone are round, as keys hang from the upper edge.
QPainterPath hanging(const QRectF& rect, double radius) {
  QPainterPath path;
  path.setFillRule(Qt::WindingFill);
  path.addRoundedRect(rect, radius, radius);
  path.addRect(QRectF(rect.topLeft(), QSizeF(rect.width(), rect.height() - radius)));
  return path;
}

QColor theme_colour(const Colour& colour) {
  return theme::colour(colour);
}

}  // namespace

int KeyboardPicture::pixels(double logical) const {
  return std::max(1, static_cast<int>(std::lround(logical * face_.ratio)));
}

QColor KeyboardPicture::surface(int key) const {
  const KeyState& state = face_.state_of(key);
  const bool black = is_black(key);
  if (state.sounding) return black ? kSoundingBlack : kSoundingWhite;
  if (state.open && !state.locked) return black ? kBlack : kWhite;
  return black ? kBlackAtRest : kWhiteAtRest;
}

QColor KeyboardPicture::ink(const Field& field) const {
  const KeyState& state = face_.state_of(field.key);
  if (is_black(field.key)) return theme::ink_on(surface(field.key));
  if (field.band == 1 && pitch_class_of_key(field.key) == 0) {
    return state.sounding ? kSoundingOctave : kOctave;
  }
  const bool at_rest = !state.sounding && (!state.open || state.locked);
  return theme_colour(field.band > 1 || at_rest ? theme::note : theme::ink);
}

void KeyboardPicture::paint(QPainter& painter, const QRect& part) const {
  painter.setRenderHint(QPainter::Antialiasing);
  const KeyRange& keys = face_.geometry.keys();
  for (const bool black : {false, true}) {
    for (int key = keys.lowest; key <= keys.highest; ++key) {
      if (is_black(key) != black || !rect(face_.geometry.key(key)).intersects(part)) continue;
      if (black) {
        draw_black(painter, key);
      } else {
        draw_white(painter, key);
      }
    }
  }
  draw_finished_tone(painter);
  draw_focus(painter);
  for (int key = keys.lowest; key <= keys.highest; ++key) {
    if (!rect(face_.geometry.key(key)).intersects(part)) continue;
    for (int band = 1; band <= kBands; ++band) TasteCaption(painter, {key, band});
  }
  draw_hover(painter);
  draw_labels(painter);
}

void KeyboardPicture::draw_white(QPainter& painter, int key) const {
  const QRect box = rect(face_.geometry.key(key));
  const int line = pixels(1);
  const double corner = kCorner * face_.ratio;
  painter.fillPath(hanging(box, corner), kKeyLine);
  const bool first = key == face_.geometry.keys().lowest;
  const QRect face = box.adjusted(first ? line : 0, line, -line, -line);
  painter.fillPath(hanging(face, corner - line), surface(key));
  if (face_.state_of(key).locked) draw_hatch(painter, key);
  for (int band = 1; band < kBands; ++band) {
    const Box part = face_.geometry.band({key, band});
    const int side = part.width() / 10;
    painter.fillRect(part.left + side, part.top, part.width() - 2 * side, line,
                     theme_colour(theme::hairline));
  }
}

void KeyboardPicture::draw_black(QPainter& painter, int key) const {
  const QRect box = rect(face_.geometry.key(key));
  painter.fillPath(hanging(box, kBlackCorner * face_.ratio), surface(key));
  if (face_.state_of(key).locked) draw_hatch(painter, key);
  for (int band = 1; band < kBands; ++band) {
    if (face_.caption({key, band + 1}).isEmpty()) continue;
    const Box part = face_.geometry.band({key, band});
    const int side = part.width() / 10;
    painter.fillRect(part.left + side, part.top, part.width() - 2 * side, pixels(1), kBlackLine);
  }
}

void KeyboardPicture::draw_hatch(QPainter& painter, int key) const {
  const QRect box = rect(face_.geometry.key(key));
  const bool black = is_black(key);
  const double line = face_.ratio;
  painter.save();
  painter.setClipPath(
      hanging(box.adjusted(pixels(1), 0, -pixels(1), -pixels(1)), kBlackCorner * face_.ratio),
      Qt::IntersectClip);
  painter.setPen(QPen(black ? kHatchOnBlack : kHatchOnWhite, line));
  for (double y = box.top(); y < box.bottom() + box.width(); y += kHatchStep * face_.ratio) {
    painter.drawLine(QPointF(box.left(), y), QPointF(box.right() + 1, y - box.width()));
  }
  painter.restore();
}

QRectF KeyboardPicture::name_place(const Field& field) const {
  const int size = rows_.size(field);
  if (size == 0 || face_.caption(field).isEmpty()) return {};
  const QFont font = key_font(size);
  const QFontMetricsF metrics(font);
  const Box band = face_.geometry.band(field);
  const double width = KeyName(face_.caption(field)).width(font);
  const double height = metrics.ascent() + metrics.descent();
  return {(band.left + band.right - width) / 2, (band.top + band.bottom - height) / 2, width,
          height};
}

void KeyboardPicture::TasteCaption(QPainter& painter, const Field& field) const {
  const QRectF place = name_place(field);
  if (place.isEmpty()) return;
  const QFont font = key_font(rows_.size(field));
  if (face_.state_of(field.key).locked) {
    const double beside = face_.ratio;
    painter.fillRect(place.adjusted(-beside, 0, beside, 0), surface(field.key));
  }
  const QPointF at(place.left(), std::round(place.top() + QFontMetricsF(font).ascent()));
  KeyName(face_.caption(field)).draw(painter, at, font, ink(field));
}

void KeyboardPicture::draw_finished_tone(QPainter& painter) const {
  const auto& field = face_.finished_tone;
  if (!field || !face_.geometry.has(field->key)) return;
  const bool black = is_black(field->key);
  const QRectF outline = rect(face_.geometry.outline(*field));
  if (!face_.state_of(field->key).sounding) {
    painter.fillRect(outline, black ? kFinishedBlack : kFinishedWhite);
  }
  const double radius = std::clamp(outline.height() / 10, 1.5 * face_.ratio, 4 * face_.ratio);
  painter.setPen(Qt::NoPen);
  painter.setBrush(black ? kFinishedDotOnBlack : kFinishedDot);
  painter.drawEllipse(QPointF(outline.center().x(), outline.bottom() - 1.6 * radius), radius,
                      radius);
}

void KeyboardPicture::draw_hover(QPainter& painter) const {
  const auto& field = face_.tasteMark;
  if (!field || !face_.takes_press(field->key)) return;
  const QRect outer = rect(face_.geometry.outline(*field));
  const int line = frame_width(face_, *field);
  const QRect inner = outer.adjusted(line, line, -line, -line);
  for (const QRect& side : QRegion(outer) - QRegion(inner)) {
    painter.fillRect(side, theme::ink_on(surface(field->key)));
  }
}

void KeyboardPicture::draw_focus(QPainter& painter) const {
  if (!face_.focused) return;
  // At narrow keys names begin at the edge: the ring keeps to its band, its light line lies
  // outside.
  const bool thin = frame_width(face_, *face_.focused) == pixels(1);
  const double line = (thin ? kThinRing : kRing) * face_.ratio;
  const double edge = line / 2;
  const double out = thin ? -edge : line / 3;
  const QRectF whole(edge, edge, face_.geometry.width() - line, face_.geometry.height() - line);
  const QRectF ring =
      QRectF(rect(face_.geometry.band(*face_.focused))).adjusted(-out, -out, out, out) & whole;
  const double light = (thin ? 1 : 2) * face_.ratio;
  const double aside = thin ? light / 2 : 0;
  const double corner = kCorner * face_.ratio;
  painter.setBrush(Qt::NoBrush);
  painter.setPen(QPen(kWhite, line + light));
  painter.drawRoundedRect(ring.adjusted(-aside, -aside, aside, aside), corner, corner);
  painter.setPen(QPen(theme_colour(theme::accent), line));
  painter.drawRoundedRect(ring, corner, corner);
}

std::optional<QRect> KeyboardPicture::label_place(const Field& field) const {
  if (rows_.size(field) > 0 || face_.caption(field).isEmpty()) return std::nullopt;
  const QFont font = key_font(pixels(kLabelText));
  const double text = KeyName(face_.caption(field)).width(font);
  const int width = static_cast<int>(std::ceil(text)) + 2 * pixels(kLabelBeside);
  const int height = static_cast<int>(std::ceil(QFontMetricsF(font).height())) + 2 * pixels(1);
  const Box band = face_.geometry.band(field);
  const int left =
      std::clamp((band.left + band.right - width) / 2, 0, face_.geometry.width() - width);
  const int above = band.top - pixels(kLabelGap) - height;
  return QRect(left, above >= 0 ? above : band.bottom + pixels(kLabelGap), width, height);
}

void KeyboardPicture::draw_labels(QPainter& painter) const {
  const QFont font = key_font(pixels(kLabelText));
  std::optional<QRect> first;
  for (const auto& field : {face_.tasteMark, face_.focused}) {
    const auto place = field ? label_place(*field) : std::nullopt;
    // Of two that lie on one another the pointer's tells more.
    if (!place || (first && first->intersects(*place))) continue;
    first = place;
    // A light line parts it from a black key.
    const double half = face_.ratio / 2;
    painter.setPen(QPen(kWhite, face_.ratio));
    painter.setBrush(theme_colour(theme::ink));
    painter.drawRoundedRect(QRectF(*place).adjusted(half, half, -half, -half),
                            kCorner * face_.ratio, kCorner * face_.ratio);
    const QFontMetricsF metrics(font);
    const KeyName name(face_.caption(*field));
    const QPointF at(place->left() + (place->width() - name.width(font)) / 2,
                     std::round(place->top() + pixels(1) + metrics.ascent()));
    name.draw(painter, at, font, kWhite);
  }
}

QRect KeyboardPicture::marks_place(const Field& field) const {
  const int around = pixels(kRing + 2);
  const QRect marks = rect(face_.geometry.band(field)).adjusted(-around, -around, around, around);
  return marks | label_place(field).value_or(marks);
}

}  // namespace tonarix
