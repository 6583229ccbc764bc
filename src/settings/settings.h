#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <vector>

#include "music/naming.h"

namespace tonarix {

/// Kind of study, by `Theoriewahl`.
enum class Study : std::int16_t { ear = 0, theory = 1 };

/// What is done with a row, by `ueb_typ`.
enum class ExerciseKind : std::int16_t { determine = 1, build = 2, play = 3, write = 4 };

/// The exercise levels, the entries of `training_Combo`.
enum class Level : std::int16_t {
  free = 0,
  training = 1,   ///< can be saved
  continued = 2,  ///< goes on with a saved training
  test = 3,
  exam = 4,
};
constexpr bool is_training(Level level) {
  return level == Level::training || level == Level::continued;
}
constexpr bool is_test(Level level) {
  return level == Level::test || level == Level::exam;
}

/// Everything the student or a level has chosen, from the selection window to the end of an
/// exercise. One instance for the run of the program. A field holds the index of the option or list
/// entry, not a derived value.
struct Settings {
  Study Theoriewahl = Study::ear;
  ExerciseKind ueb_typ = ExerciseKind::determine;
  Level Uebungsmodus = Level::free;
  std::int16_t prfnr = 1;      ///< exam number 1 to 5
  std::int16_t abfrage = 0;    ///< order of tasks: 0 by hand, 1 automatic
  std::int16_t tongeschl = 0;  ///< 0 Dur, 1 moll, 2 Dur-moll
  std::int16_t Tonart = 0;     ///< key: 0 stays, 1 changes with each task
  std::int16_t grd_ton = 1;    ///< keynote sounds along: 0 yes, 1 no
  std::int16_t ivg = 0;        ///< interval size: 0 up to an octave, 1 one to two octaves, 2 mixed
  std::int16_t invzahl = 1;    ///< 1 to 4: a row has invzahl + 2 tones
  std::int16_t E_Oktav = 0;    ///< tone range: 0 to 3 for 2 to 5 octaves
  std::int16_t frequenz = 0;   ///< 0 fixed, 1 a random detuning of each task
  std::int16_t stimm_g = 0;    ///< 0 equal, 1 pure (Pythagorean), 2 mean-tone (Kirnberger)
  Naming abfr_iv = Naming::from_keynote;
  std::int16_t ton_st_wahl = 0;  ///< degrees of tone 2: 0 all, 1 one chosen
  std::int16_t stufe_wahl = 0;   ///< row of the chosen degree
  std::int16_t tempo = 1;        ///< index of the tempo list, 0 to 9
  std::int16_t aufg = 0;         ///< build exercise: 0 imitate, 1 form
  std::int16_t genau = 0;        ///< build exercise: accuracy 0 to 4
  std::int16_t kanal = 0;        ///< channel whose instrument is being chosen
  std::int16_t transpo = 0;      ///< entry of `transpo_cmb`
  std::int16_t trans_dfg = 0;    ///< transposition of the write exercise: 0 none, 1 up, 2 down
  std::int16_t trans_iv = 0;     ///< by which interval, |code| 0 to 21

  std::int16_t tonraum_min = 48;  ///< lowest MIDI note of the range before the key moves it
  std::int16_t tonraum_max = 72;  ///< highest, 24 to 60 above
  std::array<std::int16_t, 10> tempo_ms{};  ///< beat of each tempo in milliseconds
  std::array<std::int16_t, 8> patch_ar{};   ///< General MIDI program of each channel

  std::vector<std::string> EinstDatSave;    ///< highest index, then label and value in turn
  std::vector<std::string> EinstSicherung;  ///< settings of a saved training
  std::vector<std::string> AntwSicherung;   ///< state of a saved training

  bool supervisor = false;  ///< the host named the role 4
  bool klein_bildschirm =
      false;  ///< the screen is at least 1000 pixels wide: false when it is narrower
};

}  // namespace tonarix
