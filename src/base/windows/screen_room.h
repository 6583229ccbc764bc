#pragma once

#include <QRect>
#include <QScreen>

namespace tonarix {

/// What a window can fill of its screen, its title bar and frame in view.
QRect room_on(const QScreen& screen);

/// The frame moved into the room, as far as it has room there.
QRect moved_inside(QRect frame, const QRect& room);

}  // namespace tonarix
