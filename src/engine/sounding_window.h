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
  /// The controls of the keynote check, nullptr in a window without.
  const KeynoteControls* keynote() const { return keynote_; }
  const Control* default_button() const override;

 protected:
  /// `keynote`: controls of the window's own, where it has a keynote check.
  SoundingWindow(std::string name, const ExerciseContext& context,
                 KeynoteControls* keynote = nullptr);

  /// The player of rows; a window that sounds otherwise brings its own.
  std::unique_ptr<RowPlayer> make_player() override;
  void prepare() override;
  TaskTuning tune() override;
  LessonFacts lesson_facts() override;
  void show_actions(const Actions& actions) override;
  void show_counts(const TaskAnswers::Counts& counts) override;
  /// Something is to be heard now.
  virtual void hearing(SpielArt) {}
  /// Marks the tone that sounds now, -1 for none.
  void show_sounding(int place);

 private:
  Sequence hear(SpielArt what);

  KeynoteControls* keynote_;
};

}  // namespace tonarix
