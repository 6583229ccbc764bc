#pragma once

#include "engine/windows/exercise_view.h"
#include "exercises/build/arbeitsblatt2.h"

class QTextBrowser;

namespace tonarix {

class PitchGap;
class PitchSlider;

/// Forming a tone: the slider in the middle, below it what came of it.
class Arbeitsblatt2View final : public ExerciseView {
 public:
  Arbeitsblatt2View(Arbeitsblatt2& window, const Texts& texts);

 protected:
  void applied() override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void build_slider();
  void build_help();
  void build_accuracy();

  Arbeitsblatt2& window_;
  PitchSlider* slider_ = nullptr;
  PitchGap* gap_ = nullptr;
  Card* slider_card_ = nullptr;
  Card* help_card_ = nullptr;
  QTextBrowser* page_ = nullptr;
  bool was_open_ = false;
  bool was_told_ = false;
};

}  // namespace tonarix
