#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "engine/exercise_window.h"

namespace tonarix {

/// Codes of the direct answer buttons by rising size of the interval, prime first.
inline constexpr std::array<std::int16_t, 21> kAnswerOrder{1,  14, 11, 4, 21, 18, 7,  8, 17, 3, 12,
                                                           13, 2,  16, 9, 6,  19, 20, 5, 10, 15};

/// Naming the intervals of a row by ear: the row sounds, and each interval in turn is named with
/// one button. Two panels of buttons, degrees over the keynote or intervals from tone to tone; one
/// of them shows.
class Arbeitsblatt1 final : public ExerciseWindow {
 public:
  explicit Arbeitsblatt1(const ExerciseContext& context);

  void st_int_click(int index);
  void intervall_click(int index);

  Control inv_box{*this, "inv_box"};
  ControlArray<Control, 1, 11> st_int{*this, "st_int"};        ///< degree number: row + 1
  ControlArray<Control, 1, 21> intervall{*this, "intervall"};  ///< |code|
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

 protected:
  void prepare() override;
  void set_answers_enabled(bool open) override;
  std::string answer_text(std::int16_t code) const override;
  void press_answer(std::int16_t code) override;

 private:
  void IvKnoepfe();
  std::string VorzeichenText() const;
  bool by_degree() const { return settings().abfr_iv == Naming::from_keynote; }
};

}  // namespace tonarix
