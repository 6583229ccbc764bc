#include "config/test_listing.h"

#include <gmock/gmock.h>

#include <pugixml.hpp>

#include "config/settings_bed.h"

namespace tonarix {
namespace {

void mark(Einstellung1& window, int frame) {
  window.frame_menu(frame);
  window.click(window.popExamToggle);
}

pugi::xml_document listing(SettingsBed& bed) {
  bed.window->click(bed.window->cmdOptionSave);
  pugi::xml_document document;
  const auto result = document.load_buffer(bed.listing.data(), bed.listing.size());
  EXPECT_TRUE(result) << result.description() << bed.listing;
  return document;
}

TEST(TestListing, MarksGoOnAndOffForSupervisorsAlone) {
  SettingsBed bed;
  const Control& frame = bed.open().grdeinst[5];
  for (const bool marked : {false, true, false}) {
    mark(*bed.window, 5);
    EXPECT_EQ(frame.tag, marked ? "Prüfung" : "");
    EXPECT_EQ(frame.back, marked ? signal::marked : signal::open);
    bed.settings.supervisor = true;
  }
}

TEST(TestListing, AMarkComesOffALockedFrameButNoneGoesOn) {
  SettingsBed bed;
  bed.settings.supervisor = true;
  Einstellung1& window = bed.open();
  const Control& frame = window.grdeinst[5];
  mark(window, 5);
  bed.choose_level(4);
  for (const char* meanwhile : {"Prüfung", "", ""}) {
    EXPECT_EQ(frame.tag, meanwhile);
    EXPECT_TRUE(!frame.enabled && frame.back == signal::locked);
    mark(window, 5);
    EXPECT_FALSE(window.popPruefung.visible);
  }
  bed.choose_level(0);
  EXPECT_EQ(frame.back, signal::open);
}

TEST(TestListing, ListsMarkedGroupsWellFormed) {
  SettingsBed bed;
  bed.settings.supervisor = true;
  bed.texts.given[1063] = "moll <\"&'> größer \x01";
  Einstellung1& window = bed.open();
  EXPECT_FALSE(listing(bed).child("test").child("setting").first_child());
  EXPECT_THAT(bed.listing,
              testing::StartsWith("<?xml version=\"1.0\" encoding=\"ISO-8859-1\" ?>\n<test>"));

  for (const int frame : {5, 3, 1, 10}) mark(window, frame);
  window.click(window.tongeschl[1]);
  const auto document = listing(bed);
  const pugi::xml_node test = document.child("test");
  EXPECT_STREQ(test.child("basic").child_value("modul"), "vemo06");
  EXPECT_STREQ(test.child("basic").child_value("type"), "[154]");
  std::map<std::string, int> found;
  for (const pugi::xml_node control : test.child("setting").children("control")) {
    const std::string name = control.child_value("cname");
    const auto value = control.child("value");
    const bool list = name == "Combo_tonraum";
    EXPECT_EQ(control.child("index").text().as_int(-1), list ? -1 : found[name]++);
    if (name != "tongeschl" && !list) continue;
    EXPECT_STREQ(value.attribute(list ? "text" : "True").value(),
                 list ? "[682] [702] [695]" : "moll <\"&'> größer  ");
    EXPECT_EQ(value.text().as_int(-1), 1);
    ++found["named"];
  }
  EXPECT_EQ(found, (std::map<std::string, int>{
                       {"tongeschl", 3}, {"ivg", 3}, {"E_Oktav", 4}, {"named", 4}}));
}

TEST(TestListing, SaysInOneLineWhatWasDoneUntilTheNextAction) {
  SettingsBed bed;
  bed.settings.supervisor = true;
  bed.texts.given = {{1040, "%1 groups: %2"}, {1041, "1: %2"}, {1042, "none: %2"}};
  Einstellung1& window = bed.open();
  const auto told = [&](Control& button) {
    window.click(button);
    return window.status.text;
  };
  EXPECT_EQ(told(window.cmdOptionSave), "none: [1044]");
  mark(window, 5);
  mark(window, 10);
  EXPECT_EQ(window.status.text, "");
  EXPECT_EQ(told(window.cmdOptionSave), "1: [1044]") << "the level is no part of a test";
  mark(window, 1);
  EXPECT_EQ(told(window.cmdOptionSave), "2 groups: [1044]");
  bed.listing_fails = true;
  EXPECT_EQ(told(window.cmdOptionSave), "[1043]");
  EXPECT_EQ(told(window.cmdOptionRead), "[1045]") << "the fixed values meet no group";
  window.click(window.tongeschl[1]);
  EXPECT_EQ(window.status.text, "");
}

TEST(TestListing, ReadsValuesThatMeetAGroup) {
  SettingsBed bed;
  Einstellung1& window = bed.open();
  const TestListing::Target target{
      [&](OptionControl& option) { window.click(option); },
      [&](ListControl& list, int entry) { window.choose(list, entry); }};
  const auto frames = TestListing::read(
      window, {{"Tonart", 1}, {"Tempo", 4}, {"Tonraum", 9}, {"Ambitus", 2}}, target);
  EXPECT_EQ(frames,
            (std::set<Control*>{&window.grdeinst[0], &window.grdeinst[12], &window.grdeinst[1]}));
  EXPECT_EQ(bed.settings.Tonart, 1) << "chosen before its frame is locked";
  EXPECT_EQ(bed.settings.tempo, 4);
  EXPECT_EQ(window.grdeinst[0].back, RGB(255, 128, 128));
  EXPECT_TRUE(!window.grdeinst[0].enabled && window.grdeinst[5].enabled);
}

}  // namespace
}  // namespace tonarix
