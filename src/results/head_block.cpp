#include "results/head_block.h"

#include <algorithm>
#include <charconv>
#include <string_view>

#include "base/module_texts.h"
#include "settings/exercises.h"

namespace tonarix {

namespace {

using namespace std::string_literals;

constexpr std::array<TextKey, 2> kStudies{724_text, 725_text};

/// The labels of the settings as the protocol has them, and the words a student reads instead:
/// those of the settings windows.
struct SettingLabel {
  std::string_view label;
  TextKey word;
};
constexpr std::array<SettingLabel, 20> kSettingLabels{
    {{"Übungsmodus", text::level_title},    {"Nr.", text::sheet_exam_number},
     {"Klangfarbe", text::instrument},      {"Klangfarben", text::sheet_instruments},
     {"Tempo", text::tempo_title},          {"Frequenz", text::frequency_title},
     {"Abfolge", text::order_title},        {"Iv-Anzahl", text::count_title},
     {"Iv-Größe", text::size_title},        {"Tonraum", text::range_title},
     {"Oktavbereich", text::octave_range},  {"Stimmung", 635_text},
     {"Grdton zus.", text::sheet_keynote},  {"Tongeschlecht", text::mode_title},
     {"Tonart", text::key_title},           {"Aufgabe", text::task_title},
     {"Genauigkeit", text::accuracy_title}, {"Iv-Bestimmung", text::naming_title},
     {"Stufen", text::sheet_degrees},       {"Stufe Ton 2", text::degree_of_tone_2}}};

std::string shown_label(const std::string& label, const Texts& texts) {
  const auto* found = std::find_if(kSettingLabels.begin(), kSettingLabels.end(),
                                   [&](const SettingLabel& row) { return row.label == label; });
  return found == kSettingLabels.end() ? label : texts.Wort(found->word);
}

/// Line ends and other control characters become blanks, so that a strange name stays on its line.
std::string one_line(std::string text) {
  for (char& letter : text) {
    const auto byte = static_cast<unsigned char>(letter);
    if (byte < 0x20 || byte == 0x7F) letter = ' ';
  }
  return text;
}

std::string trimmed(const std::string& text, const char* blanks = " ") {
  const auto first = text.find_first_not_of(blanks);
  if (first == std::string::npos) return {};
  return text.substr(first, text.find_last_not_of(blanks) - first + 1);
}

std::string bare_label(const std::string& label) {
  const auto last = label.find_last_not_of(" :");
  return last == std::string::npos ? std::string() : trimmed(label.substr(0, last + 1));
}

int whole_number(const std::string& text) {
  int number = 0;
  std::from_chars(text.data(), text.data() + text.size(), number);
  return number;
}

}  // namespace

std::array<SheetLine, 6> head_lines(const HeadFacts& facts, const Settings& settings,
                                    const Texts& texts) {
  const std::string colon = texts.Wort(700_text);
  const auto line = [&](const std::string& label, const std::string& value, bool visible = true) {
    return SheetLine{" " + label, " " + one_line(value), visible};
  };
  const auto personal = [&](const std::string& label, std::size_t field) {
    return line(label, field < facts.user.size() && facts.user_known ? facts.user[field] : "",
                facts.user_known);
  };
  return {line(texts.Wort(189_text) + colon, date_and_time(facts.now)),
          line(texts.Wort(586_text) + colon, texts.Wort(exercise_row(settings).caption)),
          line(texts.Wort(109_text) + colon, facts.computer_user),
          personal(texts.Wort(text::sheet_last_name), 0),
          personal(texts.Wort(text::sheet_first_name), 1),
          personal(texts.Wort(text::sheet_student_number), 2)};
}

std::string head_title(const Settings& settings, const Texts& texts) {
  return texts.Wort(kStudies.at(static_cast<std::size_t>(settings.Theoriewahl))) +
         texts.Wort(700_text) + texts.Wort(exercise_row(settings).title);
}

std::vector<SheetLine> setting_lines(const std::vector<std::string>& pairs, const Texts& texts) {
  std::vector<SheetLine> lines;
  const auto last_label = static_cast<std::ptrdiff_t>(pairs.size()) - 1;
  for (std::ptrdiff_t i = 1; i < last_label; i += 2) {
    const std::string label = bare_label(pairs[static_cast<std::size_t>(i)]);
    std::string value = trimmed(one_line(pairs[static_cast<std::size_t>(i + 1)]));
    if (label == "Klangfarben") {
      std::string joined;
      for (int left = whole_number(value); left > 0 && i + 2 < last_label; --left) {
        i += 2;
        if (!joined.empty()) joined += "; ";
        joined += bare_label(pairs[static_cast<std::size_t>(i)]) + ": " +
                  trimmed(one_line(pairs[static_cast<std::size_t>(i + 1)]));
      }
      value = joined;
    }
    if (value.empty()) continue;
    if (label == "Grdton zus.") value.insert(0, texts.Wort(text::sheet_keynote_added) + " ");
    lines.push_back({shown_label(label, texts) + ": ", value, true});
  }
  return lines;
}

std::string level_text(const std::vector<std::string>& pairs) {
  return pairs.size() > 2 ? trimmed(pairs[2]) : std::string();
}

}  // namespace tonarix
