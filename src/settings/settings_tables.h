#pragma once

#include <array>
#include <cstdint>
#include <span>
#include <string_view>

#include "settings/exercises.h"
#include "settings/settings.h"

namespace tonarix {

/// A choice that a settings window offers: the index of an option or of a list entry.
enum class Choice : std::uint8_t {
  none,
  abfrage,
  tempo,
  invzahl,
  E_Oktav,
  Combo_tonraum,
  grd_ton,
  Tonart,
  tongeschl,
  frequenz,
  ton_st_wahl,
  ivg,
  abfr_iv,
  stimm_g,
  aufg,
  genau,
  stufe_wahl,
  Uebungsmodus,
  prfnr,
  kanal,
  patch,
  transpo,
  trans_dfg,
  trans_iv,
};

/// Where a choice is kept and which indices it knows.
struct ChoiceRow {
  Choice choice;
  std::int16_t (*read)(const Settings&);
  void (*write)(Settings&, std::int16_t);
  std::int16_t lowest;
  std::int16_t highest;
};
/// RuntimeError 9 for Choice::none.
const ChoiceRow& choice_row(Choice choice);

/// The index in force. `Combo_tonraum` counts octaves from MIDI note 36; `patch` is the program of
/// the channel `kanal`.
std::int16_t choice_value(const Settings& settings, Choice choice);
/// Stores an index; `Combo_tonraum` and `E_Oktav` move the bounds of the tone range with them.
void set_choice(Settings& settings, Choice choice, std::int16_t value);

/// Lowest note of the first range, and the range of an entry of `Combo_tonraum` and a width.
inline constexpr std::int16_t kLowestNote = 36;
constexpr std::int16_t range_bottom(int entry) {
  return static_cast<std::int16_t>(kLowestNote + 12 * entry);
}
constexpr std::int16_t range_top(int entry, int E_Oktav) {
  return static_cast<std::int16_t>(range_bottom(entry) + 24 + 12 * E_Oktav);
}
/// Entries of `Combo_tonraum` for a width; the staff of the write exercise has an octave less.
constexpr int range_entries(int E_Oktav, ExerciseKind ueb_typ) {
  return (ueb_typ == ExerciseKind::write ? 3 : 4) - E_Oktav;
}

/// Tempo list: the metronome number, and the word for it.
inline constexpr std::array<std::string_view, 10> kTempi{
    " 30              ", " 40 (Largo)      ", " 60 (Larghetto)  ", " 80 (Adagio)     ",
    "100 (Andante)    ", "120 (Moderato)   ", "140 (Allegro)    ", "160 (Vivace)     ",
    "180 (Presto)     ", "200 (Prestissimo)"};

/// Milliseconds of a beat, truncated: a minute over the number that the text begins with.
constexpr std::int16_t beat_ms(std::string_view text) {
  int number = 0;
  for (const char sign : text.substr(0, 3)) {
    if (sign != ' ') number = 10 * number + (sign - '0');
  }
  return static_cast<std::int16_t>(60000 / number);
}
/// Beats by tempo index, as `Settings::tempo_ms` holds them.
std::array<std::int16_t, 10> tempo_beats();

/// Slots of a saved training's settings by window. Slots without a choice stay empty; the last one
/// exists only while one degree is chosen.
struct SlotRow {
  int slot;
  std::array<Choice, kSettingsKinds> choice;  ///< by SettingsKind
  Choice of(SettingsKind kind) const { return choice[static_cast<std::size_t>(kind)]; }
};
inline constexpr int kDegreeSlot = 14;
extern const std::array<SlotRow, kDegreeSlot + 1> kSlots;

/// What an exam presets, beside `abfrage` 1 and `ton_st_wahl` 0 in all of them.
struct ExamChoice {
  Choice choice;
  std::int16_t value;
};
/// Choices of an exam, 1 to 5, in the order in which they are set; RuntimeError 9 for another
/// number.
std::span<const ExamChoice> exam_choices(SettingsKind kind, int prfnr);

/// Start values of a window; a choice that is not named keeps what an earlier window left.
struct DefaultRow {
  Choice choice;
  std::array<std::int16_t, kSettingsKinds> value;  ///< by SettingsKind, kKeeps where untouched
};
inline constexpr std::int16_t kKeeps = -1;
void set_defaults(Settings& settings, SettingsKind kind);
/// Gives one choice its start value back, where it has one.
void set_default(Settings& settings, SettingsKind kind, Choice choice);
/// True when a saved training of this window keeps the choice.
bool has_slot(SettingsKind kind, Choice choice);

}  // namespace tonarix
