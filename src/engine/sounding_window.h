#pragma once

#include <memory>

#include "engine/exercise_window.h"

namespace tonarix {

/// An exercise whose rows are heard: the repeat, the control at the end of a row, the keynote
/// check.
class SoundingWindow : public ExerciseWindow, public SoundControls {
 public:
  ~SoundingWindow() override;

  void wieder_click();
  void wieder2_click();
  void grundton_click();
  void MIDI_QueueEmpty();
  const Control* default_button() const override;

 protected:
  /// With a player of the window's own, or the one that plays rows.
  SoundingWindow(std::string name, const ExerciseContext& context,
                 std::unique_ptr<RowPlayer> player = nullptr);

  RowPlayer& player() override { return *player_; }
  void prepare() override;
  TaskTuning tune() override;
  LessonFacts lesson_facts() const override;
  void show_actions(const Actions& actions) override;
  void show_counts(const TaskAnswers::Counts& counts) override;

 private:
  Sequence repeat(SpielArt what);
  Sequence play_again(SpielArt what);
  void show_sounding(int place);

  std::unique_ptr<RowPlayer> player_;
};

}  // namespace tonarix
