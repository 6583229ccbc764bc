#pragma once

#include <algorithm>
#include <string>
#include <vector>

#include "exercises/play/arbeitsblatt3.h"
#include "flow/flow_bed.h"

namespace tonarix {

/// Playing rows back in the whole module.
struct PlayBed : FlowBed {
  using FlowBed::FlowBed;

  Einstellung1& open_settings() {
    selection().ueb_typ_click(3);
    return FlowBed::open_settings();
  }
  Arbeitsblatt3& open_exercise() {
    Einstellung1& window = settings();
    window.click(window.cmdOk);
    scheduler.advance_ms(1);
    return newest<Arbeitsblatt3>();
  }
  Arbeitsblatt3& begin(int level = 0) {
    Einstellung1& window = open_settings();
    window.choose(window.temp_Combo, 9);
    window.choose(window.training_Combo, level);
    Arbeitsblatt3& exercise = open_exercise();
    hear_row();
    return exercise;
  }

  /// Waits until the keys open, to the millisecond.
  void hear(const Arbeitsblatt3& window) {
    for (int ms = 0; ms < 20000 && window.phase() != Phase::answering; ++ms)
      scheduler.advance_ms(1);
  }

  Tone tone(int place) const { return module.row().inv_ton.at(static_cast<std::size_t>(place)); }
  /// The field on which the tone of the row lies, so many semitones beside it.
  Field field(int place, int semitones = 0) const {
    return {tone(place).chr - module.settings().tonraum_min + 12 + semitones,
            band_of(tone(place).qz)};
  }
  /// Holds the key down for a moment.
  void press(Arbeitsblatt3& window, const Field& at) {
    window.taste_down(at.key, at.band);
    scheduler.advance_ms(100);
    window.taste_up();
  }
  /// A key that is wrong for the tone: another pitch class.
  Field wrong(const Arbeitsblatt3& window, int place) {
    std::vector<Field> open;
    for (const Control& key : window.taste) {
      const int k = *key.index();
      if (key.open() && (k - field(place).key) % 12 != 0) open.push_back({k, 1});
    }
    return open.at(static_cast<std::size_t>(draw(student, static_cast<int>(open.size()))));
  }
  static int asked(const Arbeitsblatt3& window) {
    const auto mark = std::ranges::find_if(window.int_lb, &Control::visible);
    return mark == window.int_lb.end() ? -1 : *mark->index();
  }
  /// Plays what is left of the row rightly, each tone after `seconds`, wrong first with the chance.
  void play_row(Arbeitsblatt3& window, double seconds = 1, double wrong_first = 0) {
    for (int place = asked(window); place >= 0; place = asked(window)) {
      scheduler.advance_ms(seconds * 1000);
      if (place > 0 && student.Rnd() < wrong_first) press(window, wrong(window, place));
      press(window, field(place));
      if (asked(window) == place) throw std::logic_error("The right key was not taken");
    }
  }
  /// The degree of a major key, with its direction, that a field stands for beside the tone
  /// before; 0 for none. The row begins with the keynote.
  int degree(const Field& at, int place) const {
    constexpr std::array kFifthsOfDegrees{0, 2, 4, -1, 1, 3, 5};
    const int way = at.key - field(place - 1).key;
    const int fifths = spelling(at).value() - tone(0).qz;
    const auto row = std::ranges::find(kFifthsOfDegrees, fifths);
    if (way == 0 || row == kFifthsOfDegrees.end()) return 0;
    const auto number = static_cast<int>(row - kFifthsOfDegrees.begin()) + 1;
    return way > 0 ? number : -number;
  }
  void next_task(Arbeitsblatt3& window) {
    module.settings().abfrage == 1 ? scheduler.advance_ms(1800) : window.CmdNextAufg_click();
    hear_row();
  }
};

}  // namespace tonarix
