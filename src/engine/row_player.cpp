#include "engine/row_player.h"

#include "base/arithmetic.h"
#include "engine/keynote.h"

namespace tonarix {

void PlaceCursor::begin(int tones, double beat_ms) {
  tones_ = tones;
  timer_.set_interval(beat_ms);
  show(0);
  timer_.enable();
}

void PlaceCursor::stay_at(int place) {
  timer_.disable();
  show(place);
}

void PlaceCursor::go_on() {
  const bool more = place_ + 1 < tones_;
  show(more ? place_ + 1 : -1);
  if (more) timer_.enable();
}

void PlaceCursor::show(int place) {
  place_ = place;
  shows_(place);
}

SoundingPlayer::SoundingPlayer(Scheduler& scheduler, Waits& waits, Midi& midi,
                               const Settings& settings, const Key& key, const TaskRow& row,
                               Chance& chance)
    : waits_(waits),
      midi_(midi),
      settings_(settings),
      key_(key),
      chance_(chance),
      playback_(midi, settings, key, row),
      spieltimer_(scheduler, [this] { sounded(); }),
      grdton_Timer_(scheduler, [this] { sounded(); }),
      cursor_(scheduler, [this](int place) {
        if (shows) shows(place);
      }) {
  spieltimer_.set_interval(static_cast<double>(playback_.beat()) * playback_.tones());
  grdton_Timer_.set_interval(playback_.beat());
}

std::int16_t SoundingPlayer::row_ms() const {
  return to_int16(static_cast<std::int64_t>(playback_.beat()) * playback_.tones());
}

Sequence SoundingPlayer::play(SpielArt what, Tone just_answered) {
  if (what == SpielArt::grundton) {
    const KeynoteChord chord = keynote_chord(settings_, key_, just_answered, terz_typ_, chance_);
    co_await playback_.SpieleGrundton(chord, tuning_, waits_);
    if (!waits_.closed()) grdton_Timer_.enable();
    co_return;
  }
  co_await playback_.SpieleAufgabe(tuning_, waits_);
  if (waits_.closed()) co_return;
  cursor_.begin(playback_.tones(), playback_.beat());
  spieltimer_.enable();
}

void SoundingPlayer::silence() {
  forget();
  midi_.MidiReset();
}

void SoundingPlayer::forget() {
  spieltimer_.disable();
  grdton_Timer_.disable();
  cursor_.stop();
}

Sequence SilentPlayer::play(SpielArt, Tone) {
  sounded();
  co_return;
}

}  // namespace tonarix
