#pragma once

#include <QColor>
#include <QFont>
#include <QMargins>

#include "base/colour.h"

class QApplication;

namespace tonarix {

/// What a text is for; each has its one size.
enum class TextRole {
  question,  ///< 20 bold: the one question of a window
  choice,    ///< 15: choices that matter
  plain,     ///< 13
  title,     ///< 13 bold: head of a group
  note,      ///< 12 grey: what explains
  number,    ///< 26 bold: numbers that count
};

/// The look all windows share. Lengths are logical pixels, so they follow the scaling of the
/// screen.
namespace theme {

inline constexpr Colour ground = RGB(0xF4, 0xF4, 0xF1);
inline constexpr Colour card = RGB(0xFF, 0xFF, 0xFF);
inline constexpr Colour hairline = RGB(0xD9, 0xD9, 0xD4);
inline constexpr Colour ink = RGB(0x1F, 0x23, 0x28);
inline constexpr Colour title = RGB(0x36, 0x3C, 0x44);
inline constexpr Colour note = RGB(0x59, 0x61, 0x6B);
inline constexpr Colour faint = RGB(0x80, 0x80, 0x78);   // text of what is not open
inline constexpr Colour accent = RGB(0x24, 0x57, 0xA6);  // the way on, the current place, the focus

inline constexpr int inside = 8;    // between the things of one group
inline constexpr int between = 16;  // between groups
inline constexpr int edge = 20;     // to the window's edge
inline constexpr int corner = 6;    // radius of cards
inline constexpr int small_corner = 4;
/// Room that the title bar and the frame of a window take, whatever draws them.
inline constexpr QMargins window_frame(2, 30, 2, 6);

QColor colour(const Colour& colour);
QFont font(TextRole role);
/// Black or white, whichever reads better on the surface.
QColor ink_on(const QColor& surface);

/// Gives the program its style, palette and font. Once, before the first window.
void apply(QApplication& application);

}  // namespace theme
}  // namespace tonarix
