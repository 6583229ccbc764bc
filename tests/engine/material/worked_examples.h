#pragma once

#include <fstream>
#include <iterator>
#include <sstream>
#include <stdexcept>
#include <string>
#include <vector>

namespace tonarix {

/// The rows of worked_examples.txt that begin with `kind`, the numbers behind it.
inline std::vector<std::vector<double>> worked_examples(const std::string& kind) {
  std::ifstream file(WORKED_EXAMPLES);
  std::vector<std::vector<double>> rows;
  for (std::string line; std::getline(file, line);) {
    std::istringstream row(line);
    std::string first;
    if (row >> first && first == kind)
      rows.emplace_back(std::istream_iterator<double>(row), std::istream_iterator<double>());
  }
  if (rows.empty()) throw std::runtime_error("No worked examples of " + kind);
  return rows;
}

}  // namespace tonarix
