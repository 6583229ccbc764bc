#include "settings/saved_settings.h"

#include <charconv>

#include "base/arithmetic.h"
#include "base/runtime_error.h"
#include "music/degrees.h"

namespace tonarix {

namespace {

std::int16_t whole_number(const std::string& text) {
  std::int64_t value = 0;
  const char* end = text.data() + text.size();
  const auto [rest, error] = std::from_chars(text.data(), end, value);
  if (error == std::errc::result_out_of_range) throw RuntimeError::overflow("EinstSicherung");
  if (error != std::errc{} || rest != end) throw RuntimeError::type_mismatch("EinstSicherung");
  return to_int16(value);
}

void require(bool held) {
  if (!held) throw RuntimeError::index_out_of_range("EinstSicherung");
}

/// Choices that no window lets come together are refused, whoever wrote them.
void check_together(const Settings& settings) {
  require(choice_value(settings, Choice::Combo_tonraum) <
          range_entries(settings.E_Oktav, settings.ueb_typ));
  require(settings.ivg == 0 || settings.E_Oktav >= 2);
  if (settings.ton_st_wahl == 0) return;
  require(settings.invzahl == 1);
  require(settings.stufe_wahl <= std::ssize(degrees_above_keynote(settings.tongeschl)));
}

}  // namespace

std::vector<std::string> build_EinstSicherung(const Settings& settings, SettingsKind kind) {
  std::vector<std::string> record(static_cast<std::size_t>(kDegreeSlot + settings.ton_st_wahl));
  for (std::size_t slot = 0; slot < record.size(); ++slot) {
    const Choice choice = kSlots[slot].of(kind);
    if (choice != Choice::none) record[slot] = std::to_string(choice_value(settings, choice));
  }
  return record;
}

Settings read_EinstSicherung(const Settings& settings, SettingsKind kind,
                             const std::vector<std::string>& record) {
  // What this window does not store it has at its own start value, whatever an exam or another
  // window left there.
  Settings restored = settings;
  for (const SlotRow& row : kSlots) {
    for (const Choice choice : row.choice) {
      if (!has_slot(kind, choice)) set_default(restored, kind, choice);
    }
  }
  restored.ton_st_wahl = 0;
  require(record.size() >= kDegreeSlot && record.size() <= kSlots.size());
  for (std::size_t slot = 0; slot < record.size(); ++slot) {
    const Choice choice = kSlots[slot].of(kind);
    if (choice == Choice::none) {
      require(record[slot].empty());
      continue;
    }
    const std::int16_t value = whole_number(record[slot]);
    const ChoiceRow& row = choice_row(choice);
    require(value >= row.lowest && value <= row.highest);
    set_choice(restored, choice, value);
  }
  require(static_cast<int>(record.size()) == kDegreeSlot + restored.ton_st_wahl);
  check_together(restored);
  return restored;
}

}  // namespace tonarix
