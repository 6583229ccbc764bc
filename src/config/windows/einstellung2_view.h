#pragma once

#include "base/module_texts.h"
#include "config/einstellung2.h"
#include "config/windows/ear_settings_view.h"

namespace tonarix {

/// The settings for forming a tone by ear, on the screen.
class Einstellung2View final : public EarSettingsView {
 public:
  Einstellung2View(Einstellung2& window, const Texts& texts) : EarSettingsView(window, texts) {
    Label* accuracy = label(window.genau_note, TextRole::note);
    accuracy->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    card_of(Choice::genau).body().addWidget(accuracy, 1);
    explain(window.aufg[0], text::imitate_note);
    explain(window.aufg[1], text::form_note);
    explain(window.stimm_g[1], text::no_pure_forming);
  }
};

}  // namespace tonarix
