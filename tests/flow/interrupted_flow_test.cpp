#include <gmock/gmock.h>

#include "flow/flow_bed.h"
#include "support/temporary_folder.h"

namespace tonarix {
namespace {

struct InterruptedFlowTest : testing::Test {
  /// A program works through some tasks, the last of them left open, and dies.
  void work_and_die(int level, int tasks) {
    FlowBed bed(host, kept);
    Arbeitsblatt1& window = bed.begin(level);
    for (int task = 1; task <= tasks; ++task) {
      bed.answer_row(window, 1, 0.3);
      bed.next_task(window);
    }
    bed.press(window, bed.right_code(0));
    bed.scheduler.advance_ms(0);
    kept.crash();
  }
  static std::vector<std::string> told(const FlowBed& bed) {
    std::vector<std::string> texts;
    for (const Message& message : bed.dialogs.shown) texts.push_back(message.text);
    return texts;
  }
  FakeHost host;
  FakeKeptExercises kept;
};

TEST_F(InterruptedFlowTest, ATrainingGoesOnAtTheNextStartWithItsProtocolInPlace) {
  work_and_die(1, 3);
  const KeptExercise left = kept.left.at(0).exercise;
  FlowBed bed(host, kept);
  EXPECT_THAT(told(bed), testing::ElementsAre("[1168s]"));
  EXPECT_EQ(bed.documents.written.at(0).path, "/protocols/EXR261121090532.xml");
  EXPECT_EQ(bed.documents.written[0].content, left.document);
  const pugi::xml_node exercise = bed.written();
  EXPECT_EQ(FlowBed::lessons(exercise).size(), 3U);
  EXPECT_TRUE(exercise.child("settings").first_child());
  EXPECT_TRUE(exercise.child("properties").child("timestamp"));
  EXPECT_EQ(host.records["vemo06/E1"], Variant::strings(left.training->settings));
  EXPECT_EQ(host.records["vemo06/A1"], Variant::strings(left.training->state));
  EXPECT_TRUE(kept.left.empty());

  Arbeitsblatt1& window = bed.begin(2);
  EXPECT_EQ(window.level(), Level::continued);
  EXPECT_NE(window.zaehler[1].text, "") << "goes on with the wrong answers of before";
}

TEST_F(InterruptedFlowTest, AnOrderlyEndLeavesNothingKept) {
  for (const int level : {0, 1, 4}) {
    FlowBed bed(host, kept);
    Arbeitsblatt1& window = bed.begin(level);
    bed.answer_row(window);
    bed.scheduler.advance_ms(0);
    EXPECT_TRUE(kept.own && kept.own->tasks == 1);
    EXPECT_EQ(kept.own->training.has_value(), level == 1);
    if (level > 0) bed.dialogs.script = {level == 1 ? Reply::no : Reply::yes};
    window.zurueck_click();
    bed.scheduler.advance_ms(400);
    EXPECT_TRUE(kept.own && !kept.own->training) << "what was refused is not offered again";
    bed.result().cmdOk_click();
    bed.scheduler.advance_ms(450);
    EXPECT_FALSE(kept.own);
    FlowBed next(host, kept);
    EXPECT_TRUE(next.dialogs.shown.empty() && next.documents.written.empty());
  }
}

TEST_F(InterruptedFlowTest, WhatIsStoredMeanwhileWinsAndWhatWouldBeReplacedIsAskedFor) {
  const auto other = [&] {
    FlowBed bed(host, kept);
    Arbeitsblatt1& window = bed.begin(1);
    bed.answer_row(window, 1, 1);
    bed.dialogs.script = {Reply::yes};
    bed.leave(window);
    return host.records.at("vemo06/A1");
  };
  work_and_die(1, 2);
  const auto left = std::exchange(kept.left, {});
  const Variant newer = other();
  kept.left = left;
  EXPECT_THAT(told(FlowBed(host, kept)), testing::ElementsAre("[1175s]"));
  EXPECT_EQ(host.records["vemo06/A1"], newer);

  for (const Reply reply : {Reply::no, Reply::yes}) {
    work_and_die(1, 2);
    const auto state = Variant::strings(kept.left.at(0).exercise.training->state);
    FlowBed bed(host, kept);
    EXPECT_THAT(told(bed), testing::ElementsAre("[1170s] [1138s]"));
    EXPECT_EQ(bed.dialogs.shown[0].usual, Reply::yes) << "neither Return nor Escape drops it";
    bed.dialogs.answer(reply);
    EXPECT_EQ(host.records["vemo06/A1"], reply == Reply::yes ? state : newer);
    EXPECT_TRUE(kept.left.empty());
  }
  work_and_die(2, 1);  // goes on with what is stored
  EXPECT_THAT(told(FlowBed(host, kept)), testing::ElementsAre("[1168s]"));
}

TEST_F(InterruptedFlowTest, ATrainingThatTheStoreHasLostMeanwhileIsNotGivenUp) {
  work_and_die(1, 1);
  { const FlowBed bed(host, kept); }
  work_and_die(2, 1);
  const auto state = Variant::strings(kept.left.at(0).exercise.training->state);
  host.records.clear();
  EXPECT_THAT(told(FlowBed(host, kept)), testing::ElementsAre("[1168s]"));
  EXPECT_EQ(host.records["vemo06/A1"], state);
  // The box may have been closed by another death: what is stored already is no newer training.
  work_and_die(2, 1);
  host.records["vemo06/A1"] = Variant::strings(kept.left.at(0).exercise.training->state);
  EXPECT_THAT(told(FlowBed(host, kept)), testing::ElementsAre("[1168s]"));
}

TEST_F(InterruptedFlowTest, ABusyStoreIsWaitedForWhileTheProgramCanBeUsed) {
  work_and_die(1, 2);
  const KeptExercise left = kept.left.at(0).exercise;
  const Variant state = Variant::strings(left.training->state);
  host.together = true;
  host.busy = 100'000;
  {
    FlowBed bed(host, kept);
    bed.open_settings();
    EXPECT_TRUE(bed.dialogs.shown.empty() && bed.settings().takes_input());
    EXPECT_EQ(host.error_places(), std::vector<std::string>{"vemo06.take_up."});
  }
  EXPECT_EQ(kept.left.at(0).exercise.training, left.training) << "the program ended meanwhile";
  {
    FlowBed bed(host, kept);
    bed.scheduler.advance_ms(10'100);
    EXPECT_THAT(told(bed), testing::ElementsAre("[1171s]"));
  }
  for (const bool overtaken : {true, false}) {
    host.busy = 50;
    FlowBed bed(host, kept);
    bed.scheduler.advance_ms(1'000);
    Variant::Array other = state.array();
    other.back() = "77";
    if (overtaken) host.records["vemo06/A1"] = other;
    bed.scheduler.advance_ms(3'000);
    EXPECT_THAT(told(bed), testing::ElementsAre(overtaken ? "[1171s]" : "[1168s]"));
    EXPECT_EQ(host.records["vemo06/A1"], overtaken ? Variant(other) : state);
    EXPECT_EQ(kept.left.empty(), !overtaken);
    host.records.clear();
  }
}

TEST_F(InterruptedFlowTest, ADamagedRecordAndAnUnknownUserAreAskedFor) {
  const Variant damaged = "no record";
  for (const std::string record : {"vemo06/A1", "vemo06/E1", ""}) {
    for (const Reply reply : {Reply::no, Reply::yes}) {
      host.records.clear();
      host.failing = {"LOGIN"};
      if (!record.empty()) host.failing.clear();
      work_and_die(1, 1);
      const Variant state = Variant::strings(kept.left.at(0).exercise.training->state);
      if (!record.empty()) host.records[record] = damaged;
      const auto former = host.records;
      EXPECT_TRUE(record.empty() ? told(FlowBed(host, kept)).empty() : true) << "nobody knows who";
      host.failing.clear();
      FlowBed bed(host, kept);
      EXPECT_THAT(told(bed), testing::ElementsAre(record.empty() ? "[1170s]" : "[1170s] [1173s]"));
      bed.dialogs.answer(reply);
      if (reply == Reply::no) {
        EXPECT_EQ(host.records, former);
      } else {
        EXPECT_EQ(host.records["vemo06/A1"], state);
      }
      EXPECT_TRUE(kept.left.empty());
    }
  }
}

TEST_F(InterruptedFlowTest, AProtocolThatNoPlaceTookIsPutThereByTheNextStart) {
  {
    FlowBed bed(host, kept);
    Arbeitsblatt1& window = bed.begin();
    bed.answer_row(window);
    bed.documents.broken_folders = {"/protocols", "/data"};
    bed.dialogs.script = {Reply::no};
    window.zurueck_click();
    bed.scheduler.advance_ms(400);
    bed.result().cmdOk_click();
    bed.scheduler.advance_ms(450);
    EXPECT_TRUE(bed.settings().takes_input());
  }
  struct Start {
    std::set<std::filesystem::path> broken;
    std::string told;
  };
  for (const auto& [broken, words] :
       {Start{{"/protocols", "/data"}, "[1169s] [1178s]"},
        {{"/protocols"}, "[1169s] [1177s]\n/data/EXR261121090532.xml"}}) {
    FakeDocumentWriter files;
    files.broken_folders = broken;
    const FlowBed next(host, kept, files, {"/protocols", "/data"});
    EXPECT_THAT(told(next), testing::ElementsAre(words));
    EXPECT_EQ(files.written.empty(), kept.left.size() == 1);
    EXPECT_THAT(host.error_places(), testing::Contains("vemo06.take_up."));
    host.calls.clear();
  }
  EXPECT_TRUE(kept.left.empty());
}

TEST_F(InterruptedFlowTest, AProtocolThatLiesWhereItBelongsIsNotPutThereAgain) {
  TemporaryFolder folder;
  FileDocumentWriter writer;
  const ProtocolFolders folders{folder.path / "protocols", folder.path / "data"};
  folder.write("protocols/EXR261121090532.xml", "another program's");
  {
    FlowBed bed(host, kept, writer, folders);
    Arbeitsblatt1& window = bed.begin();
    bed.answer_row(window);
    bed.next_task(window);
    const KeptExercise before = kept.own.value();
    bed.press(window, bed.right_code(0));
    window.zurueck_click();
    bed.scheduler.advance_ms(400);
    bed.result().cmdOk_click();
    bed.scheduler.advance_ms(450);
    kept.left = {{"kept-1", before}};  // killed before it was used up
  }
  kept.damaged_ = {"", "/data/damaged-kept-2.xml"};
  kept.refuses = true;
  FlowBed next(host, kept, writer, folders);
  EXPECT_THAT(told(next), testing::ElementsAre("[1169s] [1176s]", "[1020s]",
                                               "[1019s]\n/data/damaged-kept-2.xml"));
  EXPECT_TRUE(kept.left.empty());
  using Files = std::filesystem::directory_iterator;
  EXPECT_EQ(std::distance(Files(folders.protocols), {}), 2);
  EXPECT_FALSE(std::filesystem::exists(folders.data));
}

TEST_F(InterruptedFlowTest, AStoreThatFailsAndAnotherUserLeaveTheTrainingKept) {
  work_and_die(1, 2);
  host.failing = {"READ"};
  FlowBed(host, kept);
  EXPECT_TRUE(kept.left.at(0).exercise.training && kept.left[0].exercise.document.empty());
  host.failing = {"STORE"};
  EXPECT_THAT(told(FlowBed(host, kept)), testing::ElementsAre("[1171s]"));
  host.failing.clear();
  host.lasting = false;
  EXPECT_THAT(told(FlowBed(host, kept)), testing::ElementsAre("[1171s]"));
  EXPECT_TRUE(host.records.empty() && kept.left.at(0).exercise.training) << "memory is no store";
  host.lasting = true;
  host.answers["LOGIN"] = Variant::Array{"Grace"};
  EXPECT_TRUE(told(FlowBed(host, kept)).empty());
  host.answers.clear();
  EXPECT_THAT(told(FlowBed(host, kept)), testing::ElementsAre("[1168s]"));
  EXPECT_TRUE(kept.left.empty());
}

TEST_F(InterruptedFlowTest, TheEndOfTheSessionIsSilentWritesTheProtocolAndKeepsTheTraining) {
  for (const int level : {0, 1}) {
    FlowBed bed(host, kept);
    Arbeitsblatt1& window = bed.begin(level);
    bed.answer_row(window);
    bed.next_task(window);
    bed.press(window, bed.right_code(0));
    window.wieder_click();
    bed.scheduler.advance_ms(200);  // sounds
    bool shown = false;
    window.on_changed = [&shown] { shown = true; };
    bed.devices.log.clear();
    bed.module.end_session();
    bed.module.end_session();
    EXPECT_FALSE(shown) << "the display may be gone";
    bed.scheduler.advance_ms(5000);
    EXPECT_TRUE(bed.devices.notes().empty());
    EXPECT_EQ(FlowBed::lessons(bed.written()).size(), 2U);
    EXPECT_EQ(FlowBed::lessons(bed.written()).at(1).size(), 1U) << "the answer given counts";
    EXPECT_EQ(bed.documents.written.size(), 1U);
    EXPECT_EQ(host.calls_of("MENUE").size(), 1U);
    host.calls.clear();
    kept.crash();
    FlowBed next(host, kept);
    EXPECT_EQ(told(next),
              level == 1 ? std::vector<std::string>{"[1168s]"} : std::vector<std::string>{});
    EXPECT_TRUE(next.documents.written.empty()) << "the protocol lies where it belongs";
  }
}

TEST_F(InterruptedFlowTest, TheNextStartNamesWhereTheEndOfTheSessionHasPutTheProtocol) {
  FileDocumentWriter writer;
  for (const int level : {0, 1}) {
    TemporaryFolder folder;
    folder.write("protocols", "a file stands where the folder should be");
    folder.write("data/host.log", "");
    const ProtocolFolders folders{folder.path / "protocols", folder.path / "data"};
    {
      FlowBed bed(host, kept, writer, folders);
      bed.answer_row(bed.begin(level));
      bed.module.end_session();
    }
    kept.crash();
    const std::string place = (folders.data / "EXR261121090532.xml").string();
    EXPECT_EQ(host.calls_of("LOGERR").back().input.at(2).text(), "It lies in " + place);
    const std::string state = level == 1 ? "[1168s]" : "[1169s]";
    EXPECT_THAT(told(FlowBed(host, kept, writer, folders)),
                testing::ElementsAre(state + " [1177s]\n" + place));
    EXPECT_TRUE(kept.left.empty());
  }
}

}  // namespace
}  // namespace tonarix
