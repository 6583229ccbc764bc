#include "settings/saved_training.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdlib>
#include <limits>
#include <optional>
#include <type_traits>

#include "settings/offered_intervals.h"
#include "statistics/statistic_row.h"

namespace tonarix {
namespace {

constexpr std::size_t kTextsPerRow = 6;
constexpr std::size_t kOtherTexts = 3;
constexpr float kLowestValue = -16;  // of one answer: right at once, without repeats, in time

template <typename Number>
std::string text_of(Number number) {
  std::array<char, 64> buffer;
  const auto end = [&] {
    if constexpr (std::is_floating_point_v<Number>) {
      return std::to_chars(buffer.begin(), buffer.end(), number, std::chars_format::fixed).ptr;
    } else {
      return std::to_chars(buffer.begin(), buffer.end(), number).ptr;
    }
  }();
  return {buffer.begin(), end};
}

template <typename Number>
std::optional<Number> number_in(const std::string& text) {
  Number number{};
  const char* end = text.data() + text.size();
  const auto read = std::from_chars(text.data(), end, number);
  if (read.ec != std::errc{} || read.ptr != end) return std::nullopt;
  if constexpr (std::is_floating_point_v<Number>) {
    if (!std::isfinite(number)) return std::nullopt;
  }
  return number;
}

// Takes the texts of a record one after the other and remembers whether all were numbers.
class RecordReader {
 public:
  explicit RecordReader(const std::vector<std::string>& record) : record_(record) {}

  template <typename Number>
  Number next() {
    const std::optional<Number> number = number_in<Number>(record_[place_++]);
    all_numbers_ = all_numbers_ && number;
    return number.value_or(Number{});
  }
  bool all_numbers() const { return all_numbers_; }

 private:
  const std::vector<std::string>& record_;
  std::size_t place_ = 1;
  bool all_numbers_ = true;
};

bool same_intervals(const SavedTraining& training, const IntervalList& offered) {
  std::vector<std::int16_t> own(offered.values().begin(), offered.values().end());
  std::vector<std::int16_t> saved;
  for (const SavedTraining::Row& row : training.rows) saved.push_back(row.box.value);
  std::ranges::sort(own);
  std::ranges::sort(saved);
  return own == saved;
}

bool is_count(float value) {
  return value >= 0 && value <= 32767 && value == std::floor(value);
}

// Each answer adds between -16 and 0; a training that goes on has something left to ask, has not
// reached its ceiling, and its drawing list, where the lowest weight has one entry, fits 16 bits.
bool can_go_on(const SavedTraining& training) {
  std::int64_t sum = 0;
  std::int64_t all = 0;
  std::int64_t lowest = 1;
  for (const SavedTraining::Row& row : training.rows) {
    const auto [answers, values, confusions] = row.statistics;
    if (!is_count(answers) || !is_count(confusions)) return false;
    if (values > 0 || values < kLowestValue * answers) return false;
    sum += std::max<std::int16_t>(row.box.weight, 0);
    all += row.box.weight;
    lowest = std::min<std::int64_t>(lowest, row.box.weight);
  }
  const auto rows = static_cast<std::int64_t>(training.rows.size());
  if (all + rows * (1 - lowest) > std::numeric_limits<std::int16_t>::max()) return false;
  return sum >= 1 && sum < weight_ceiling(static_cast<int>(rows)) && training.zaehler >= 0 &&
         training.whlgzaehler >= 0;
}

}  // namespace

std::vector<std::string> to_record(const SavedTraining& training, const Settings& settings) {
  std::vector<std::string> record{kValidState};
  record.reserve(training.rows.size() * kTextsPerRow + kOtherTexts);
  for (const auto& row : training.rows) record.push_back(text_of(row.box.value));
  for (const auto& row : training.rows) record.push_back(text_of(row.box.weight));
  for (const auto& row : training.rows) {
    record.push_back(
        text_of(static_cast<std::int16_t>(statistic_row(row.box.value, settings.abfr_iv))));
    for (const float value : row.statistics) record.push_back(text_of(value));
  }
  record.push_back(text_of(training.zaehler));
  record.push_back(text_of(training.whlgzaehler));
  return record;
}

std::variant<SavedTraining, SavedTrainingFault> from_record(const std::vector<std::string>& record,
                                                            const Settings& settings,
                                                            const Key& key) {
  if (!says_valid(record)) return SavedTrainingFault::not_valid;
  const IntervalList offered = offered_intervals(settings, key);
  SavedTraining training;
  training.rows.resize(offered.values().size());
  if (record.size() != training.rows.size() * kTextsPerRow + kOtherTexts) {
    return SavedTrainingFault::wrong_length;
  }

  RecordReader reader(record);
  bool own_rows = true;
  for (auto& row : training.rows) row.box.value = reader.next<std::int16_t>();
  for (auto& row : training.rows) row.box.weight = reader.next<std::int16_t>();
  for (auto& row : training.rows) {
    const auto place = reader.next<std::int16_t>();
    own_rows = own_rows && StatisticRow{place} == statistic_row(row.box.value, settings.abfr_iv);
    for (float& value : row.statistics) value = reader.next<float>();
  }
  training.zaehler = reader.next<std::int16_t>();
  training.whlgzaehler = reader.next<std::int16_t>();

  if (!reader.all_numbers()) return SavedTrainingFault::not_a_number;
  if (!own_rows || !same_intervals(training, offered)) return SavedTrainingFault::foreign_row;
  if (!can_go_on(training)) return SavedTrainingFault::impossible;
  return training;
}

}  // namespace tonarix
