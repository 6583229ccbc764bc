#include "exercises/determine/naming_answers.h"

#include <cstdlib>

#include "base/arithmetic.h"
#include "base/module_texts.h"
#include "engine/answer_rules.h"
#include "engine/answer_words.h"
#include "music/degrees.h"
#include "settings/offered_intervals.h"

namespace tonarix {

namespace {

constexpr std::int16_t kPrime = 1;

}  // namespace

NamingAnswers::NamingAnswers(Window& window, const ExerciseContext& context, TaskAnswers& answers)
    : PlaceControls(window),
      inv_box(window, "inv_box"),
      st_int(window, "st_int"),
      intervall(window, "intervall"),
      context_(context),
      answers_(answers) {}

void NamingAnswers::prepare_names() {
  const Settings& settings = context_.settings;
  for (int i = nriv.first; i <= nriv.last; ++i) {
    nriv[i].text = Wort(text::interval_number) + " " + std::to_string(i + 1);
    nriv[i].visible = false;
    ergebnis[i].visible = i <= settings.invzahl;
  }
  for (Control& button : st_int) {
    const int number = *button.index();
    button.visible = by_degree() && number <= context_.key.anz_stufen;
    if (number > context_.key.anz_stufen) continue;
    button.text = degree_caption(settings.tongeschl, DegreeNumber{to_int16(number)},
                                 context_.interval_names, context_.common.texts);
  }
  const auto offered = offered_codes(settings, context_.key);
  for (Control& button : intervall) {
    const int code = *button.index();
    button.text = context_.interval_names.long_name(IntervalCode{to_int16(code)});
    // An octave leap has the code of a prime.
    if (code == kPrime) button.text += " " + Wort(701_text) + " " + octave();
    button.visible = !by_degree() && offered.test(static_cast<std::size_t>(code));
  }
}

void NamingAnswers::clear_names() {
  gesperrt_.fill(false);
  for (int i = ergebnis.first; i <= ergebnis.last; ++i) {
    ergebnis[i].text.clear();
    ergebnis[i].accessible_name = nriv[i].text;
    ergebnis[i].back = ergebnis[i].fore = std::nullopt;
  }
  if (answers_.asked() == 0) return;
  ergebnis[0].text = by_degree() ? st_int[context_.settings.stufe_wahl + 1].text : solution(0);
  ergebnis[0].accessible_name = nriv[0].text + ": " + ergebnis[0].text;
  ergebnis[0].back = signal::right;
  ergebnis[0].fore = signal::black;
}

void NamingAnswers::open_names(bool open) {
  const auto set = [&](Control& button) {
    button.enabled = open && !gesperrt_.at(static_cast<std::size_t>(*button.index()));
  };
  for (Control& button : st_int) set(button);
  for (Control& button : intervall) set(button);
}

void NamingAnswers::mark_asked(const Actions& actions) {
  if (actions.phase == Phase::leaving) return;
  for (Control& mark : nriv) mark.visible = actions.asks && mark.index() == answers_.asked();
  show_tries();
}

void NamingAnswers::show_tries() {
  for (int i = tries.first; i <= tries.last; ++i) {
    tries[i].visible = nriv[i].visible;
    tries[i].text = std::to_string(answers_.book.tries_left(i));
  }
}

std::string NamingAnswers::intervall_antw(std::int16_t code) {
  const float tenths = answers_.take();
  return code == std::abs(iv()) ? right_answer(tenths) : wrong_answer(code);
}

std::string NamingAnswers::right_answer(float tenths) {
  const int place = answers_.asked();
  Control& field = ergebnis[place];
  field.back = signal::right;
  field.fore = signal::black;
  field.text = solution(place);
  field.accessible_name = nriv[place].text + ": " + field.text + ", " + Wort(text::spoken_right);
  answers_.right(place, tenths);
  next_place();
  return Wort(468_text) + ": " + field.text + ".";
}

std::string NamingAnswers::wrong_answer(std::int16_t code) {
  const int place = answers_.asked();
  const Settings& settings = context_.settings;
  Control& field = ergebnis[place];
  const std::int16_t value = signed_wrong_answer(
      context_.key, settings.abfr_iv, settings.ton_st_wahl, settings.stufe_wahl, code, iv());
  const Verdict verdict = answers_.wrong(place, value);
  if (verdict == Verdict::given_up) {
    field.fore = signal::black;
    field.back = signal::given;
    field.text = Wort(text::spoken_solution) + ": " + solution(place);
    field.accessible_name = nriv[place].text + ": " + field.text;
    next_place();
    return Wort(232_text) + ", " + field.text + ".";
  }
  const bool red_on_black = answers_.book.wrong_tries(place) % 2 == 1;
  field.fore = red_on_black ? signal::wrong : signal::black;
  field.back = red_on_black ? signal::black : signal::wrong;
  field.text = Wort(232_text);
  const std::string still =
      tries_left_words(answers_.book.tries_left(place), context_.common.texts);
  field.accessible_name = nriv[place].text + ": " + Wort(text::spoken_wrong) + ", " + still;
  gesperrt_.at(static_cast<std::size_t>(code)) = true;
  open_names(true);
  show_tries();
  answers_.open_next(to_int16(answers_.asked()));
  return Wort(232_text) + ", " + still + ".";
}

void NamingAnswers::next_place() {
  gesperrt_.fill(false);
  if (answers_.book.done()) return;
  for (Control& mark : nriv) mark.visible = mark.index() == answers_.asked();
  show_tries();
  open_names(true);
  answers_.open_next(to_int16(answers_.asked()));
}

std::int16_t NamingAnswers::try_code() const {
  const auto right = to_int16(std::abs(iv()));
  std::int16_t code = right;
  if (draw(context_.chance, 2) == 1) {
    do {
      code = to_int16(draw(context_.chance, context_.key.iv_anzahl) + 1);
    } while (code == right || gesperrt_.at(static_cast<std::size_t>(code)));
  }
  return code;
}

std::int16_t NamingAnswers::iv() const {
  return answers_.book.place(answers_.asked()).interval;
}

std::string NamingAnswers::octave() const {
  return context_.interval_names.long_name(IntervalCode{0});
}

std::string NamingAnswers::solution(int place) const {
  const std::int16_t asked = answers_.book.place(place).interval;
  const auto code = to_int16(std::abs(asked));
  if (by_degree()) return st_int[code].text;
  const std::string VorzeichenText = Sgn(asked) == 1 ? "+" : "-";
  const auto from = static_cast<std::size_t>(place);
  const bool leap = context_.row.inv_ton[from].chr != context_.row.inv_ton[from + 1].chr;
  return VorzeichenText + " " +
         (code == kPrime && leap ? octave()
                                 : context_.interval_names.long_name(IntervalCode{code}));
}

}  // namespace tonarix
