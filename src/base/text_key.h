#pragma once

#include <cstdint>

namespace tonarix {

/// Number of a text in the language catalogues. Written 629_text, so that every key in use is found
/// by a search.
struct TextKey {
  std::int32_t number = 0;
  friend constexpr bool operator==(const TextKey&, const TextKey&) = default;
};

constexpr TextKey operator""_text(unsigned long long number) {
  return {static_cast<std::int32_t>(number)};
}

}  // namespace tonarix
