#include "engine/standing.h"

#include <algorithm>
#include <string>

#include "base/colour.h"
#include "base/module_texts.h"

namespace tonarix {

void Standing::prepare(Level level) {
  controls_.true_false[0].text = texts_.Wort(468_text);
  controls_.true_false[1].text = texts_.Wort(232_text);
  controls_.cmd_test_ein.text = texts_.Wort(text::show_test_standing);
  controls_.cmd_test_aus.text = texts_.Wort(text::hide_test_standing);
  controls_.ergebnis_anz[0].text = texts_.Wort(text::training_status);
  controls_.ergebnis_anz[1].text = texts_.Wort(text::training_solved);
  controls_.ergebnis_anz[2].text = texts_.Wort(text::training_too_difficult);
  const bool training = is_training(level);
  for (Control& part : controls_.matboxanz) part.visible = training;
  show_panel(training ? 0 : -1);
  if (training) show_training();
  show_test_lines(is_test(level));
  controls_.cmd_test_aus.visible = controls_.cmd_test_aus.enabled = is_test(level);
  controls_.cmd_test_ein.visible = controls_.cmd_test_ein.enabled = false;
  if (is_test(level)) show_test();
}

void Standing::show_counts(const TaskAnswers::Counts& counts) {
  controls_.zaehler[0].text = std::to_string(counts.right);
  controls_.zaehler[1].text = std::to_string(counts.wrong);
  for (const int kind : {0, 1}) count_by_name(controls_.zaehler[kind], controls_.true_false[kind]);
}

void Standing::show_panel(int panel) {
  for (Control& one : controls_.ergebnis_anz) one.visible = one.index() == panel;
}

void Standing::show_training() {
  const int percent = static_cast<int>(box_.percentage());
  constexpr int kSegments = 15;
  for (int part = 0; part < kSegments; ++part) {
    controls_.matboxanz[part].back.reset();
    if (percent * kSegments > part * 100) controls_.matboxanz[part].back = signal::locked;
  }
  controls_.matboxanz[kSegments].text = std::to_string(percent);
}

void Standing::show_test() {
  const int left = std::max<int>(box_.test.aufg_dauer, 0);
  controls_.stop_uhr.text = texts_.Wort(461_text) + " " + std::to_string(left / 60) + " " +
                            texts_.Wort(394_text) + " " + std::to_string(left % 60) + " " +
                            texts_.Wort(480_text);
  controls_.lab_aufgaben.text = texts_.Wort(462_text) + " " + std::to_string(box_.test.aufg_rest);
}

void Standing::show_test_lines(bool shown) {
  controls_.lab_aufgaben.visible = controls_.stop_uhr.visible = shown;
  controls_.cmd_test_aus.visible = controls_.cmd_test_aus.enabled = shown;
  controls_.cmd_test_ein.visible = controls_.cmd_test_ein.enabled = !shown;
}

}  // namespace tonarix
