#include "sound/devices/synthesizer.h"

#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <utility>

#include "sound/devices/library_messages.h"

namespace tonarix {

namespace {

constexpr int kChannels = 8;
constexpr double kFullGain = 0.6;  // six loud tones and a keynote stay under the limit
constexpr int kBendUnit = 128;     // of the 14 bits a step of the upper seven has

/// Sound servers first: they share the hardware with other programs.
struct Driver {
  const char* name;
  int period_size;  ///< frames; servers stutter with less, direct outputs keep to the block
};
constexpr Driver kDrivers[] = {{"pulseaudio", 256}, {"pipewire", 256}, {"alsa", 64}, {"jack", 64}};
constexpr auto kGrace = std::chrono::seconds(2);

bool is_file(const std::string& path) {
  std::error_code missing;
  return std::filesystem::is_regular_file(path, missing);
}

}  // namespace

std::vector<std::string> sound_font_places() {
  std::vector<std::string> places;
  if (const char* chosen = std::getenv("TONARIX_SOUNDFONT"); chosen && *chosen) {
    places.emplace_back(chosen);
  }
  places.emplace_back("/usr/share/sounds/sf2/TimGM6mb.sf2");
  places.emplace_back("/usr/share/sounds/sf2/default-GM.sf2");
  places.emplace_back("/usr/share/sounds/sf3/default-GM.sf3");
  return places;
}

struct Synthesizer::Queue {
  std::vector<MidiMessage> messages;
  std::size_t next = 0;
  bool begun = false;
  unsigned int start = 0;  ///< tick of the sequencer, in milliseconds
  QueueEnd end;
};

Synthesizer::Synthesizer(Output output, const std::vector<std::string>& sound_fonts,
                         PostToMain post_to_main)
    : post_to_main_(std::move(post_to_main)) {
  const LibraryMessages messages;
  settings_.reset(new_fluid_settings());
  fluid_settings_setnum(settings_.get(), "synth.sample-rate", kSampleRate);
  fluid_settings_setint(settings_.get(), "synth.polyphony", 64);
  fluid_settings_setint(settings_.get(), "synth.reverb.active", 0);
  fluid_settings_setint(settings_.get(), "synth.chorus.active", 0);
  fluid_settings_setint(settings_.get(), "synth.dynamic-sample-loading", 1);
  fluid_settings_setint(settings_.get(), "synth.lock-memory", 0);
  fluid_settings_setnum(settings_.get(), "synth.gain", kFullGain);
  synth_.reset(new_fluid_synth(settings_.get()));
  if (!load_font(sound_fonts)) {
    const bool there = std::ranges::any_of(sound_fonts, is_file);
    problem_ = there ? Problem::damaged_sound_font : Problem::no_sound_font;
    reason_ = "No sound font can be read at:";
    for (const std::string& font : sound_fonts) reason_ += " " + font;
    return;
  }
  sequencer_.reset(new_fluid_sequencer2(0));
  fluid_sequencer_register_fluidsynth(sequencer_.get(), synth_.get());
  own_id_ = fluid_sequencer_register_client(sequencer_.get(), "queue", on_due, this);
  if (output == Output::sound_hardware && !open_sound_hardware()) {
    problem_ = Problem::no_sound_hardware;
    reason_ = messages.joined();
  }
}

Synthesizer::~Synthesizer() {
  driver_.reset();
  sequencer_.reset();
}

bool Synthesizer::load_font(const std::vector<std::string>& sound_fonts) {
  return std::any_of(sound_fonts.begin(), sound_fonts.end(), [this](const std::string& font) {
    return fluid_is_soundfont(font.c_str()) &&
           fluid_synth_sfload(synth_.get(), font.c_str(), 1) != FLUID_FAILED;
  });
}

bool Synthesizer::open_sound_hardware() {
  setenv("JACK_NO_START_SERVER", "1", 0);  // a server that is not running is not wanted
  fluid_settings_setint(settings_.get(), "audio.jack.autoconnect", 1);
  fluid_settings_setstr(settings_.get(), "audio.jack.id", "tonarix");
  for (const Driver& driver : kDrivers) {
    if (fluid_settings_setstr(settings_.get(), "audio.driver", driver.name) != FLUID_OK) continue;
    fluid_settings_setint(settings_.get(), "audio.period-size", driver.period_size);
    driver_.reset(new_fluid_audio_driver(settings_.get(), synth_.get()));
    if (driver_) return true;
  }
  return false;
}

void Synthesizer::send(const MidiMessage& message) {
  const int channel = message.status & 0x0F;
  switch (message.status & 0xF0) {
    case 0x80:
      fluid_synth_noteoff(synth_.get(), channel, message.data1);
      break;
    case 0x90:
      fluid_synth_noteon(synth_.get(), channel, message.data1, message.data2);
      break;
    case 0xC0:
      fluid_synth_program_change(synth_.get(), channel, message.data1);
      break;
    case 0xE0:
      fluid_synth_pitch_bend(synth_.get(), channel, message.data2 * kBendUnit + message.data1);
      break;
    default:
      break;
  }
}

void Synthesizer::start_queue(std::vector<MidiMessage> queue, std::function<void()> ran_out) {
  if (queue_) stop_queue();
  std::stable_sort(queue.begin(), queue.end(), [](const MidiMessage& one, const MidiMessage& two) {
    return one.time < two.time;
  });
  queue_ = std::make_unique<Queue>(
      Queue{std::move(queue), 0, false, 0, QueueEnd(post_to_main_, std::move(ran_out))});
  // One wake-up at a time: the first fixes the start, so no event can be late against another.
  wake_at(0, false);
}

void Synthesizer::stop_queue() {
  if (sequencer_) {
    // Under the sequencer's lock: afterwards no wake-up is running or to come.
    fluid_sequencer_remove_events(sequencer_.get(), -1, own_id_, -1);
  }
  queue_.reset();
  silence();
}

void Synthesizer::silence() {
  fluid_synth_all_sounds_off(synth_.get(), -1);
}

void Synthesizer::set_volume(std::int32_t left, std::int32_t right) {
  const double level = (static_cast<double>(left) + right) / (2 * 65535.0);
  fluid_synth_set_gain(synth_.get(), static_cast<float>(kFullGain * std::clamp(level, 0.0, 1.0)));
}

void Synthesizer::centre_bends() {
  for (int channel = 0; channel < kChannels; ++channel) {
    fluid_synth_pitch_bend(synth_.get(), channel, 64 * kBendUnit);
  }
}

std::vector<float> Synthesizer::render(int frames) {
  std::vector<float> sound(static_cast<std::size_t>(frames) * 2);
  fluid_synth_write_float(synth_.get(), frames, sound.data(), 0, 2, sound.data(), 1, 2);
  return sound;
}

void Synthesizer::on_due(unsigned int time, fluid_event_t* event, fluid_sequencer_t*, void* self) {
  if (fluid_event_get_type(event) != FLUID_SEQ_TIMER) return;
  static_cast<Synthesizer*>(self)->play_due(time);
}

void Synthesizer::play_due(unsigned int time) {
  Queue& queue = *queue_;
  if (!std::exchange(queue.begun, true)) queue.start = time;
  const auto due = [&](const MidiMessage& message) {
    return queue.start + static_cast<unsigned int>(message.time);
  };
  while (queue.next < queue.messages.size() && due(queue.messages[queue.next]) <= time) {
    send(queue.messages[queue.next++]);
  }
  if (queue.next == queue.messages.size()) {
    queue.end.announce();
  } else {
    wake_at(due(queue.messages[queue.next]), true);
  }
}

void Synthesizer::wake_at(unsigned int time, bool absolute) {
  const std::unique_ptr<fluid_event_t, Deleter<delete_fluid_event>> wake(new_fluid_event());
  fluid_event_set_source(wake.get(), -1);
  fluid_event_set_dest(wake.get(), own_id_);
  fluid_event_timer(wake.get(), nullptr);
  fluid_sequencer_send_at(sequencer_.get(), wake.get(), time, absolute ? 1 : 0);
}

SynthPort::SynthPort(std::shared_ptr<Synthesizer> synthesizer, Scheduler& scheduler)
    : synthesizer_(std::move(synthesizer)), scheduler_(scheduler) {
  synthesizer_->centre_bends();
}

SynthPort::~SynthPort() {
  stop_queue();
}

void SynthPort::start_queue(std::vector<MidiMessage> queue, std::function<void()> ran_out) {
  scheduler_.cancel(overdue_);
  ran_out_ = std::move(ran_out);
  std::int32_t length = 0;
  for (const MidiMessage& message : queue) length = std::max(length, message.time);
  synthesizer_->start_queue(std::move(queue), [this] { finish(); });
  overdue_ = scheduler_.post(milliseconds(length) + kGrace, [this] {
    synthesizer_->set_stalled();
    synthesizer_->stop_queue();
    finish();
  });
}

void SynthPort::stop_queue() {
  scheduler_.cancel(overdue_);
  if (std::exchange(ran_out_, {})) {
    synthesizer_->stop_queue();
  } else {
    synthesizer_->silence();  // what plays may be another port's queue
  }
}

void SynthPort::finish() {
  scheduler_.cancel(overdue_);
  const auto ran_out = std::exchange(ran_out_, {});
  ran_out();
}

}  // namespace tonarix
