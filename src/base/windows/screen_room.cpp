#include "base/windows/screen_room.h"

#include <algorithm>

#include "base/windows/theme.h"

namespace tonarix {

QRect room_on(const QScreen& screen) {
  return screen.availableGeometry().marginsRemoved(theme::window_frame);
}

QRect moved_inside(QRect frame, const QRect& room) {
  frame.moveLeft(std::clamp(frame.left(), room.left(),
                            std::max(room.left(), room.right() + 1 - frame.width())));
  frame.moveTop(std::clamp(frame.top(), room.top(),
                           std::max(room.top(), room.bottom() + 1 - frame.height())));
  return frame;
}

}  // namespace tonarix
