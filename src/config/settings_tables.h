#pragma once

#include <array>
#include <cstdint>
#include <span>
#include <string_view>

#include "config/settings.h"

namespace tonarix {

/// The three settings windows.
enum class SettingsKind : std::uint8_t { einstellung1, einstellung2, einstellung1b };
inline constexpr int kSettingsKinds = 3;

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
};

/// Where a choice is kept and which indices it knows.
struct ChoiceRow {
  Choice choice;
  std::int16_t Settings::*field;  ///< null for the place of the range, kept as its lowest note
  std::int16_t lowest;
  std::int16_t highest;
};
/// RuntimeError 9 for Choice::none.
const ChoiceRow& choice_row(Choice choice);

/// The index in force. `Combo_tonraum` counts octaves from MIDI note 36.
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
/// Entries of `Combo_tonraum` for a width; the staff of the write exercise (4) has an octave less.
constexpr int range_entries(int E_Oktav, int ueb_typ) {
  return (ueb_typ == 4 ? 3 : 4) - E_Oktav;
}

struct TempoRow {
  std::string_view text;
  std::int16_t ms;  ///< beat: 60000 over the metronome number, truncated
};
// clang-format off
inline constexpr std::array<TempoRow, 10> kTempi{{
    {" 30              ", 2000},
    {" 40 (Largo)      ", 1500},
    {" 60 (Larghetto)  ", 1000},
    {" 80 (Adagio)     ",  750},
    {"100 (Andante)    ",  600},
    {"120 (Moderato)   ",  500},
    {"140 (Allegro)    ",  428},
    {"160 (Vivace)     ",  375},
    {"180 (Presto)     ",  333},
    {"200 (Prestissimo)",  300},
}};
// clang-format on
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

/// Start values of a window; a field that is not named keeps what an earlier window left.
struct DefaultRow {
  std::int16_t Settings::*field;
  std::array<std::int16_t, kSettingsKinds> value;  ///< by SettingsKind, kKeeps where untouched
};
inline constexpr std::int16_t kKeeps = -1;
void set_defaults(Settings& settings, SettingsKind kind);

/// Degrees to choose from behind the first entry, by their place in the table of interval names.
std::span<const std::int16_t> degree_entries(std::int16_t tongeschl);

}  // namespace tonarix
