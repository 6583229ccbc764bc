#include "sound/instruments.h"

#include <algorithm>

#include "base/runtime_error.h"

namespace tonarix {

// clang-format off
constexpr std::array<std::string_view, 128> general_midi_programs{
    // 0: piano
    "Acoustic Grand Piano", "Bright Acoustic Piano", "Electric Grand Piano", "Honkytonk Piano",
    "Electric Piano 1", "Electric Piano 2", "Harpsichord", "Clavinet",
    // 8: chromatic percussion
    "Celesta", "Glockenspiel", "Music Box", "Vibraphone",
    "Marimba", "Xylophone", "Tubular Bells", "Dulcimer",
    // 16: organ
    "Drawbar Organ", "Percuss. Organ", "Rock Organ", "Church Organ",
    "Reed Organ", "Accordion", "Harmonica", "Tango Accordion",
    // 24: guitar
    "Acoustic Guitar (nylon)", "Acoustic Guitar (steel)", "Electric Guitar (jazz)", "Electric Guitar (clean)",
    "Electric Guitar (muted)", "Overdriven Guitar", "Distortion Guitar", "Guitar Harmonics",
    // 32: bass
    "Acoustic Bass", "Electric Bass (finger)", "Electric Bass (pick)", "Fretless Bass",
    "Slap Bass 1", "Slap Bass 2", "Synth Bass 1", "Synth Bass 2",
    // 40: strings
    "Violin", "Viola", "Cello", "Contra Bass",
    "Tremolo Strings", "Pizzicato Strings", "Orchestral Harp", "Timpani",
    // 48: ensemble
    "String Ensemble 1", "String Ensemble 2", "Synth Strings 1", "Synth Strings 2",
    "Choir Aahs", "Voice Oohs", "Synth Voice", "Orchestra Hit",
    // 56: brass
    "Trumpet", "Trombone", "Tuba", "Muted Trumpet",
    "French Horn", "Brass Section", "Synth Brass 1", "Synth Brass 2",
    // 64: reed
    "Soprano Sax", "Alto Sax", "Tenor Sax", "Baritone Sax",
    "Oboe", "English Horn", "Bassoon", "Clarinet",
    // 72: pipe
    "Piccolo", "Flute", "Recorder", "Pan Flute",
    "Bottle Blow", "Shaku", "Whistle", "Ocarina",
    // 80: synth lead
    "Lead 1 (square)", "Lead 2 (saw tooth)", "Lead 3 (calliope lead)", "Lead 4 (chiff lead)",
    "Lead 5 (charang)", "Lead 6 (voice)", "Lead 7 (fifths)", "Lead 8 (bass + lead)",
    // 88: synth pad
    "Pad 1 (new age)", "Pad 2 (warm)", "Pad 3 (polysynth)", "Pad 4 (choir)",
    "Pad 5 (bowed)", "Pad 6 (metallic)", "Pad 7 (halo)", "Pad 8 (sweep)",
    // 96: synth effects
    "FX 1 (rain)", "FX 2 (soundtrack)", "FX 3 (crystal)", "FX 4 (atmo - sphere)",
    "FX 5 (brightness)", "FX 6 (goblins)", "FX 7 (echoes)", "FX 8 (sci-fi)",
    // 104: ethnic
    "Sitar", "Banjo", "Shamisen", "Koto",
    "Kalimba", "Bag pipe", "Fiddle", "Shanai",
    // 112: percussive
    "Tinkle Bell", "Agogo", "Steel Drums", "Wood block",
    "Taiko Drum", "Melodic Tom", "Synth Drum", "Reverse Cymbal",
    // 120: sound effects
    "Guitar Fret Noise", "Breath Noise", "Seashore", "Bird Tweet",
    "Telephone Ring", "Helicopter", "Applause", "Gunshot",
};
// clang-format on
static_assert(general_midi_programs[kPatchesForRows[1]] == "Contra Bass");
static_assert(general_midi_programs[kPatchesForForming[0]] == "Flute");
static_assert(general_midi_programs[kPatchesForForming[2]] == "Clarinet");
static_assert(general_midi_programs[127] == "Gunshot");

void SetzeKlangfarbe(Midi& midi, std::int16_t patch, std::int16_t kanal) {
  midi.MidiProgramm(patch, kanal);
}

void choose_patch(Midi& midi, std::array<std::int16_t, 8>& patch_ar, std::int16_t kanal,
                  std::int16_t patch, std::int16_t follows) {
  if (kanal < 0 || kanal > 7) throw RuntimeError::index_out_of_range("choose_patch");
  patch_ar[static_cast<std::size_t>(kanal)] = patch;
  if (kanal == 0) std::fill(patch_ar.begin() + follows, patch_ar.end(), patch);
  // A device that refuses a message here gets all programs anew before the next playback.
  SetzeKlangfarbe(midi, patch, kanal);
  if (kanal != 0) return;
  for (std::int16_t tone = follows; tone <= 7; ++tone) {
    SetzeKlangfarbe(midi, patch, tone);
  }
}

}  // namespace tonarix
