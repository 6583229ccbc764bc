#include "engine/material/saved_training.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "support/material_bed.h"
#include "support/material_settings.h"

namespace tonarix {
namespace {

Settings training(std::int16_t abfr_iv, std::int16_t tongeschl) {
  Settings settings;
  settings.Uebungsmodus = 1;
  settings.abfr_iv = abfr_iv;
  settings.tongeschl = tongeschl;
  settings.invzahl = 2;
  return settings;
}

std::vector<std::string> record_of(const MaterialBed& bed) {
  return to_record(training_state(bed.box, bed.settings, bed.statistics, 12, 7), bed.settings);
}

TEST(SavedTraining, GoesOnWhereItStopped) {
  for (const std::int16_t abfr_iv : {std::int16_t{0}, std::int16_t{1}}) {
    MaterialBed left(training(abfr_iv, 2), 21);
    for (int task = 0; task < 15; ++task) {
      left.material.mat_wahl();
      left.box.zeit_gewicht[1] = 1.3F;
      ASSERT_TRUE(left.answer(0.5));
    }
    const std::vector<std::string> record = record_of(left);
    EXPECT_EQ(static_cast<int>(record.size()) - 1, left.box.box_zeilen * 6 + 2);
    EXPECT_EQ(record.front(), "true");

    Settings settings = left.settings;
    settings.Uebungsmodus = 2;
    MaterialBed next(settings, 22);
    const auto read = from_record(record, settings, next.key);
    ASSERT_TRUE(std::holds_alternative<SavedTraining>(read));
    const auto& saved = std::get<SavedTraining>(read);
    EXPECT_EQ(saved.zaehler, 12);
    EXPECT_EQ(saved.whlgzaehler, 7);
    resume(saved, settings, next.box, next.statistics);

    EXPECT_EQ(next.box.mathaeufgk_box, left.box.mathaeufgk_box);
    EXPECT_EQ(next.box.matbox, left.box.matbox);
    EXPECT_EQ(next.box.matbox_vorn, left.box.matbox_vorn);
    EXPECT_EQ(next.box.percentage(), left.box.percentage());
    for (std::int16_t row = 0; row < kStatisticRows; ++row) {
      for (int column = 0; column <= 3; ++column) {
        float was = 0;
        float is = 0;
        left.statistics.read(row, static_cast<float>(column), was);
        next.statistics.read(row, static_cast<float>(column), is);
        EXPECT_EQ(is, was) << row << " " << column;
      }
    }
    EXPECT_EQ(record_of(next), record);
  }
}

TEST(SavedTraining, RefusesWhatIsNoTrainingOfThisExercise) {
  using Fault = SavedTrainingFault;
  MaterialBed bed(training(1, 0), 3);
  bed.material.mat_wahl();
  ASSERT_TRUE(bed.answer(0.5));
  const std::vector<std::string> good = record_of(bed);
  const std::size_t rows = static_cast<std::size_t>(bed.box.box_zeilen);
  const auto fault = [&](const std::vector<std::string>& record, const Settings& settings) {
    Key key;
    build_scale(key, settings.tongeschl, settings.abfr_iv);
    const auto read = from_record(record, settings, key);
    EXPECT_TRUE(std::holds_alternative<Fault>(read));
    return std::holds_alternative<Fault>(read) ? std::get<Fault>(read) : Fault{};
  };
  const auto changed = [&](std::size_t place, const char* text) {
    std::vector<std::string> record = good;
    record.at(place) = text;
    return fault(record, bed.settings);
  };

  EXPECT_EQ(fault({}, bed.settings), Fault::not_valid);
  for (const char* flag : {"", "NIL", "True", "TRUE", "False", "true "}) {
    EXPECT_EQ(changed(0, flag), Fault::not_valid) << flag;
  }
  EXPECT_EQ(fault({"true"}, bed.settings), Fault::wrong_length);
  EXPECT_EQ(fault({good.begin(), good.end() - 1}, bed.settings), Fault::wrong_length);
  EXPECT_EQ(fault(good, training(1, 1)), Fault::wrong_length);

  const std::size_t weight = rows + 1;
  const std::size_t statistic = 2 * rows + 1;
  for (const char* text : {"", "vier", "4,0", " 4", "4 ", "4x", "32768", "-32769", "1e3"}) {
    EXPECT_EQ(changed(weight, text), Fault::not_a_number) << text;
  }
  for (const char* text : {"inf", "nan", "-1,5", "1e99", ""}) {
    EXPECT_EQ(changed(statistic + 2, text), Fault::not_a_number) << text;
  }
  EXPECT_EQ(changed(good.size() - 1, "x"), Fault::not_a_number);

  EXPECT_EQ(changed(1, "14"), Fault::foreign_row);
  EXPECT_EQ(changed(1, good[2].c_str()), Fault::foreign_row);
  EXPECT_EQ(changed(1, "-32768"), Fault::foreign_row);
  EXPECT_EQ(changed(statistic, "0"), Fault::foreign_row);

  EXPECT_EQ(changed(statistic + 1, "-1"), Fault::impossible);
  EXPECT_EQ(changed(statistic + 1, "0.5"), Fault::impossible);
  EXPECT_EQ(changed(statistic + 2, "-20000"), Fault::impossible);
  EXPECT_EQ(changed(weight, "30000"), Fault::impossible);
  EXPECT_EQ(changed(good.size() - 1, "-1"), Fault::impossible);
  std::vector<std::string> solved = good;
  std::fill_n(solved.begin() + static_cast<std::ptrdiff_t>(weight), rows, "0");
  EXPECT_EQ(fault(solved, bed.settings), Fault::impossible);

  // Same size of box, other exercise: 14 rows either way.
  Settings degree = training(1, 0);
  degree.ton_st_wahl = 1;
  const MaterialBed by_degree(degree, 1);
  const MaterialBed by_keynote(training(0, 0), 1);
  ASSERT_EQ(by_degree.box.box_zeilen, by_keynote.box.box_zeilen);
  EXPECT_EQ(fault(record_of(by_keynote), degree), Fault::foreign_row);
}

}  // namespace
}  // namespace tonarix
