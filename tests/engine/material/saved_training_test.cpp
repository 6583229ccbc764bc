#include "engine/material/training_state.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "support/material_bed.h"
#include "support/material_settings.h"

namespace tonarix {
namespace {

std::vector<std::string> record_of(const MaterialBed& bed) {
  return to_record(training_state(bed.box, bed.settings, bed.statistics, 12, 7), bed.settings);
}

TEST(SavedTraining, GoesOnWhereItStopped) {
  for (const int abfr_iv : {0, 1}) {
    MaterialBed left(material_of(1, 2, abfr_iv), 21);
    for (int task = 0; task < 15; ++task) {
      left.material.mat_wahl();
      left.lateness = 1.3F;
      ASSERT_TRUE(left.answer(0.5));
    }
    const std::vector<std::string> record = record_of(left);
    Settings settings = left.settings;
    settings.Uebungsmodus = Level::continued;
    MaterialBed next(settings, 22);
    const auto saved = std::get<SavedTraining>(from_record(record, settings, next.key));
    EXPECT_EQ(saved.zaehler * 100 + saved.whlgzaehler, 1207);
    resume(saved, settings, next.box, next.statistics);

    EXPECT_EQ(next.box.matbox, left.box.matbox);
    EXPECT_EQ(next.box.matbox_vorn, left.box.matbox_vorn);
    EXPECT_EQ(record_of(next), record);
  }
}

// One below too difficult a running training keeps its last drawing list; a resumed one has none to
// keep, and the equal weights of the start would ask the solved as often as the unsolved.
TEST(SavedTraining, OneBelowTooDifficultDrawsByItsSavedWeights) {
  MaterialBed left(material_of(1, 0, 1), 21);
  const std::int16_t rows = left.box.box_zeilen;
  for (int row = 1; row <= rows; ++row) left.box.mathaeufgk_box.at(row).weight = row <= 2 ? -3 : 8;
  left.box.mathaeufgk_box[3].weight = 8 + 2 * 8 - 1;
  Settings settings = left.settings;
  settings.Uebungsmodus = Level::continued;
  MaterialBed next(settings, 22);
  resume(std::get<SavedTraining>(from_record(record_of(left), settings, next.key)), settings,
         next.box, next.statistics);

  ASSERT_EQ(next.box.box_summe, weight_ceiling(rows) - 1);
  EXPECT_EQ(next.box.matboxmax, std::ssize(next.box.matbox) - 1);
  EXPECT_EQ(next.box.matbox_vorn, weight_ceiling(rows) - 1 + 4 * (rows - 2));
  for (int row = 1; row <= rows; ++row) {
    const auto [value, weight] = next.box.mathaeufgk_box.at(row);
    EXPECT_EQ(std::ranges::count(next.box.matbox, value), weight + 4) << value;
  }
}

TEST(SavedTraining, RefusesWhatIsNoTrainingOfThisExercise) {
  using Fault = SavedTrainingFault;
  MaterialBed bed(material_of(1, 0, 1), 3);
  bed.material.mat_wahl();
  ASSERT_TRUE(bed.answer(0.5));
  const std::vector<std::string> good = record_of(bed);
  const std::size_t rows = static_cast<std::size_t>(bed.box.box_zeilen);
  const auto fault = [&](const std::vector<std::string>& record, const Settings& settings) {
    Key key;
    build_scale(key, settings.tongeschl, settings.abfr_iv);
    return std::get<Fault>(from_record(record, settings, key));
  };
  EXPECT_EQ(fault({}, bed.settings), Fault::not_valid);
  EXPECT_EQ(fault({"true"}, bed.settings), Fault::wrong_length);
  EXPECT_EQ(fault({good.begin(), good.end() - 1}, bed.settings), Fault::wrong_length);
  EXPECT_EQ(fault(good, material_of(1, 1, 1)), Fault::wrong_length);

  const std::size_t weight = rows + 1, statistics = 2 * rows + 1, last = good.size() - 1;
  struct Case {
    Fault fault;
    std::size_t place;
    std::vector<std::string> texts;
  };
  for (const Case& one : std::initializer_list<Case>{
           {Fault::not_valid, 0, {"", "NIL", "True", "TRUE", "False", "true "}},
           {Fault::not_a_number, weight, {"", "vier", "4,0", " 4", "4 ", "4x", "32768", "1e3"}},
           {Fault::not_a_number, statistics + 2, {"inf", "nan", "-1,5", "1e99", ""}},
           {Fault::not_a_number, last, {"x"}},
           {Fault::foreign_row, 1, {"14", good[2], "-32768"}},
           {Fault::foreign_row, statistics, {"0"}},
           {Fault::impossible, statistics + 1, {"-1", "0.5"}},
           {Fault::impossible, statistics + 2, {"-20000"}},
           {Fault::impossible, weight, {"30000", "-5000"}},
           {Fault::impossible, last, {"-1"}}}) {
    for (const std::string& text : one.texts) {
      std::vector<std::string> record = good;
      record.at(one.place) = text;
      EXPECT_EQ(fault(record, bed.settings), one.fault) << one.place << ' ' << text;
    }
  }
  std::vector<std::string> solved = good;
  std::fill_n(solved.begin() + static_cast<std::ptrdiff_t>(weight), rows, "0");
  EXPECT_EQ(fault(solved, bed.settings), Fault::impossible);

  // Same size of box, other exercise: 14 rows either way.
  Settings degree = material_of(1, 0, 1);
  degree.ton_st_wahl = 1;
  const MaterialBed by_degree(degree, 1);
  const MaterialBed by_keynote(material_of(1, 0, 0), 1);
  ASSERT_EQ(by_degree.box.box_zeilen, by_keynote.box.box_zeilen);
  EXPECT_EQ(fault(record_of(by_keynote), degree), Fault::foreign_row);
}

}  // namespace
}  // namespace tonarix
