#pragma once

#include <string>

#include "engine/sounding_window.h"
#include "exercises/determine/naming_answers.h"

namespace tonarix {

/// Naming the intervals of a row by ear.
class Arbeitsblatt1 final : public SoundingWindow, public KeynoteControls, public NamingAnswers {
 public:
  explicit Arbeitsblatt1(const ExerciseContext& context);

  void st_int_click(int index);
  void intervall_click(int index);

  ControlArray<Control, 0, 2> scala{*this, "scala"};    ///< scale pictures: moll, Dur, Dur-moll
  ControlArray<Control, 0, 2> scalab{*this, "scalab"};  ///< the same beside the direct buttons
  ControlArray<Control, 0, 2> Label2{*this, "Label2"};  ///< captions of `scala`
  ControlArray<Control, 0, 2> Label3{*this, "Label3"};  ///< captions of `scalab`
  Control Label1{*this, "Label1"};
  Control Label4{*this, "Label4"};
  Control situation{*this, "situation"};  ///< what the first tone is
  Control int_lb{*this, "int_lb"};
  Control aktionsbox{*this, "aktionsbox"};
  Control row_title{*this, "row_title"};
  Control settings_line{*this, "settings_line"};  ///< key, tuning and tempo in force

  /// Lets the program answer by itself, to try a window out. Nothing in the program sets it.
  bool Schalter = false;

 protected:
  void prepare() override;
  /// A chosen degree is given.
  int first_asked() const override { return context().settings.ton_st_wahl; }
  void show_task() override { clear_names(); }
  void open_answers(bool open) override { open_names(open); }
  void show_actions(const Actions& actions) override;
  std::string question_text() const override;

 private:
  void show_scale();
  void answer(std::int16_t code);
  Sequence AutoAntwort();
};

}  // namespace tonarix
