#include "config/settings_tables.h"

#include <algorithm>

#include "base/runtime_error.h"

namespace tonarix {

namespace {

// clang-format off
constexpr ChoiceRow kChoices[] = {
    // choice               field                   lowest highest
    {Choice::abfrage,       &Settings::abfrage,     0, 1},
    {Choice::tempo,         &Settings::tempo,       0, 9},
    {Choice::invzahl,       &Settings::invzahl,     1, 4},
    {Choice::E_Oktav,       &Settings::E_Oktav,     0, 3},
    {Choice::Combo_tonraum, nullptr,                0, 3},
    {Choice::grd_ton,       &Settings::grd_ton,     0, 1},
    {Choice::Tonart,        &Settings::Tonart,      0, 1},
    {Choice::tongeschl,     &Settings::tongeschl,   0, 2},
    {Choice::frequenz,      &Settings::frequenz,    0, 1},
    {Choice::ton_st_wahl,   &Settings::ton_st_wahl, 0, 1},
    {Choice::ivg,           &Settings::ivg,         0, 2},
    {Choice::abfr_iv,       &Settings::abfr_iv,     0, 1},
    {Choice::stimm_g,       &Settings::stimm_g,     0, 2},
    {Choice::aufg,          &Settings::aufg,        0, 1},
    {Choice::genau,         &Settings::genau,       0, 4},
    {Choice::stufe_wahl,    &Settings::stufe_wahl,  0, 10},
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
    // field                  einstellung1, 2, 1b
    {&Settings::Uebungsmodus, {0, 0, 0}},
    {&Settings::prfnr,        {1, 1, 1}},
    {&Settings::abfrage,      {0, 0, 0}},
    {&Settings::tempo,        {1, 1, n}},
    {&Settings::Tonart,       {0, 0, 1}},
    {&Settings::invzahl,      {1, 1, 1}},
    {&Settings::tongeschl,    {0, 0, 0}},
    {&Settings::grd_ton,      {1, 1, n}},
    {&Settings::ton_st_wahl,  {0, 0, 0}},
    {&Settings::stufe_wahl,   {0, 0, 0}},
    {&Settings::abfr_iv,      {0, n, 1}},
    {&Settings::ivg,          {0, 0, 0}},
    {&Settings::E_Oktav,      {0, 0, 0}},
    {&Settings::frequenz,     {n, 0, n}},
    {&Settings::stimm_g,      {0, 0, n}},
    {&Settings::aufg,         {n, 0, n}},
    {&Settings::genau,        {n, 0, n}},
    {&Settings::kanal,        {0, 0, n}},
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
  const ChoiceRow& row = choice_row(choice);
  if (row.field) return settings.*row.field;
  return static_cast<std::int16_t>((settings.tonraum_min - kLowestNote) / 12);
}

void set_choice(Settings& settings, Choice choice, std::int16_t value) {
  const ChoiceRow& row = choice_row(choice);
  if (row.field) settings.*row.field = value;
  if (choice == Choice::Combo_tonraum) settings.tonraum_min = range_bottom(value);
  if (choice == Choice::Combo_tonraum || choice == Choice::E_Oktav) {
    settings.tonraum_max = range_top((settings.tonraum_min - kLowestNote) / 12, settings.E_Oktav);
  }
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
  for (const DefaultRow& row : kDefaults) {
    const std::int16_t value = row.value[static_cast<std::size_t>(kind)];
    if (value != kKeeps) settings.*row.field = value;
  }
}

}  // namespace tonarix
