#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <tuple>

#include "flow/forming_bed.h"

namespace tonarix {
namespace {

// By task, keynote along, detuning, tuning and range.
TEST(FormingFlow, TheTonesGoOverTheWireAsTuned) {
  for (int number = 0; number < 2 * 2 * 2 * 2 * 2; ++number) {
    SCOPED_TRACE(number);
    const int aufg = number % 2, grd_ton = number / 2 % 2, frequenz = number / 4 % 2;
    const int stimm_g = number / 8 % 2 * 2, low_range = number / 16;
    FakeHost host;
    FormingBed bed(host, static_cast<std::uint64_t>(number));
    Einstellung2& settings = bed.open_settings();
    settings.click(settings.aufg[aufg]);
    settings.click(settings.grd_ton[grd_ton]);
    settings.click(settings.frequenz[frequenz]);
    settings.click(settings.stimm_g[stimm_g]);
    settings.choose(settings.Combo_tonraum, 1 - low_range);
    settings.choose(settings.temp_Combo, 9);
    settings.slide(settings.HSliderVolume, number % 3 == 0 ? 40 : 90);
    const int velocity = number % 3 == 0 ? 40 : 90, along = std::max(velocity - 20, 30);
    Arbeitsblatt2& window = bed.open_exercise();
    bed.hear_task();

    const auto& row = bed.module.row().inv_ton;
    const double beat = bed.beat();
    const int keynote = row[0].chr % 12 + (low_range ? 36 : 48);
    std::vector<RecordingDevices::Note> told;
    const auto add = [&](double at, int channel, int note) {
      told.push_back({at, channel, note, channel == 1 ? along : velocity});
    };
    const auto pass = [&](double at, int tones) {
      if (grd_ton == 0 && tones == 3) add(at, 1, keynote);
      for (int i = 0; i < tones; ++i) {
        add(at + i * beat, i + 2, row[static_cast<std::size_t>(i)].chr);
      }
      if (grd_ton == 0 && tones == 2) add(at, 1, keynote);
    };
    const auto compare = [&](std::vector<RecordingDevices::Note> played) {
      const auto order = [](const auto& one, const auto& two) {
        return std::tuple(one.at_ms, one.channel) < std::tuple(two.at_ms, two.channel);
      };
      std::ranges::sort(told, order);
      std::ranges::sort(played, order);
      ASSERT_EQ(played.size(), told.size());
      for (std::size_t i = 0; i < told.size(); ++i) {
        EXPECT_NEAR(played[i].at_ms, told[i].at_ms, 2);
        EXPECT_EQ((std::array{played[i].channel, played[i].note, played[i].velocity}),
                  (std::array{told[i].channel, told[i].note, told[i].velocity}));
      }
    };
    const double first = bed.devices.notes().at(0).at_ms;
    if (aufg == 0) pass(first, 3);
    const double second = aufg == 0 ? first + 3 * beat + 800 + 50 + 100 : first;
    pass(second, 2);
    add(second + 2 * beat + 200, 4, row[2].chr);
    compare(bed.devices.notes());

    const int detuning = bed.bends(2, 0).back() - 64 - bed.deviation(0);
    EXPECT_LE(std::abs(detuning), 16 * frequenz);
    EXPECT_EQ(bed.bends(3, 0).back(), 64 + detuning + bed.deviation(1));
    EXPECT_EQ(bed.bends(1, 0).empty(), grd_ton == 1);
    EXPECT_TRUE(grd_ton == 1 || bed.bends(1, 0).back() == bed.bends(2, 0).back());
    EXPECT_EQ(bed.bends(4, 0).back(), window.sldPitch.value);
    EXPECT_TRUE(aufg == 1 || std::ranges::count(bed.bends(4, 0), bed.target()) > 0);

    const std::size_t heard = bed.devices.notes().size();
    window.wieder_click();
    bed.hear_task();
    std::vector<RecordingDevices::Note> repeated = bed.devices.notes();
    repeated.erase(repeated.begin(), repeated.begin() + static_cast<long>(heard));
    told.clear();
    const double once_more = repeated.at(0).at_ms;
    if (aufg == 0) pass(once_more, 3);
    const double shorter =
        aufg == 0 ? once_more + std::floor(2.7 * beat) + 800 + 50 + 100 : once_more;
    pass(shorter, 2);
    add(shorter + 2 * beat + 200, 4, row[2].chr);
    compare(repeated);

    // The tone follows the hand, and only while it sounds.
    const std::size_t from = bed.wire();
    const int middle = window.sldPitch.value;
    for (const int step : {1, 2, -3}) window.sldPitch_change(middle + step);
    EXPECT_EQ(bed.bends(4, from), (std::vector{middle + 1, middle + 2, middle - 3}));
    const int formed = bed.target() + 3;
    bed.answer(window, 3);
    const auto& ended = bed.devices.log;
    const auto off =
        std::ranges::find_if(ended.begin() + static_cast<long>(from), ended.end(),
                             [](const auto& entry) { return entry.message.status == 0x84; });
    ASSERT_NE(off, ended.end());
    EXPECT_EQ(off->message.data1, row[2].chr);

    const std::size_t control = bed.wire();
    window.wieder2_click();
    bed.hear_control();
    told.clear();
    const auto again = [&] {
      std::vector<RecordingDevices::Note> notes = bed.devices.notes();
      notes.erase(notes.begin(),
                  notes.begin() + static_cast<long>(notes.size()) - 2 * (grd_ton == 0 ? 4 : 3));
      return notes;
    }();
    const double start = again.front().at_ms;
    pass(start, 3);
    pass(start + 2.9 * beat + 800 + 50 + 100, 3);
    compare(again);
    EXPECT_EQ(bed.bends(4, control), (std::vector{formed, bed.target()}));
    EXPECT_EQ(window.sldPitch.value, bed.target());

    for (const auto& [channel, patch] : {std::pair{2, 0}, {3, 0}, {1, 1}, {4, 2}}) {
      EXPECT_EQ(bed.devices.program(channel),
                bed.module.settings().patch_ar[static_cast<std::size_t>(patch)]);
    }
    bed.leave(window);
    for (const int channel : {1, 2, 3, 4}) {
      EXPECT_EQ(bed.devices.program(channel),
                bed.module.settings().patch_ar[static_cast<std::size_t>(channel)]);
    }
  }
}

}  // namespace
}  // namespace tonarix
