#include "config/windows/einstellung1_view.h"

namespace tonarix {

Einstellung1View::Einstellung1View(Einstellung1& window, const Texts& texts)
    : SettingsView(window, texts), window_(window) {
  Card* levels = frame(10, 0, 0, 2);
  auto* level_row = new QHBoxLayout;
  level_row->setSpacing(theme::inside);
  level_row->addWidget(entries(window.training_Combo), 2);
  level_row->addWidget(entries(window.prfnr_Comb, {.keep_place = true}), 1);
  levels->body().addLayout(level_row);
  choices(*frame(7, 0, 2), window.abfrage, 2);
  choices(*frame(0, 0, 3), window.Tonart, 2);
  add_material();
  add_sound();
  add_buttons(&window.HinweisMeldung);
}

void Einstellung1View::add_material() {
  choices(*frame(5, 1, 0), window_.tongeschl);
  choices(*frame(4, 1, 1), window_.invzahl, 2);
  choices(*frame(3, 1, 2), window_.ivg);
  Card* range = frame(1, 1, 3);
  choices(*range, window_.E_Oktav, 2);
  range->body().addWidget(entries(window_.Combo_tonraum));

  // Intervals are named only where they are asked for; rows are transposed only where they are
  // written. So the two share one place.
  choices(*frame(6, 2, 0), window_.abfr_iv);
  transposition_ = group_card(word(345_text), 2, 0);
  transposition_->body().addWidget(entries(window_.CmbTrans));
  transposition_->body().addWidget(entries(window_.CmbTransIv, {.keep_place = true}));
  Card* degrees = frame(8, 2, 1);
  choices(*degrees, window_.ton_st_wahl);
  degrees->body().addWidget(entries(window_.degree_list, {.keep_place = true}));
  choices(*frame(9, 2, 2), window_.grd_ton);
  choices(*frame(11, 2, 3), window_.frequenz);
}

void Einstellung1View::add_sound() {
  choices(*frame(13, 3, 0), window_.stimm_g);
  frame(12, 3, 1)->body().addWidget(entries(window_.temp_Combo));
  Card* sound = frame(2, 3, 2, 2);
  auto* voices = new QHBoxLayout;
  voices->setSpacing(theme::inside);
  voices->addWidget(entries(window_.Channel_Combo), 1);
  voices->addWidget(entries(window_.patch_list), 1);
  sound->body().addLayout(voices);
  auto* loudness = new QHBoxLayout;
  loudness->setSpacing(theme::inside);
  loudness->addWidget(label(window_.lb14[0], TextRole::plain));
  loudness->addWidget(slider(window_.HSliderVolume,
                             [this](int value) { window_.slide(window_.HSliderVolume, value); }),
                      1);
  Label* value = label(window_.lb14[1], TextRole::title);
  value->setMinimumWidth(28);
  value->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  loudness->addWidget(value);
  loudness->addWidget(press_button(window_.klang_contr));
  sound->body().addLayout(loudness);
}

void Einstellung1View::applied() {
  SettingsView::applied();
  if (transposition_->isHidden() != !window_.CmbTrans.visible) {
    transposition_->setVisible(window_.CmbTrans.visible);
  }
}

}  // namespace tonarix
