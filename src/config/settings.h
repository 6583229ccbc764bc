#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <vector>

namespace tonarix {

/// Everything the student or a level has chosen, from the selection window to the end of an
/// exercise. One instance for the run of the program. A field holds the index of the option or list
/// entry, not a derived value.
struct Settings {
  std::int16_t Theoriewahl = 0;   ///< 0 ear training, 1 theory
  std::int16_t ueb_typ = 1;       ///< 1 determine, 2 build, 3 play, 4 write
  std::int16_t Uebungsmodus = 0;  ///< level 0 to 4
  std::int16_t prfnr = 1;         ///< exam number 1 to 5
  std::int16_t abfrage = 0;       ///< order of tasks: 0 by hand, 1 automatic
  std::int16_t tongeschl = 0;     ///< 0 Dur, 1 moll, 2 Dur-moll
  std::int16_t Tonart = 0;        ///< key: 0 stays, 1 changes with each task
  std::int16_t grd_ton = 1;       ///< keynote sounds along: 0 yes, 1 no
  std::int16_t ivg = 0;       ///< interval size: 0 up to an octave, 1 one to two octaves, 2 mixed
  std::int16_t invzahl = 1;   ///< 1 to 4: a row has invzahl + 2 tones
  std::int16_t E_Oktav = 0;   ///< tone range: 0 to 3 for 2 to 5 octaves
  std::int16_t frequenz = 0;  ///< 0 fixed, 1 a random detuning of each task
  std::int16_t stimm_g = 0;   ///< 0 equal, 1 pure (Pythagorean), 2 mean-tone (Kirnberger)
  std::int16_t abfr_iv = 0;   ///< interval named 0 from the keynote, 1 from the tone before
  std::int16_t ton_st_wahl = 0;  ///< degrees of tone 2: 0 all, 1 one chosen
  std::int16_t stufe_wahl = 0;   ///< row of the chosen degree
  std::int16_t tempo = 1;        ///< index of the tempo list, 0 to 9
  std::int16_t aufg = 0;         ///< build exercise: 0 imitate, 1 form
  std::int16_t genau = 0;        ///< build exercise: accuracy 0 to 4
  std::int16_t kanal = 0;        ///< channel whose instrument is being chosen
  std::int16_t transpo = 0;      ///< transposition list entry of the write exercise

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
