#include "exercises/write/notation/staff_geometry.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "base/arithmetic.h"
#include "base/runtime_error.h"
#include "exercises/write/notation/picture_factor.h"
#include "exercises/write/notation/written_note.h"
#include "music/tones.h"
#include "support/pixel_raster.h"

namespace tonarix {
namespace {

constexpr Staff kStaves[] = {Staff::upper, Staff::lower};

TEST(StaffGeometry, EveryStepAndAlterationIsATonesPlaceThereAndBack) {
  for (const Staff staff : kStaves) {
    for (int step = kHighestStep; step <= kLowestStep; ++step) {
      const int y = y_of_step(step);
      for (int alteration = -2; alteration <= 2; ++alteration) {
        const Tone tone = written_tone(y, staff, alteration);
        EXPECT_EQ(y_of(tone, staff), y) << step << " " << alteration;
        EXPECT_EQ(alteration_of(tone.qz), alteration);
        ASSERT_TRUE(has_name(tone.qz));
        EXPECT_EQ(tone.chr % 12, pitch_class(tone.qz));
        EXPECT_EQ(written_tone(y, staff, alteration, true),
                  (Tone{to_int16(tone.chr + 12), tone.qz}));
        const Tone other = written_tone(y - kStepHeight, staff, alteration);
        EXPECT_TRUE(other.chr - tone.chr == 1 || other.chr - tone.chr == 2);
      }
    }
  }
  struct Row {
    int y;
    Staff staff;
    Tone tone;
  };
  const Row rows[] = {{88, Staff::upper, {67, 16}},  {56, Staff::lower, {53, 14}},
                      {104, Staff::upper, {60, 15}}, {40, Staff::lower, {60, 15}},
                      {104, Staff::upper, {59, 8}},  {40, Staff::lower, {59, 8}},
                      {80, Staff::upper, {72, 27}}};
  for (const Row& row : rows) {
    EXPECT_EQ(y_of(row.tone, row.staff), row.y) << row.tone.chr;
    EXPECT_EQ(written_tone(row.y, row.staff, alteration_of(row.tone.qz)), row.tone);
  }
}

TEST(StaffGeometry, APointerIsInTheNearestColumnAndOnTheNearestStep) {
  for (int x = -600; x < 1200; ++x) {
    const int column = (x - 80) / 50;
    EXPECT_EQ(Noten::XRaster(static_cast<float>(x)), column_centre(column)) << x;
    EXPECT_EQ(lfd_at(static_cast<float>(x)), std::clamp(column, 0, 5)) << x;
  }
  struct Row {
    float at;
    int snapped;
  };
  for (const Row& row : {Row{31, 105}, {30.5F, 55}, {129.4F, 105}, {129.5F, 155}, {30.6F, 105}}) {
    EXPECT_EQ(Noten::XRaster(row.at), row.snapped) << row.at;
  }
  for (const Row& row : {Row{1, 0}, {1.5F, 4}, {2, 4}, {5, 4}, {5.5F, 8}, {142, 144}, {-6, -4}}) {
    EXPECT_EQ(snapped_y(row.at), row.snapped) << row.at;
  }
  EXPECT_THROW(Noten::XRaster(40000), RuntimeError);
  for (const auto& [invzahl, width] : {std::pair{1, 319}, {2, 319}, {3, 330}, {4, 380}}) {
    EXPECT_EQ(picture_width(invzahl), width);
  }
}

TEST(StaffGeometry, ASignatureHasEachLetterOnceInTheSamePatternOnBothStaves) {
  for (int Vorz = -7; Vorz <= 7; ++Vorz) {
    const auto upper = key_signature(Vorz, Staff::upper);
    const auto lower = key_signature(Vorz, Staff::lower);
    ASSERT_EQ(upper.size(), static_cast<std::size_t>(std::abs(Vorz)));
    for (int i = 0; i < std::abs(Vorz); ++i) {
      const SignatureSign& sign = upper[static_cast<std::size_t>(i)];
      EXPECT_EQ(sign.qz, Vorz > 0 ? 21 + i : 13 - i);
      EXPECT_EQ(sign.at.x, 33 + 8 * i);
      EXPECT_TRUE(sign.at.y >= 60 && sign.at.y <= 92) << sign.at.y;
      EXPECT_EQ(written_tone(sign.at.y, Staff::upper, Sgn(Vorz)).qz, sign.qz);
      // The same letter is two steps lower in the F clef, and the lower staff begins 16 higher.
      EXPECT_EQ(lower[static_cast<std::size_t>(i)].at, (Pixel{sign.at.x, sign.at.y - 8}));
    }
  }
  for (const int Vorz : {-8, 8}) EXPECT_THROW(key_signature(Vorz, Staff::upper), RuntimeError);
  EXPECT_EQ(Vorz_of(0, -6), -6);
  EXPECT_EQ(Vorz_of(1, 9), 6);
  EXPECT_EQ(Vorz_of(2, 6), 6);
}

TEST(StaffGeometry, LedgerLinesLeadToTheNoteAndLengthenItsStem) {
  for (const Staff staff : kStaves) {
    for (int step = kHighestStep; step <= kLowestStep; ++step) {
      const auto lines = ledger_steps(step, first_step_above(staff), first_step_below(staff));
      const auto ladder = ladder_steps(staff, step);
      const bool inside = lines.empty();
      for (int line = kHighestStep; line <= kLowestStep; line += 2) {
        const bool above = line < top_step(staff) && line >= step;
        const bool below = line > bottom_step(staff) && line <= step;
        EXPECT_EQ(std::ranges::count(lines, line), above || below);
        const bool outside = line < top_step(staff) || line > bottom_step(staff);
        const bool beyond = inside || (step < top_step(staff) ? line < step : line > step);
        EXPECT_EQ(std::ranges::count(ladder, line), outside && beyond) << step << " " << line;
      }
      const int length = 24 + 4 * static_cast<int>(lines.size());
      const int y = y_of_step(step);
      const Stem stem = stem_of(105, y, length - 24, middle_step(staff));
      const bool hangs = step <= top_step(staff) + 4;
      EXPECT_EQ(stem.from, (Pixel{hangs ? 101 : 109, y}));
      EXPECT_EQ(stem.to, (Pixel{stem.from.x, hangs ? y + length : y - length})) << step;
    }
  }
  EXPECT_EQ(ledger_steps(30, 14, 26), (std::vector{26, 28, 30}));
}

TEST(WrittenNote, LeavesNothingOfTheOneBeforeInEitherStaff) {
  PixelRaster upper(picture_width(4), kPictureHeight), lower(picture_width(4), kPictureHeight);
  draw_empty_staff(upper, Staff::upper, 6);
  draw_empty_staff(lower, Staff::lower, 6);
  const PixelRaster empty_upper = upper, empty_lower = lower;
  NoteMalen({upper, lower}, {0, Staff::lower, 6, DrawingCode::double_flat, true, 12});
  EXPECT_TRUE(upper == empty_upper && !(lower == empty_lower));
  NoteMalen({upper, lower}, {0, Staff::upper, 30, DrawingCode::double_flat, false, 12});
  EXPECT_TRUE(lower == empty_lower && !(upper == empty_upper));
}

TEST(PictureFactor, IsTheLargestHalfStepThatFits) {
  struct Row {
    int width, height, halves;
  };
  for (const Row& row : {Row{380, 288, 2},
                         {200, 100, 2},
                         {569, 2000, 2},
                         {570, 432, 3},
                         {760, 575, 3},
                         {760, 576, 4},
                         {2000, 720, 5}}) {
    EXPECT_EQ(PictureFactor::largest(380, 288, row.width, row.height).halves, row.halves);
  }
}

}  // namespace
}  // namespace tonarix
