#pragma once

#include <functional>
#include <optional>

#include "base/text_key.h"
#include "engine/row_player.h"
#include "sound/midi.h"

namespace tonarix {

/// What the player works on of the window in which a tone is formed.
struct FormingDesk {
  std::int16_t ziel = 64;                                ///< bend value of the right pitch
  std::int16_t pbLetzt = 64;                             ///< of the last finished answer
  std::int16_t slider = 64;                              ///< where the slider stands
  std::function<void(std::int16_t value)> slider_moves;  ///< the program moves the slider
  std::function<void(std::optional<TextKey>)> tells;     ///< what sounds now; none: nothing
  std::function<void(Sequence)> run;                     ///< runs a routine of the window
};

/// How long the row and after it its first two tones take, until the third may be formed, ms.
std::int16_t forming_ms(const Settings& settings);

/// Plays two or three tones, lets the third sound on until it is formed, and afterwards plays the
/// row with the student's pitch and with the right one. Each tone has a channel of its own, as a
/// bend acts on all of a channel: the keynote 1, the tones 2 to 4.
class FormingPlayer final : public RowPlayer {
 public:
  FormingPlayer(Scheduler& scheduler, Waits& waits, Midi& midi, const Settings& settings,
                const Key& key, const TaskRow& row, FormingDesk& desk);

  std::int16_t row_ms() const override;
  Sequence play(SpielArt what, Tone just_answered) override;
  void silence() override;
  void forget() override;

  /// The slider has moved: the sounding tone follows at once. A device that has failed is not asked
  /// again with each step.
  void follow_slider() {
    if (tone_held_) bend_formed_tone();
  }

 private:
  static constexpr std::int16_t kKeynoteChannel = 1;
  static constexpr std::int16_t kFirstChannel = 2;
  static constexpr std::int16_t kFormedChannel = 4;

  Sequence spiele(int tones);
  Sequence step();
  void wait_for(double ms);
  void send_patches();
  void bend(std::int16_t channel, std::int16_t value);
  void bend_given_tones();
  void bend_keynote();
  void move_slider(std::int16_t value);
  void bend_formed_tone() { bend(kFormedChannel, desk_.slider); }
  void hold_tone();
  void hold_keynote();
  void release();
  double beat() const;
  std::int16_t note(int place) const;
  std::int16_t keynote() const;
  std::int16_t keynote_velocity() const;

  Waits& waits_;
  Midi& midi_;
  const Settings& settings_;
  const Key& key_;
  const TaskRow& row_;
  FormingDesk& desk_;
  Timer spieltimer_;
  PlaceCursor cursor_;
  bool control_ = false;   ///< the student's tone and the right one, after the task
  bool vorspiel_ = false;  ///< a second playback follows
  bool tone_held_ = false;
  bool keynote_held_ = false;
};

}  // namespace tonarix
