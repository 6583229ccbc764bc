#include "engine/row_player.h"

#include "base/arithmetic.h"
#include "engine/keynote.h"

namespace tonarix {

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
      place_timer_(scheduler, [this] { show(place_ + 1); }) {
  spieltimer_.set_interval(static_cast<double>(playback_.beat()) * playback_.tones());
  grdton_Timer_.set_interval(playback_.beat());
  place_timer_.set_interval(playback_.beat());
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
  show(0);
  spieltimer_.enable();
}

void SoundingPlayer::silence() {
  forget();
  midi_.MidiReset();
}

void SoundingPlayer::forget() {
  spieltimer_.disable();
  grdton_Timer_.disable();
  show(-1);
}

void SoundingPlayer::show(int place) {
  place_ = place >= 0 && place < playback_.tones() ? place : -1;
  if (place_ >= 0) {
    place_timer_.enable();
  } else {
    place_timer_.disable();
  }
  if (shows) shows(place_);
}

Sequence SilentPlayer::play(SpielArt, Tone) {
  sounded();
  co_return;
}

}  // namespace tonarix
