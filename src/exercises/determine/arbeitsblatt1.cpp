#include "exercises/determine/arbeitsblatt1.h"

#include "base/arithmetic.h"
#include "base/filled_text.h"
#include "base/module_texts.h"
#include "settings/setting_pairs.h"

namespace tonarix {

Arbeitsblatt1::Arbeitsblatt1(const ExerciseContext& given)
    : SoundingWindow("arbeitsblatt1", given, this),
      KeynoteControls(static_cast<Window&>(*this)),
      NamingAnswers(static_cast<Window&>(*this), context(), answers()) {}

void Arbeitsblatt1::prepare() {
  SoundingWindow::prepare();
  prepare_names();
  Label1.text = word(text::degree_over_keynote);
  Label4.text = word(text::interval_from_tone_to_tone);
  Label1.visible = by_degree();
  Label4.visible = !by_degree();
  int_lb.text = word(text::interval_lead);
  row_title.text = word(text::tone_row);
  situation.text = word(556_text) + word(700_text) + word(297_text);
  show_scale();
  settings_line.text =
      situation.text + " · " +
      joined_values(context().settings.EinstDatSave, {"Tongeschlecht", "Stimmung", "Tempo"});
}

void Arbeitsblatt1::show_scale() {
  static constexpr std::array<TextKey, 3> kScales{text::scale_minor, text::scale_major,
                                                  text::scale_major_and_minor};
  static constexpr std::array<int, 3> kPictureOf{1, 0, 2};  // by tongeschl
  const int picture = kPictureOf.at(static_cast<std::size_t>(context().settings.tongeschl));
  for (int i = scala.first; i <= scala.last; ++i) {
    Label2[i].text = Label3[i].text = word(kScales.at(static_cast<std::size_t>(i)));
    scala[i].visible = Label2[i].visible = by_degree() && i == picture;
    scalab[i].visible = Label3[i].visible = !by_degree() && i == picture;
  }
}

void Arbeitsblatt1::show_actions(const Actions& actions) {
  SoundingWindow::show_actions(actions);
  mark_asked(actions);
  if (Schalter && actions.answers) run("AutoAntwort.", AutoAntwort());
}

std::string Arbeitsblatt1::question_text() const {
  // The first interval leads from tone 1 to tone 2.
  const int place = answers().asked();
  return by_degree() ? filled(word(text::which_degree), {std::to_string(place + 2)})
                     : filled(word(text::which_interval), {std::to_string(place + 1)});
}

void Arbeitsblatt1::st_int_click(int index) {
  press(st_int[index], "intervall_antw.", [&] { answer(to_int16(index)); });
}

void Arbeitsblatt1::intervall_click(int index) {
  press(intervall[index], "intervall_antw.", [&] { answer(to_int16(index)); });
}

void Arbeitsblatt1::answer(std::int16_t code) {
  announce(intervall_antw(code));
  go_on_after_answer();
}

Sequence Arbeitsblatt1::AutoAntwort() {
  co_await Delay(draw(context().chance, 10) * 400 + 300);
  co_await Delay(50);
  if (waits().closed()) co_return;
  const std::int16_t code = try_code();
  if (by_degree()) {
    st_int_click(code);
  } else {
    intervall_click(code);
  }
}

}  // namespace tonarix
