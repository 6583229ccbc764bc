#pragma once

namespace tonarix {

/// Lets a screen reader ask piano keyboards: one is a button that plays the focused field and is
/// called like it; its parts are the keys by rising pitch.
void install_piano_accessibility();

}  // namespace tonarix
