#include <gtest/gtest.h>

#include <set>

#include "flow/level_bed.h"

namespace tonarix {
namespace {

using TrainingStoreFlowTest = LevelFlowTest;

/// A training with this many intervals, left with yes, and with no where the host refuses; what is
/// listed then. `fates`: of its stores.
std::string train(FakeHost& host, int invzahl, const std::string& fates = {}) {
  LevelBed bed(host);
  bed.open_settings().click(bed.settings().invzahl[invzahl]);
  bed.settings().choose(bed.settings().training_Combo, 1);
  Arbeitsblatt1& window = bed.open_exercise();
  bed.hear_row();
  bed.answer_row(window);
  host.fates = fates;
  bed.dialogs.script = {Reply::yes, Reply::no};
  bed.leave(window);
  return bed.saved_training_entry();
}

TEST_F(TrainingStoreFlowTest, ATrainingWhoseEndIsNotStoredIsToldAndListedAsTheStoreHasIt) {
  struct Case {
    int level;
    const char* before;  ///< flag of the training saved before
    std::set<std::string> failing;
    const char *told, *entry;
    int selected;
  };
  const Case cases[] = {{2, "true", {"STORE"}, "[1129s]", "[565s]", 2},
                        {2, "true", {"STORE", "READ"}, "[1137s]", "[565s]", 2},
                        {1, "true", {"STORE"}, "[1129s]", "[565s]", 1},
                        {1, "", {"STORE"}, "[1136s]", "---------------", 1},
                        {1, "False", {"STORE"}, "[1136s]", "---------------", 1},
                        {1, "", {"STORE", "READ"}, "[1137s]", "---------------", 1}};
  for (const Case& at : cases) {
    SCOPED_TRACE(at.told + std::to_string(at.level));
    FakeHost of;
    if (*at.before) {
      LevelBed before(of, 3);
      Arbeitsblatt1& window = before.begin(1);
      before.answer_row(window);
      before.save(window);
      Variant::Array changed = of.records["vemo06/A1"].array();
      changed.at(0) = at.before;
      of.records["vemo06/A1"] = changed;
    }
    const auto stored = of.records;
    LevelBed bed(of);
    Arbeitsblatt1& window = bed.begin(at.level);
    of.failing = at.failing;
    bed.play(window, 0);
    ASSERT_EQ(window.phase(), Phase::training_finished);
    EXPECT_EQ(of.records, stored);
    bed.leave(window);
    EXPECT_EQ(bed.dialogs.shown.size(), 1U);
    EXPECT_EQ(bed.dialogs.shown.at(0).text, at.told);
    EXPECT_EQ(bed.saved_training_entry(), at.entry);
    EXPECT_EQ(bed.settings().training_Combo.selected, at.selected);
  }
}

TEST_F(TrainingStoreFlowTest, ATrainingThatEndsTakesNoEarlierOneWithItUntold) {
  {
    LevelBed bed(host);
    Arbeitsblatt1& window = bed.begin(1);
    bed.answer_row(window);
    bed.save(window);
  }
  for (const bool earlier : {true, false}) {
    LevelBed bed(host);
    bed.play(bed.begin(1), 0);
    EXPECT_EQ(bed.dialogs.shown.size(), earlier ? 1U : 0U);
    EXPECT_TRUE(!earlier || bed.dialogs.shown.at(0).text == "[1331s]");
  }
}

TEST_F(TrainingStoreFlowTest, BothRecordsOfATrainingAreStoredOrNone) {
  EXPECT_EQ(train(host, 2), "[565s]");
  ASSERT_EQ(host.records.size(), 2U);
  for (const auto& [settings, state] : {std::pair(0, 0), {0, 1}, {1, 0}, {1, 1}}) {
    for (const std::string refused : {"vemo06/E1", "vemo06/A1", "READ"}) {
      SCOPED_TRACE(refused + (settings ? " over settings" : "") + (state ? " over a state" : ""));
      FakeHost of;
      train(of, 1);
      if (!settings) of.records.erase("vemo06/E1");
      if (!state) of.records.erase("vemo06/A1");
      const auto former = of.records;
      of.failing_records = of.failing = {refused};
      const bool offered = settings && state && refused != "READ";
      EXPECT_EQ(train(of, 2), offered ? "[565s]" : "---------------");
      // Where no training was, the mark of one that is used up may stand.
      auto left = of.records;
      if (!state && left.contains("vemo06/A1")) {
        EXPECT_EQ(left["vemo06/A1"], Variant::strings({"False"}));
        left.erase("vemo06/A1");
      }
      EXPECT_EQ(left, former);
      of.failing_records = of.failing = {};
      train(of, 2);
      EXPECT_EQ(of.records, host.records);
    }
  }
}

TEST_F(TrainingStoreFlowTest, WhateverBecomesOfEachStoreNoTrainingIsMixed) {
  const auto records_after = [](int invzahl, const std::string& fates) {
    FakeHost of;
    train(of, invzahl);
    train(of, 2, fates);
    return of.records;
  };
  const auto former = records_after(1, "rrrrrr");
  const auto anew = records_after(1, "");
  ASSERT_NE(former, anew);
  int kept = 0;
  for (int pattern = 0; pattern < 81; ++pattern) {  // three fates of each store behind the first
    std::string fates = " ";
    for (int left = pattern; fates.size() < 5; left /= 3) fates += " rs"[left % 3];
    auto records = records_after(1, fates);
    const bool valid = records["vemo06/A1"].at(0) == Variant("true");
    EXPECT_TRUE(!valid || records == former || records == anew) << '"' << fates << '"';
    kept += records == former;
  }
  EXPECT_EQ(kept, 22) << "what a host refuses only once is put back";
}

TEST_F(TrainingStoreFlowTest, WhatABusyHostLeftHalfWayIsPutBackFromWhatItHeldAtFirst) {
  LevelBed bed(host);
  for (const char* fates : {"", " bb r"}) {
    Arbeitsblatt1& window = *fates ? bed.open_exercise() : bed.begin(1);
    bed.hear_row();
    bed.answer_row(window);
    const auto former = host.records;
    host.fates = fates;
    bed.dialogs.script = {Reply::yes, Reply::no};
    window.zurueck_click();
    bed.scheduler.advance_ms(500);
    if (*fates) {
      EXPECT_EQ(host.records, former);
      EXPECT_EQ(host.fates, "");
    }
    bed.dialogs.script.clear();
    bed.result().cmdOk_click();
    bed.scheduler.advance_ms(450);
  }
}

TEST_F(TrainingStoreFlowTest, AStoreWaitsForOthersWithoutFreezingTheWindow) {
  host.together = true;
  LevelBed bed(host);
  Arbeitsblatt1& window = bed.begin(1);
  bed.answer_row(window);
  bed.dialogs.script = {Reply::yes};
  host.busy = 100'000;
  window.zurueck_click();
  bed.scheduler.advance_ms(9'900);
  EXPECT_TRUE(window.busy && window.WaitMeldung.visible && bed.dialogs.shown.size() == 1);
  bed.scheduler.advance_ms(200);
  EXPECT_EQ(bed.dialogs.shown.back().text, "[1106s]") << "ten seconds are enough";
  EXPECT_FALSE(window.busy || window.WaitMeldung.visible);
  host.busy = 50;
  bed.dialogs.answer(Reply::yes);
  bed.scheduler.advance_ms(2'000);
  EXPECT_TRUE(window.busy && host.records.empty());
  bed.scheduler.advance_ms(1'000);
  EXPECT_EQ(host.records.size(), 2U);
  bed.result().cmdOk_click();
  bed.scheduler.advance_ms(450);

  Arbeitsblatt1& again = bed.open_exercise();
  bed.hear_row();
  host.busy = 50;
  bed.play(again, 0);
  again.title_bar_close();
  again.wieder2_click();
  bed.scheduler.advance_ms(2'000);
  EXPECT_TRUE(again.busy && !again.zurueck.enabled);
  EXPECT_EQ(bed.saved_training_entry(), "[565s]");
  bed.scheduler.advance_ms(1'000);
  EXPECT_TRUE(!again.busy && again.zurueck.enabled);
  EXPECT_EQ(state(), Variant::strings({"False"}));
}

}  // namespace
}  // namespace tonarix
