#include "settings/settings_tables.h"

#include <algorithm>
#include <type_traits>

#include "base/runtime_error.h"

namespace tonarix {

namespace {

template <auto Field>
std::int16_t read(const Settings& settings) {
  return static_cast<std::int16_t>(settings.*Field);
}
template <auto Field>
void write(Settings& settings, std::int16_t value) {
  auto& field = settings.*Field;
  field = static_cast<std::remove_reference_t<decltype(field)>>(value);
}
template <auto Field>
constexpr ChoiceRow choice(Choice choice, std::int16_t lowest, std::int16_t highest) {
  return {choice, read<Field>, write<Field>, lowest, highest};
}

// The place of the range is kept as its lowest note; place and width move the highest with them.
std::int16_t range_place(const Settings& settings) {
  return static_cast<std::int16_t>((settings.tonraum_min - kLowestNote) / 12);
}
void move_range(Settings& settings, std::int16_t entry) {
  settings.tonraum_min = range_bottom(entry);
  settings.tonraum_max = range_top(entry, settings.E_Oktav);
}
void widen_range(Settings& settings, std::int16_t width) {
  settings.E_Oktav = width;
  move_range(settings, range_place(settings));
}
// An instrument is chosen for the voice that `kanal` names.
std::int16_t read_patch(const Settings& settings) {
  return settings.patch_ar.at(static_cast<std::size_t>(settings.kanal));
}
void write_patch(Settings& settings, std::int16_t program) {
  settings.patch_ar.at(static_cast<std::size_t>(settings.kanal)) = program;
}

// clang-format off
constexpr ChoiceRow kChoices[] = {
    // field                         choice                lowest highest
    choice<&Settings::abfrage>(      Choice::abfrage,      0, 1),
    choice<&Settings::tempo>(        Choice::tempo,        0, 9),
    choice<&Settings::invzahl>(      Choice::invzahl,      1, 4),
    {Choice::E_Oktav,       read<&Settings::E_Oktav>, widen_range, 0, 3},
    {Choice::Combo_tonraum, range_place,              move_range,  0, 3},
    choice<&Settings::grd_ton>(      Choice::grd_ton,      0, 1),
    choice<&Settings::Tonart>(       Choice::Tonart,       0, 1),
    choice<&Settings::tongeschl>(    Choice::tongeschl,    0, 2),
    choice<&Settings::frequenz>(     Choice::frequenz,     0, 1),
    choice<&Settings::ton_st_wahl>(  Choice::ton_st_wahl,  0, 1),
    choice<&Settings::ivg>(          Choice::ivg,          0, 2),
    choice<&Settings::abfr_iv>(      Choice::abfr_iv,      0, 1),
    choice<&Settings::stimm_g>(      Choice::stimm_g,      0, 2),
    choice<&Settings::aufg>(         Choice::aufg,         0, 1),
    choice<&Settings::genau>(        Choice::genau,        0, 4),
    choice<&Settings::stufe_wahl>(   Choice::stufe_wahl,   0, 10),
    choice<&Settings::Uebungsmodus>( Choice::Uebungsmodus, 0, 4),
    choice<&Settings::prfnr>(        Choice::prfnr,        1, 5),
    choice<&Settings::kanal>(        Choice::kanal,        0, 7),
    {Choice::patch,         read_patch,               write_patch, 0, 127},
    choice<&Settings::transpo>(      Choice::transpo,      0, 21),
    choice<&Settings::trans_dfg>(    Choice::trans_dfg,    0, 2),
    choice<&Settings::trans_iv>(     Choice::trans_iv,     0, 21),
};

struct ExamRow {
  std::int16_t tempo, invzahl, tongeschl, abfr_iv, aufg, genau;
};
constexpr std::int16_t n = kKeeps;
constexpr ExamRow kExams[kSettingsKinds][5] = {
    // tempo invzahl tongeschl abfr_iv aufg genau
    {{1, 1, 0, 0, n, n},   // einstellung1
     {2, 2, 1, 0, n, n},
     {1, 1, 0, 1, n, n},
     {2, 2, 1, 1, n, n},
     {3, 3, 2, 1, n, n}},
    {{1, n, 0, n, 0, 0},   // einstellung2
     {3, n, 1, n, 0, 1},
     {2, n, 0, n, 1, 1},
     {3, n, 1, n, 1, 2},
     {4, n, 2, n, 1, 3}},
    {{n, 1, 0, 0, n, n},   // einstellung1b
     {n, 2, 1, 0, n, n},
     {n, 1, 0, 1, n, n},
     {n, 2, 1, 1, n, n},
     {n, 3, 2, 1, n, n}},
};

constexpr DefaultRow kDefaults[] = {
    // choice              einstellung1, 2, 1b; theory starts without what an exercise by ear left
    {Choice::Uebungsmodus, {0, 0, 0}},
    {Choice::prfnr,        {1, 1, 1}},
    {Choice::abfrage,      {0, 0, 0}},
    {Choice::tempo,        {1, 1, 1}},
    {Choice::Tonart,       {0, 0, 1}},
    {Choice::invzahl,      {1, 1, 1}},
    {Choice::tongeschl,    {0, 0, 0}},
    {Choice::grd_ton,      {1, 1, 1}},
    {Choice::ton_st_wahl,  {0, 0, 0}},
    {Choice::stufe_wahl,   {0, 0, 0}},
    {Choice::abfr_iv,      {0, 1, 1}},
    {Choice::ivg,          {0, 0, 0}},
    {Choice::E_Oktav,      {0, 0, 0}},
    {Choice::frequenz,     {n, 0, 0}},
    {Choice::stimm_g,      {0, 0, 0}},
    {Choice::aufg,         {n, 0, n}},
    {Choice::genau,        {n, 0, n}},
    {Choice::kanal,        {0, 0, n}},
    {Choice::trans_dfg,    {0, 0, 0}},
    {Choice::trans_iv,     {0, 0, 0}},
};
// clang-format on

/// The rows of the exam tables as lists of choices, without the untouched ones.
struct ExamList {
  std::array<ExamChoice, 8> choices{};
  std::size_t count = 0;
  constexpr void add(Choice choice, std::int16_t value) {
    if (value != kKeeps) choices[count++] = {choice, value};
  }
};
constexpr auto exam_lists() {
  std::array<std::array<ExamList, 5>, kSettingsKinds> lists{};
  for (std::size_t kind = 0; kind < lists.size(); ++kind) {
    for (std::size_t row = 0; row < 5; ++row) {
      const ExamRow& exam = kExams[kind][row];
      ExamList& list = lists[kind][row];
      list.add(Choice::abfrage, 1);
      list.add(Choice::ton_st_wahl, 0);
      list.add(Choice::tempo, exam.tempo);
      list.add(Choice::invzahl, exam.invzahl);
      list.add(Choice::tongeschl, exam.tongeschl);
      list.add(Choice::abfr_iv, exam.abfr_iv);
      list.add(Choice::aufg, exam.aufg);
      list.add(Choice::genau, exam.genau);
    }
  }
  return lists;
}
constexpr auto kExamLists = exam_lists();

}  // namespace

// clang-format off
constexpr std::array<SlotRow, kDegreeSlot + 1> kSlots{{
    // slot einstellung1           einstellung2           einstellung1b
    { 0, {Choice::abfrage,       Choice::abfrage,       Choice::abfrage}},
    { 1, {Choice::tempo,         Choice::tempo,         Choice::none}},
    { 2, {Choice::invzahl,       Choice::E_Oktav,       Choice::invzahl}},
    { 3, {Choice::E_Oktav,       Choice::Combo_tonraum, Choice::E_Oktav}},
    { 4, {Choice::Combo_tonraum, Choice::grd_ton,       Choice::Combo_tonraum}},
    { 5, {Choice::grd_ton,       Choice::Tonart,        Choice::none}},
    { 6, {Choice::Tonart,        Choice::tongeschl,     Choice::none}},
    { 7, {Choice::tongeschl,     Choice::frequenz,      Choice::tongeschl}},
    { 8, {Choice::frequenz,      Choice::none,          Choice::none}},
    { 9, {Choice::none,          Choice::ton_st_wahl,   Choice::none}},
    {10, {Choice::ton_st_wahl,   Choice::ivg,           Choice::none}},
    {11, {Choice::ivg,           Choice::stimm_g,       Choice::ivg}},
    {12, {Choice::abfr_iv,       Choice::aufg,          Choice::none}},
    {13, {Choice::stimm_g,       Choice::genau,         Choice::none}},
    {14, {Choice::stufe_wahl,    Choice::stufe_wahl,    Choice::none}},
}};
// clang-format on
static_assert(std::all_of(kSlots.begin(), kSlots.end(), [](const SlotRow& row) {
  return &row == &kSlots[static_cast<std::size_t>(row.slot)];
}));

const ChoiceRow& choice_row(Choice choice) {
  const auto* found = std::find_if(std::begin(kChoices), std::end(kChoices),
                                   [&](const ChoiceRow& row) { return row.choice == choice; });
  if (found == std::end(kChoices)) throw RuntimeError::index_out_of_range("choice_row");
  return *found;
}

std::int16_t choice_value(const Settings& settings, Choice choice) {
  return choice_row(choice).read(settings);
}

void set_choice(Settings& settings, Choice choice, std::int16_t value) {
  choice_row(choice).write(settings, value);
}

std::array<std::int16_t, 10> tempo_beats() {
  std::array<std::int16_t, 10> beats{};
  std::transform(kTempi.begin(), kTempi.end(), beats.begin(),
                 [](std::string_view text) { return beat_ms(text); });
  return beats;
}

std::span<const ExamChoice> exam_choices(SettingsKind kind, int prfnr) {
  if (prfnr < 1 || prfnr > 5) throw RuntimeError::index_out_of_range("exam_choices");
  const ExamList& list =
      kExamLists[static_cast<std::size_t>(kind)][static_cast<std::size_t>(prfnr - 1)];
  return {list.choices.data(), list.count};
}

void set_defaults(Settings& settings, SettingsKind kind) {
  for (const DefaultRow& row : kDefaults) set_default(settings, kind, row.choice);
}

void set_default(Settings& settings, SettingsKind kind, Choice choice) {
  const auto* row = std::ranges::find(kDefaults, choice, &DefaultRow::choice);
  if (row == std::end(kDefaults)) return;
  const std::int16_t value = row->value[static_cast<std::size_t>(kind)];
  if (value != kKeeps) set_choice(settings, choice, value);
}

bool has_slot(SettingsKind kind, Choice choice) {
  return std::ranges::any_of(kSlots, [&](const SlotRow& row) { return row.of(kind) == choice; });
}

}  // namespace tonarix
