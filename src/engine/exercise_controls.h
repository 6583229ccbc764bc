#pragma once

#include "base/controls.h"

namespace tonarix {

// The controls of the exercise windows, under their given names, by who needs them.

/// What every exercise window has.
struct ExerciseControls {
  explicit ExerciseControls(Window& window)
      : CmdNextAufg(window, "CmdNextAufg"),
        LbNextAufg(window, "LbNextAufg"),
        zurueck(window, "zurueck"),
        cmdHilfe(window, "cmdHilfe"),
        cmd_test_ein(window, "cmd_test_ein"),
        cmd_test_aus(window, "cmd_test_aus"),
        ergebnis_anz(window, "ergebnis_anz"),
        matboxanz(window, "matboxanz"),
        lab_aufgaben(window, "lab_aufgaben"),
        stop_uhr(window, "stop_uhr"),
        Uhr(window, "Uhr"),
        zaehler(window, "zaehler"),
        true_false(window, "true_false"),
        WaitMeldung(window, "WaitMeldung"),
        question(window, "question"),
        hint(window, "hint") {}

  Control CmdNextAufg;  ///< next task, order by hand
  Control LbNextAufg;   ///< shown while the automatic order waits
  Control zurueck;
  Control cmdHilfe;
  Control cmd_test_ein;
  Control cmd_test_aus;
  ControlArray<Control, 0, 2> ergebnis_anz;  ///< training status, solved, too difficult
  ControlArray<Control, 0, 15> matboxanz;    ///< percentage bar; element 15 carries the value
  Control lab_aufgaben;                      ///< tasks left
  Control stop_uhr;                          ///< time left
  Control Uhr;
  ControlArray<Control, 0, 1> zaehler;  ///< right, wrong
  ControlArray<Control, 0, 1> true_false;
  Control WaitMeldung;
  Control question;  ///< what to do now: the one question of the window
  Control hint;      ///< how to do it, or what comes
};

/// A counter is read with its label.
inline void count_by_name(Control& counter, const Control& label) {
  counter.accessible_name = label.text + ": " + counter.text;
}

/// What a window has whose rows sound.
struct SoundControls {
  explicit SoundControls(Window& window)
      : wieder(window, "wieder"),
        wieder2(window, "wieder2"),
        whlgzaehler(window, "whlgzaehler"),
        repeat_label(window, "repeat_label"),
        sounding(window, "sounding") {}

  Control wieder;       ///< repeat during the task
  Control wieder2;      ///< repeat after its end
  Control whlgzaehler;  ///< repeats
  Control repeat_label;
  ControlArray<Control, 0, 5> sounding;  ///< the tone that sounds now, by its place in the row
};

/// The keynote check, where a window has one.
struct KeynoteControls {
  explicit KeynoteControls(Window& window)
      : grundton(window, "grundton"),
        GrdtonWhlg(window, "GrdtonWhlg"),
        keynote_label(window, "keynote_label") {}

  Control grundton;
  Control GrdtonWhlg;  ///< keynote checks
  Control keynote_label;
};

/// Answer fields with their numbers, as many as a window's row can have intervals.
struct PlaceControls {
  explicit PlaceControls(Window& window)
      : ergebnis(window, "ergebnis"), nriv(window, "nriv"), tries(window, "tries") {}

  ControlArray<Control, 0, 4> ergebnis;  ///< answer fields
  ControlArray<Control, 0, 4> nriv;      ///< number of the interval being asked
  ControlArray<Control, 0, 4> tries;     ///< how many tries are left, as a number
};

}  // namespace tonarix
