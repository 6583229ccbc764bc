#include "exercises/write/notation/written_note.h"

namespace tonarix {
namespace {

/// Anchor of the sign "8va" from the head.
constexpr Pixel kOctaveSign{-11, -12};

void draw_octave_sign(RasterSurface& picture, const WrittenNote& note) {
  if (!note.octave_up) return;
  Noten::Oktavzeichen(picture, note.x() + kOctaveSign.x, note.y() + kOctaveSign.y,
                      colour_code::black);
}

}  // namespace

void draw_empty_staff(RasterSurface& picture, Staff staff, int Vorz,
                      std::span<const int> GrenzLinie) {
  picture.clear();
  Noten::staff_lines(picture, top_step(staff), 0, picture.width());
  staff == Staff::upper ? Noten::Violinschluessel(picture) : Noten::Bassschluessel(picture);
  for (const SignatureSign& sign : key_signature(Vorz, staff)) {
    if (Vorz > 0) {
      Noten::Kreuz(picture, sign.at.x, sign.at.y - 12);
    } else {
      Noten::Be(picture, sign.at.x, sign.at.y - 17);
    }
  }
  for (const int y : GrenzLinie) Noten::range_line(picture, y, 0, picture.width());
}

void draw_accidental(RasterSurface& picture, DrawingCode code, int x, int y, int colour) {
  switch (code) {
    case DrawingCode::double_flat:
      return Noten::Doppelb(picture, x - 22, y - 17, colour);
    case DrawingCode::flat:
      return Noten::Be(picture, x - 15, y - 17, colour);
    case DrawingCode::natural:
      return Noten::Aufloesung(picture, x - 14, y - 12, colour);
    case DrawingCode::sharp:
      return Noten::Kreuz(picture, x - 14, y - 12, colour);
    case DrawingCode::double_sharp:
      return Noten::Doppelkreuz(picture, x - 14, y - 4, colour);
    case DrawingCode::plain:
      return;
  }
}

void NoteMalen(const StaffPictures& pictures, const WrittenNote& note) {
  for (const Staff staff : {Staff::upper, Staff::lower}) {
    Noten::SpalteLoeschen(pictures.of(staff), top_step(staff), note.x());
  }
  RasterSurface& picture = pictures.of(note.staff);
  Noten::NotenKopf(picture, note.x(), note.y(), note.colour, note.staff);
  std::int16_t sum = 0;
  Noten::HilfsLinien(picture, note.x(), note.y(), first_step_above(note.staff),
                     first_step_below(note.staff), sum);
  Noten::NotenHals(picture, note.x(), note.y(), sum, middle_step(note.staff));
  draw_accidental(picture, note.code, note.x(), note.y());
  draw_octave_sign(picture, note);
}

void redraw_accidental(RasterSurface& picture, const WrittenNote& note,
                       std::span<const int> GrenzLinie) {
  Noten::VorzeichenLoeschen(picture, top_step(note.staff), note.x(), note.y(), GrenzLinie);
  draw_accidental(picture, note.code, note.x(), note.y());
  draw_octave_sign(picture, note);
}

std::vector<int> ladder_steps(Staff staff, std::optional<int> own_step) {
  const bool above = own_step && *own_step <= first_step_above(staff);
  const bool below = own_step && *own_step >= first_step_below(staff);
  std::vector<int> steps;
  for (int step = first_step_above(staff); step >= kHighestStep && !below; step -= 2) {
    if (!above || step < *own_step) steps.push_back(step);
  }
  for (int step = first_step_below(staff); step <= kLowestStep && !above; step += 2) {
    if (!below || step > *own_step) steps.push_back(step);
  }
  return steps;
}

void HLZeigen(RasterSurface& picture, Staff staff, int x, int colour,
              const std::optional<WrittenNote>& own) {
  const std::optional<int> own_step = own ? std::optional(own->step) : std::nullopt;
  const int centre = Noten::XRaster(static_cast<float>(x));
  for (const int step : ladder_steps(staff, own_step)) {
    Noten::ledger_line(picture, centre, step, colour);
  }
  if (colour != colour_code::white || !own) return;
  if (own->step <= first_step_above(staff) + 1) {
    Noten::NotenKopf(picture, own->x(), own->y(), own->colour, staff);
  }
  draw_octave_sign(picture, *own);
}

}  // namespace tonarix
