#include "settings/exercises.h"

#include <algorithm>

#include "base/runtime_error.h"

namespace tonarix {

const ExerciseRow* find_exercise(Study study, ExerciseKind kind) {
  const auto* found = std::ranges::find_if(
      kExercises, [&](const ExerciseRow& row) { return row.study == study && row.kind == kind; });
  return found == kExercises.end() ? nullptr : found;
}

const ExerciseRow& exercise_row(const Settings& settings) {
  const ExerciseRow* row = find_exercise(settings.Theoriewahl, settings.ueb_typ);
  if (row == nullptr) throw RuntimeError::index_out_of_range("ueb_typ");
  return *row;
}

std::string record_key(char record, const Settings& settings) {
  return record + std::string(exercise_row(settings).record);
}

}  // namespace tonarix
