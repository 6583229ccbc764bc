#pragma once

#include "engine/windows/exercise_view.h"
#include "exercises/determine/arbeitsblatt1.h"

namespace tonarix {

/// The window of naming by ear: two grids of answers in one place, and the scale on C.
class Arbeitsblatt1View final : public ExerciseView {
 public:
  Arbeitsblatt1View(Arbeitsblatt1& window, const Texts& texts);

 protected:
  void applied() override;

 private:
  void build_answers();
  void build_scale();

  Arbeitsblatt1& sheet_;
  AnswerGrid* degrees_ = nullptr;
  AnswerGrid* intervals_ = nullptr;
};

}  // namespace tonarix
