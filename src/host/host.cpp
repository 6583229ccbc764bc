#include "host/host.h"

#include <charconv>

#include "base/runtime_error.h"

namespace tonarix {

Variant Variant::strings(const std::vector<std::string>& texts) {
  return Array(texts.begin(), texts.end());
}

std::string Variant::text() const {
  if (const auto* text = std::get_if<std::string>(&value_)) return *text;
  if (const auto* flag = std::get_if<bool>(&value_)) return *flag ? "True" : "False";
  const auto* number = std::get_if<double>(&value_);
  if (!number) throw RuntimeError::type_mismatch("Variant");
  char buffer[32];
  const auto [end, error] = std::to_chars(buffer, buffer + sizeof buffer, *number);
  return {buffer, end};
}

double Variant::number() const {
  if (const auto* number = std::get_if<double>(&value_)) return *number;
  if (const auto* flag = std::get_if<bool>(&value_)) return *flag ? -1 : 0;
  if (const auto* text = std::get_if<std::string>(&value_)) {
    double number = 0;
    const char* last = text->data() + text->size();
    const auto [end, error] = std::from_chars(text->data(), last, number);
    if (error == std::errc{} && end == last) return number;
  }
  throw RuntimeError::type_mismatch("Variant");
}

const Variant::Array& Variant::array() const {
  const auto* array = std::get_if<Array>(&value_);
  if (!array) throw RuntimeError::type_mismatch("Variant");
  return *array;
}

const Variant& Variant::at(int index) const {
  const Array& elements = array();
  if (index < 0 || index >= static_cast<int>(elements.size())) {
    throw RuntimeError::index_out_of_range("Variant");
  }
  return elements[static_cast<std::size_t>(index)];
}

}  // namespace tonarix
