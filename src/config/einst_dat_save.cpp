#include "config/einst_dat_save.h"

namespace tonarix {

namespace {

std::string trimmed(const std::string& text) {
  const std::size_t first = text.find_first_not_of(' ');
  if (first == std::string::npos) return {};
  return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

}  // namespace

void PairList::add(std::string_view label, std::string_view value) {
  pairs_.emplace_back(label);
  pairs_.emplace_back(value);
}

std::vector<std::string> PairList::finish() const {
  std::vector<std::string> array = pairs_;
  array[0] = std::to_string(array.size() - 1);
  for (std::size_t value = 2; value < array.size(); value += 2)
    array[value] = trimmed(array[value]);
  return array;
}

std::string frequency_value(std::string caption) {
  const std::size_t stroke = caption.find('\'');
  if (stroke != std::string::npos) caption[stroke] = '1';
  return caption;
}

}  // namespace tonarix
