#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace tonarix {

/// Builds `EinstDatSave`: element 0 the highest index in use, then label and value in turn.
class PairList {
 public:
  void add(std::string_view label, std::string_view value);
  /// The array; its values are trimmed of blanks.
  std::vector<std::string> finish() const;

 private:
  std::vector<std::string> pairs_{""};
};

/// The caption of `frequenz` with its first "'" as "1": the fixed pitch reads a1.
std::string frequency_value(std::string caption);

}  // namespace tonarix
