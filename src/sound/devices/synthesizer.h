#pragma once

#include <fluidsynth.h>

#include <memory>
#include <string>
#include <vector>

#include "base/scheduler.h"
#include "sound/devices/queue_end.h"
#include "sound/midi_port.h"

namespace tonarix {

/// Where General MIDI sound fonts are looked for: TONARIX_SOUNDFONT of the environment, then
/// Debian's places.
std::vector<std::string> sound_font_places();

/// The built-in General MIDI synthesiser. It stays loaded; ports come and go on it. All calls come
/// from the main thread; queues play on the audio thread, by the count of the samples.
class Synthesizer {
 public:
  static constexpr int kSampleRate = 48000;
  static constexpr int kBlock = 64;  ///< frames; events begin at the start of a block

  enum class Output { sound_hardware, rendered_by_caller };
  enum class Problem { none, no_sound_font, damaged_sound_font, no_sound_hardware };

  /// Takes the first sound font that can be read. Without a font, with none but damaged ones, or
  /// without a sound output `problem` says so and nothing plays.
  Synthesizer(Output output, const std::vector<std::string>& sound_fonts, PostToMain post_to_main);
  ~Synthesizer();
  Synthesizer(const Synthesizer&) = delete;
  Synthesizer& operator=(const Synthesizer&) = delete;

  Problem problem() const { return problem_; }
  /// What the library said about the problem; for the log.
  const std::string& reason() const { return reason_; }

  void send(const MidiMessage& message);
  /// See MidiPort; a queue that is still playing is forgotten.
  void start_queue(std::vector<MidiMessage> queue, std::function<void()> ran_out);
  /// Forgets the queue and silences everything.
  void stop_queue();
  void silence();
  void set_volume(std::int32_t left, std::int32_t right);
  void centre_bends();

  /// The sound output has stopped asking for sound, as when its server has gone.
  bool stalled() const { return stalled_; }
  void set_stalled() { stalled_ = true; }

  /// The next frames, left and right in turn. Only for Output::rendered_by_caller.
  std::vector<float> render(int frames);

 private:
  struct Queue;
  template <auto Delete>
  struct Deleter {
    template <typename Kind>
    void operator()(Kind* object) const {
      Delete(object);
    }
  };

  bool load_font(const std::vector<std::string>& sound_fonts);
  bool open_sound_hardware();
  static void on_due(unsigned int time, fluid_event_t* event, fluid_sequencer_t*, void* self);
  void play_due(unsigned int time);
  void wake_at(unsigned int time, bool absolute);

  PostToMain post_to_main_;
  Problem problem_ = Problem::none;
  std::string reason_;
  bool stalled_ = false;
  // Destroyed from the last to the first: the driver pulls from the synthesiser.
  std::unique_ptr<fluid_settings_t, Deleter<delete_fluid_settings>> settings_;
  std::unique_ptr<fluid_synth_t, Deleter<delete_fluid_synth>> synth_;
  std::unique_ptr<fluid_sequencer_t, Deleter<delete_fluid_sequencer>> sequencer_;
  fluid_seq_id_t own_id_ = -1;
  std::unique_ptr<Queue> queue_;
  std::unique_ptr<fluid_audio_driver_t, Deleter<delete_fluid_audio_driver>> driver_;
};

/// An open output on the synthesiser. It begins with all bends at the centre. A queue that is two
/// seconds late, because nobody takes its sound any more, is ended.
class SynthPort final : public MidiPort {
 public:
  SynthPort(std::shared_ptr<Synthesizer> synthesizer, Scheduler& scheduler);
  ~SynthPort() override;
  void send(const MidiMessage& message) override { synthesizer_->send(message); }
  void start_queue(std::vector<MidiMessage> queue, std::function<void()> ran_out) override;
  void stop_queue() override;
  void set_volume(std::int32_t left, std::int32_t right) override {
    synthesizer_->set_volume(left, right);
  }

 private:
  void finish();

  std::shared_ptr<Synthesizer> synthesizer_;
  Scheduler& scheduler_;
  Scheduler::TaskId overdue_ = 0;
  std::function<void()> ran_out_;
};

}  // namespace tonarix
