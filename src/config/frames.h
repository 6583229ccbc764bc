#pragma once

#include <array>
#include <cstdint>
#include <span>
#include <string>

#include "base/colour.h"
#include "config/settings_controls.h"
#include "settings/settings_tables.h"

namespace tonarix {

/// When a frame is locked: never, while a saved training goes on, or then and in an exam.
enum class Lock : std::uint8_t { never, training, exam };

/// Index of a group that is no frame of the window's own.
inline constexpr int kNoFrame = -1;

/// One frame of a window: what it is called and holds, how it is locked, where it stands.
struct FrameRow {
  int frame;      ///< index in `grdeinst`
  TextKey title;  ///< of `geinst_lb`
  std::array<Choice, 2> holds;
  Lock lock;
  Colour open;      ///< back colour while it is not locked
  int row, column;  ///< in a grid of four columns
  int columns = 1;  ///< over one column its lists stand side by side
};

/// The frames of one window. In the order of the table they are read and reached by Tab.
class Frames {
 public:
  Frames(SettingsControls& controls, std::span<const FrameRow> rows)
      : controls_(controls), rows_(rows) {}

  std::span<const FrameRow> rows() const { return rows_; }
  /// The frame that holds a choice, nullptr where there is none.
  const FrameRow* holding(Choice choice) const;
  /// Puts a control of the choice into its frame and under its group's title.
  void place(Choice choice, Control& control);
  /// Opens all that are ever locked.
  void open();
  /// Locks those that this locks, `Lock::training` or `Lock::exam`, and says why.
  void lock(Lock by, const std::string& why);

 private:
  void set(const FrameRow& row, bool open);

  SettingsControls& controls_;
  std::span<const FrameRow> rows_;
  Control* tempo_list_ = nullptr;  ///< shows its lock itself
};

}  // namespace tonarix
