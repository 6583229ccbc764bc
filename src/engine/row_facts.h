#pragma once

#include "engine/exercise_context.h"
#include "protocol/protokoll.h"

namespace tonarix {

/// What the protocol tells of the row that was drawn: its tones and intervals. `first_asked` is the
/// index of the first interval that is asked.
LessonFacts row_facts(const ExerciseContext& context, int first_asked);

}  // namespace tonarix
