#include "engine/sounding_window.h"

#include <algorithm>

#include "base/arithmetic.h"
#include "base/module_texts.h"
#include "sound/tuning.h"

namespace tonarix {

namespace {

void show_action(Control& control, Shown shown) {
  if (shown != Shown::shut) control.visible = shown != Shown::hidden;
  control.enabled = shown == Shown::open;
}

}  // namespace

SoundingWindow::SoundingWindow(std::string name, const ExerciseContext& given,
                               KeynoteControls* keynote)
    : ExerciseWindow(std::move(name), given),
      SoundControls(static_cast<Window&>(*this)),
      keynote_(keynote) {
  given.midi_event.QueueEmpty = [this] { MIDI_QueueEmpty(); };
}

std::unique_ptr<RowPlayer> SoundingWindow::make_player() {
  const ExerciseContext& given = context();
  auto player = std::make_unique<SoundingPlayer>(scheduler(), waits(), given.midi, given.settings,
                                                 given.key, given.row, given.chance);
  player->shows = [this](int place) { show_sounding(place); };
  return player;
}

SoundingWindow::~SoundingWindow() {
  context().midi_event.QueueEmpty = nullptr;
}

void SoundingWindow::prepare() {
  wieder.text = word(629_text);
  wieder2.text = word(632_text);
  repeat_label.text = word(text::repeats);
  if (keynote_) {
    keynote_->grundton.text = word(300_text);
    keynote_->keynote_label.text = word(text::keynote_checks);
  }
  show_sounding(-1);
}

TaskTuning SoundingWindow::tune() {
  return tune_row(context().settings, context().key, context().row, context().chance);
}

LessonFacts SoundingWindow::lesson_facts() {
  LessonFacts facts = ExerciseWindow::lesson_facts();
  if (!tones_are_bent(context().settings.stimm_g, context().settings.frequenz)) return facts;
  const TaskTuning& tuning = player().tuning();
  for (std::size_t i = 0; i < facts.qz_tones.size(); ++i) {
    facts.pb_abweichung.push_back(to_int16(tuning.ton_abw[i] + tuning.freq_abw));
  }
  return facts;
}

void SoundingWindow::show_actions(const Actions& actions) {
  show_action(wieder, actions.wieder);
  show_action(wieder2, actions.wieder2);
  if (keynote_) keynote_->grundton.enabled = actions.grundton;
}

void SoundingWindow::show_counts(const TaskAnswers::Counts& counts) {
  whlgzaehler.text = std::to_string(counts.repeats);
  count_by_name(whlgzaehler, repeat_label);
  if (!keynote_) return;
  keynote_->GrdtonWhlg.text = std::to_string(counts.keynotes);
  count_by_name(keynote_->GrdtonWhlg, keynote_->keynote_label);
}

const Control* SoundingWindow::default_button() const {
  const Control* button = ExerciseWindow::default_button();
  const Way way = actions_in(phase()).way_on;
  return button == nullptr && way == Way::wieder2 ? &wieder2 : button;
}

void SoundingWindow::wieder_click() {
  press(wieder, "wieder_click.", [this] { return hear(SpielArt::wieder); });
}

void SoundingWindow::wieder2_click() {
  press(wieder2, "wieder2_click.", [this] { return hear(SpielArt::wieder2); });
}

void SoundingWindow::grundton_click() {
  if (!keynote_) return;
  press(keynote_->grundton, "grundton_click.", [this] { return hear(SpielArt::grundton); });
}

// During a task hearing costs, and the answer clock stands meanwhile.
Sequence SoundingWindow::hear(SpielArt what) {
  const bool in_task = row_is_asked(phase());
  hearing(what);
  enter(sounding_again(phase()), what == SpielArt::grundton);
  if (in_task) answers().pause();
  player().silence();
  co_await Delay(kResetPause);
  if (waits().closed()) co_return;
  if (in_task) {
    what == SpielArt::grundton ? answers().count_keynote() : answers().count_repeat();
    show_counts(answers().counts);
  }
  const auto place = static_cast<std::size_t>(std::min(answers().asked(), 5));
  co_await player().play(what, context().row.inv_ton.at(place));
}

void SoundingWindow::show_sounding(int place) {
  for (Control& mark : sounding) mark.visible = mark.index() == place;
  changed();
}

void SoundingWindow::MIDI_QueueEmpty() {
  handle("MIDI_QueueEmpty.", [this] { player().queue_ran_out(); });
}

}  // namespace tonarix
