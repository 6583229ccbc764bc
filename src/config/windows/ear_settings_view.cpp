#include "config/windows/ear_settings_view.h"

namespace tonarix {

EarSettingsView::EarSettingsView(EarSettingsWindow& window, const Texts& texts,
                                 const Control* notice)
    : SettingsView(window, texts) {
  build_frames();
  build_loudness(window);
  build_buttons(notice);
}

void EarSettingsView::build_loudness(EarSettingsWindow& window) {
  auto* line = new QHBoxLayout;
  line->setSpacing(theme::inside);
  line->addWidget(label(window.lb14[0], TextRole::plain));
  line->addWidget(slider(window.HSliderVolume,
                         [&window](int value) { window.slide(window.HSliderVolume, value); }),
                  1);
  Label* value = label(window.lb14[1], TextRole::title);
  value->setMinimumWidth(28);
  value->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  line->addWidget(value);
  line->addWidget(press_button(window.klang_contr));
  card_of(Choice::patch).body().addLayout(line);
}

}  // namespace tonarix
