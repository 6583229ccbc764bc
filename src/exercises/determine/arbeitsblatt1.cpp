#include "exercises/determine/arbeitsblatt1.h"

#include "base/arithmetic.h"
#include "music/degrees.h"

namespace tonarix {

namespace {

/// Value behind a label of the chosen settings, empty when the settings window did not list it.
std::string setting(const std::vector<std::string>& pairs, std::string_view label) {
  for (std::size_t i = 1; i + 1 < pairs.size(); i += 2) {
    if (pairs[i] == label) return pairs[i + 1];
  }
  return {};
}

}  // namespace

Arbeitsblatt1::Arbeitsblatt1(const ExerciseContext& context)
    : ExerciseWindow("arbeitsblatt1", context) {}

void Arbeitsblatt1::prepare() {
  Label1.text = Wort(1150_text);
  Label4.text = Wort(1151_text);
  int_lb.text = Wort(1155_text);
  row_title.text = Wort(1156_text);
  situation.text = Wort(556_text) + Wort(700_text) + Wort(297_text);
  static constexpr std::array<TextKey, 3> kScales{1152_text, 1153_text, 1154_text};
  static constexpr std::array<int, 3> kPictureOf{1, 0, 2};  // by tongeschl
  const int picture = kPictureOf.at(static_cast<std::size_t>(settings().tongeschl));
  for (int i = scala.first; i <= scala.last; ++i) {
    Label2[i].text = Label3[i].text = Wort(kScales.at(static_cast<std::size_t>(i)));
    scala[i].visible = Label2[i].visible = by_degree() && i == picture;
    scalab[i].visible = Label3[i].visible = !by_degree() && i == picture;
  }
  Label1.visible = by_degree();
  Label4.visible = !by_degree();

  for (int i = st_int.first; i <= st_int.last; ++i) {
    st_int[i].visible = by_degree() && i <= key().anz_stufen;
    if (i <= key().anz_stufen) {
      st_int[i].text =
          degree_caption(settings().tongeschl, i - 1, context().interval_names, context().texts);
    }
  }
  for (int i = intervall.first; i <= intervall.last; ++i) {
    intervall[i].text = context().interval_names.long_name(i);
    intervall[i].visible = false;
  }
  if (!by_degree()) IvKnoepfe();

  std::string line = situation.text;
  for (const char* label : {"Tongeschlecht", "Stimmung", "Tempo"}) {
    const std::string value = setting(settings().EinstDatSave, label);
    if (!value.empty()) line += " · " + value;
  }
  settings_line.text = line;
}

void Arbeitsblatt1::IvKnoepfe() {
  const auto offered = offered_codes(settings(), key());
  for (Control& button : intervall) {
    button.visible = offered.test(static_cast<std::size_t>(*button.index()));
  }
}

void Arbeitsblatt1::set_answers_enabled(bool open) {
  const auto set = [&](Control& button) {
    button.enabled = open && !locked(to_int16(*button.index()));
  };
  for (Control& button : st_int) set(button);
  for (Control& button : intervall) set(button);
}

std::string Arbeitsblatt1::VorzeichenText() const {
  return Sgn(iv()) == 1 ? "+" : "-";
}

std::string Arbeitsblatt1::answer_text(std::int16_t code) const {
  if (by_degree()) return st_int[code].text;
  return VorzeichenText() + " " + context().interval_names.long_name(code);
}

void Arbeitsblatt1::press_answer(std::int16_t code) {
  if (by_degree()) {
    st_int_click(code);
  } else {
    intervall_click(code);
  }
}

void Arbeitsblatt1::st_int_click(int index) {
  press(st_int[index], "intervall_antw.", [&] { intervall_antw(to_int16(index)); });
}

void Arbeitsblatt1::intervall_click(int index) {
  press(intervall[index], "intervall_antw.", [&] { intervall_antw(to_int16(index)); });
}

}  // namespace tonarix
