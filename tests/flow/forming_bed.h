#pragma once

#include <string>
#include <vector>

#include "config/einstellung2.h"
#include "exercises/build/arbeitsblatt2.h"
#include "flow/flow_bed.h"

namespace tonarix {

/// Bend steps by pitch class from C.
inline constexpr int kKirnberger[] = {5, 2, 6, 3, 1, 4, 2, 6, 3, 0, 4, 1};

/// Forming tones in the whole module.
struct FormingBed : FlowBed {
  using FlowBed::FlowBed;

  Einstellung2& open_settings() {
    selection().ueb_typ_click(2);
    selection().cmdOk_click();
    scheduler.advance_ms(50);
    return newest<Einstellung2>();
  }
  Arbeitsblatt2& open_exercise() {
    Einstellung2& window = newest<Einstellung2>();
    window.click(window.cmdOk);
    scheduler.advance_ms(1);
    return newest<Arbeitsblatt2>();
  }
  /// The quickest way to the first tone that can be formed.
  Arbeitsblatt2& begin(int aufg = 1, int level = 0, int genau = 0) {
    Einstellung2& window = open_settings();
    window.choose(window.temp_Combo, 9);
    window.click(window.aufg[aufg]);
    window.choose(window.genau_combo, genau);
    window.choose(window.training_Combo, level);
    Arbeitsblatt2& exercise = open_exercise();
    hear_task();
    return exercise;
  }
  void hear_task() { scheduler.advance_ms(5 * beat() + 1800); }
  void hear_control() { scheduler.advance_ms(6 * beat() + 1500); }
  int deviation(std::size_t tone) const {
    return module.settings().stimm_g == 2 ? kKirnberger[module.row().inv_ton[tone].chr % 12] : 0;
  }
  /// The right pitch of the task: the detuning is that of the first tone, as it went over the wire.
  int target() const { return bends(2, 0).back() - deviation(0) + deviation(2); }
  /// Answers so many steps beside the right pitch, after a move of the slider.
  void answer(Arbeitsblatt2& window, int steps) {
    window.sldPitch_change(target() + steps);
    scheduler.advance_ms(1000);
    window.cmdok_click();
    scheduler.advance_ms(60);
  }
  void next_task(Arbeitsblatt2& window) {
    module.settings().abfrage == 1 ? scheduler.advance_ms(1800) : window.CmdNextAufg_click();
    hear_task();
  }
  std::size_t wire() const { return devices.log.size(); }
  /// Bends of a channel since this entry of the wire.
  std::vector<int> bends(int channel, std::size_t from) const {
    std::vector<int> found;
    for (; from < wire(); ++from) {
      const MidiMessage& message = devices.log[from].message;
      if (message.status == (0xE0 | channel)) found.push_back(message.data2);
    }
    return found;
  }
};

}  // namespace tonarix
