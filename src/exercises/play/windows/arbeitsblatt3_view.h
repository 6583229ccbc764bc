#pragma once

#include "engine/windows/exercise_view.h"
#include "exercises/play/arbeitsblatt3.h"

namespace tonarix {

class PianoKeyboard;
class ToneRow;

/// Playing a row back: the tones on top, below them over the whole width the piano.
class Arbeitsblatt3View final : public ExerciseView {
 public:
  Arbeitsblatt3View(Arbeitsblatt3& window, const Texts& texts);

 protected:
  void applied() override;
  void fit() override;
  /// The actions' letters are names of tones too: "g" would check the keynote, and count.
  bool letters_press() const override { return false; }
  bool eventFilter(QObject* watched, QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void build_tones();
  void build_keyboard();
  void show_task();
  void show_key(int key);
  void show_row();
  void press(int key, std::optional<int> band);
  bool takes_keys() const;

  Arbeitsblatt3& window_;
  ToneRow* row_ = nullptr;
  int asked_ = -1;
  PianoKeyboard* keyboard_ = nullptr;
  std::optional<KeyRange> keys_;  ///< as the keyboard shows them
  Phase shown_phase_ = Phase::starting;
  std::optional<Scheduler::Time> pressed_at_;  ///< a key of the piano
};

}  // namespace tonarix
