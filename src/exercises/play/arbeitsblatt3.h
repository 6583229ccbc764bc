#pragma once

#include <bitset>
#include <optional>
#include <string>

#include "engine/sounding_window.h"
#include "exercises/play/key_names.h"
#include "exercises/play/key_range.h"
#include "exercises/play/spellings.h"

namespace tonarix {

/// Playing a row back on a piano: the key that is pressed says the pitch, the band of the key how
/// the tone is written.
class Arbeitsblatt3 final : public SoundingWindow, public KeynoteControls {
 public:
  explicit Arbeitsblatt3(const ExerciseContext& context);

  /// The student presses a key in one of its bands; no band for a place above them, which says
  /// nothing. The press is the answer, however long the key is held.
  void taste_down(int key, std::optional<int> band);
  /// The key is let go, or the pointer has left it.
  void taste_up();

  /// The keys of the task, white at both ends.
  const KeyRange& keys() const { return keys_; }
  /// What is printed on a field, empty for one that stands for nothing.
  std::string caption(const Field& field) const;
  /// The field in words: "fis, kleine Oktave, unteres Feld".
  std::string spoken(const Field& field) const;
  /// Where the last finished tone of the row lies, to go on from; none before the first.
  const std::optional<Field>& finished_tone() const { return finished_tone_; }
  /// Whether the key was wrong and takes no more clicks for this tone.
  bool locked(int key) const { return tasteGesperrt_.test(static_cast<std::size_t>(key)); }

  ControlArray<Control, 0, kLastKey> taste{
      *this, "taste"};  ///< key k sounds tasteBasis + k - 12; coloured while it does
  Control Klavierrahmen{*this, "Klavierrahmen"};          ///< frame of the keys
  ControlArray<Control, 0, 5> ergPic{*this, "ergPic"};    ///< result of each tone
  ControlArray<Control, 0, 5> int_lb{*this, "int_lb"};    ///< marks the tone that is asked
  ControlArray<Control, 0, 5> tries{*this, "tries"};      ///< how many tries are left, a number
  ControlArray<Control, 0, 5> warnung{*this, "warnung"};  ///< what was nearly right
  Control grundtlb{*this, "grundtlb"};                    ///< caption of the key of the task
  Control grdton_pic{*this, "grdton_pic"};                ///< that key: "D-Dur"
  Control field_note{*this, "field_note"};                ///< what the fields are for
  Control row_title{*this, "row_title"};
  Control settings_line{*this, "settings_line"};

 protected:
  void prepare() override;
  TestTiming test_timing(const TestTiming& usual) const override;
  void row_drawn(std::span<const RangeMove> moves) override;
  int first_asked() const override { return 0; }
  void show_task() override;
  LessonFacts lesson_facts() override;
  void row_sounded() override;
  void open_answers(bool open) override;
  void show_actions(const Actions& actions) override;
  bool control_comes_first() const override { return false; }
  void hearing(SpielArt what) override;
  TextKey line(TextKey usual) const override;
  std::string question_text() const override;

 private:
  struct SoundingKey {
    int key;
    std::int16_t note;
    std::int16_t channel;
  };

  std::int16_t tasteBasis() const { return context().settings.tonraum_min; }
  const Tone& row_tone(int place) const;
  Tone tone_of(const Field& field) const;
  Field field_of(const Tone& tone) const;
  std::string in_full(const Tone& tone) const;
  void tasten_click(const Field& field);
  void sound(const Field& field);
  void let_go();
  void turn_off();
  void first_click();
  void answer(const Field& field);
  std::string right_answer(float tenths);
  std::string near_miss(const char* verdict, TextKey warning, TextKey words);
  std::string wrong_answer(const Field& field);
  void show_tone(const Colour& ground, const std::string& verdict);
  void warn(TextKey what);
  void finish_tone();
  void mark_asked(bool asked);
  std::string key_name() const;

  KeyNames names_;
  KeyRange keys_;
  std::bitset<kLastKey + 1> tasteGesperrt_;
  std::optional<Field> finished_tone_;
  std::optional<SoundingKey> sounding_;
  int tasteBand_ = 0;  ///< of the last press
  int tonNr_ = 0;      ///< the tone that is asked
  bool erstKlick_ = true;
  bool heard_ = false;  ///< the device is there: the row has sounded
};

}  // namespace tonarix
