#include "config/frames.h"

#include <algorithm>

#include "config/choice_words.h"

namespace tonarix {

namespace {

constexpr Colour kTempoOpen = blue_green_red(0xFF0000);

bool holds(const FrameRow& row, Choice choice) {
  return std::ranges::find(row.holds, choice) != row.holds.end();
}

}  // namespace

const FrameRow* Frames::holding(Choice choice) const {
  const auto found =
      std::ranges::find_if(rows_, [&](const FrameRow& row) { return holds(row, choice); });
  return found == rows_.end() ? nullptr : &*found;
}

void Frames::place(Choice choice, Control& control) {
  if (choice == Choice::tempo) tempo_list_ = &control;
  control.tag = choice_words(choice).group;
  const FrameRow* row = holding(choice);
  if (row && row->frame != kNoFrame) control.container = &controls_.grdeinst[row->frame];
}

void Frames::open() {
  for (const FrameRow& row : rows_) {
    if (row.lock != Lock::never) set(row, true);
  }
}

void Frames::lock(Lock by, const std::string& why) {
  for (const FrameRow& row : rows_) {
    if (row.lock < by) continue;
    controls_.grdeinst[row.frame].why = why;
    set(row, false);
  }
}

void Frames::set(const FrameRow& row, bool open) {
  Control& frame = controls_.grdeinst[row.frame];
  frame.enabled = open;
  frame.back = open ? row.open : signal::locked;
  if (!tempo_list_ || !holds(row, Choice::tempo)) return;
  tempo_list_->enabled = open;
  tempo_list_->fore = open ? kTempoOpen : signal::locked;
}

}  // namespace tonarix
