#include "engine/next_task.h"

#include <string>

#include "base/arithmetic.h"

namespace tonarix {

namespace {

constexpr double kAutomaticWait = 1800;  // ms

}  // namespace

NextTask::NextTask(Scheduler& scheduler, ExerciseControls& controls, std::function<void()> go_on)
    : controls_(controls), WahlAutomat_(scheduler, std::move(go_on)) {
  WahlAutomat_.set_interval(kAutomaticWait);
}

void NextTask::name(const Texts& texts, int tasks) {
  controls_.CmdNextAufg.text = controls_.LbNextAufg.text =
      texts.Wort(129_text) + " " + std::to_string(tasks + 1);
}

void NextTask::offer(bool automatic) {
  controls_.LbNextAufg.visible = automatic;
  controls_.CmdNextAufg.visible = controls_.CmdNextAufg.enabled = !automatic;
  if (automatic) WahlAutomat_.enable();
}

void NextTask::withdraw() {
  WahlAutomat_.disable();
  controls_.LbNextAufg.visible = controls_.CmdNextAufg.visible = false;
}

std::int16_t NextTask::pause_ms() const {
  return round_to_int16(WahlAutomat_.interval());
}

}  // namespace tonarix
