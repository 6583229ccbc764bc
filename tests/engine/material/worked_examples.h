#pragma once

#include <fstream>
#include <sstream>
#include <stdexcept>
#include <string>
#include <vector>

namespace tonarix {

/// The rows of worked_examples.txt that begin with `kind`, each a stream of the numbers behind it.
inline std::vector<std::istringstream> worked_examples(const std::string& kind) {
  std::ifstream file(WORKED_EXAMPLES);
  std::vector<std::istringstream> rows;
  for (std::string line; std::getline(file, line);) {
    std::istringstream row(line);
    std::string first;
    if (row >> first && first == kind) rows.push_back(std::move(row));
  }
  if (rows.empty()) throw std::runtime_error("No worked examples of " + kind);
  return rows;
}

}  // namespace tonarix
