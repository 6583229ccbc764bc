#pragma once

#include "base/window.h"
#include "support/fake_dialogs.h"
#include "support/key_texts.h"
#include "support/virtual_scheduler.h"

namespace tonarix {

/// What every window needs, on virtual time.
struct WindowBed {
  VirtualScheduler scheduler;
  KeyTexts texts;
  RecordingDialogs dialogs{scheduler};
  WindowList windows{scheduler};
  WindowContext common{scheduler, windows, texts, dialogs};
};

}  // namespace tonarix
