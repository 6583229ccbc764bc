#pragma once

#include <pugixml.hpp>

#include <algorithm>
#include <cmath>
#include <map>
#include <string>
#include <vector>

#include "app/module.h"
#include "config/einstellung1.h"
#include "exercises/determine/arbeitsblatt1.h"
#include "results/result_window.h"
#include "support/fake_dialogs.h"
#include "support/fake_document_writer.h"
#include "support/fake_host.h"
#include "support/fake_kept_exercises.h"
#include "support/key_language.h"
#include "support/recording_midi.h"
#include "support/recording_printer.h"
#include "support/standing_clock.h"
#include "support/virtual_scheduler.h"

namespace tonarix {

/// The whole module between fakes, in virtual time. Several processes can follow each other on one
/// host.
class FlowBed {
 public:
  explicit FlowBed(FakeHost& host, std::uint64_t seed = 1) : factory(host.factory()), chance(seed) {
    open();
  }
  /// With files, real ones.
  FlowBed(FakeHost& host, KeptExercises& shared, DocumentWriter& files, ProtocolFolders places)
      : kept(shared),
        writer(files),
        folders(std::move(places)),
        factory(host.factory()),
        chance(1) {
    open();
  }
  /// With kept exercises that outlive it.
  FlowBed(FakeHost& host, KeptExercises& shared)
      : kept(shared), factory(host.factory()), chance(1) {
    open();
  }
  /// With texts of its own, closed until `open()`.
  FlowBed(FakeHost& host, LanguageLibraries texts, std::filesystem::path data = {})
      : program_data(std::move(data)),
        factory(host.factory()),
        chance(1),
        language(std::move(texts)) {}
  void open() {
    module.open();
    scheduler.advance_ms(10);
  }

  /// The newest window, which is of this kind.
  template <typename Kind>
  Kind& newest() {
    return dynamic_cast<Kind&>(*windows.at(windows.count() - 1));
  }
  SelectionWindow& selection() { return newest<SelectionWindow>(); }
  Einstellung1& settings() { return newest<Einstellung1>(); }
  Arbeitsblatt1& exercise() { return newest<Arbeitsblatt1>(); }
  ResultWindow& result() { return newest<ResultWindow>(); }

  Einstellung1& open_settings() {
    selection().cmdOk_click();
    scheduler.advance_ms(50);
    return settings();
  }
  Arbeitsblatt1& open_exercise() {
    Einstellung1& window = settings();
    window.click(window.cmdOk);
    scheduler.advance_ms(1);
    return exercise();
  }

  /// The quickest way to the first row of a level, heard to its end.
  Arbeitsblatt1& begin(int level = 0) {
    Einstellung1& window = open_settings();
    window.choose(window.temp_Combo, 9);
    window.choose(window.training_Combo, level);
    Arbeitsblatt1& exercise = open_exercise();
    hear_row();
    return exercise;
  }

  /// Beat in milliseconds and the time a row takes with its pauses and fades.
  double beat() const {
    return module.settings().tempo_ms[static_cast<std::size_t>(module.settings().tempo)];
  }
  int tones() const { return module.settings().invzahl + 2; }
  void hear_row() { scheduler.advance_ms(beat() * tones() + 500); }

  /// The code that is right for the interval being asked.
  std::int16_t right_code(int iv_nr) const {
    return static_cast<std::int16_t>(std::abs(module.row().iv[static_cast<std::size_t>(iv_nr)]));
  }
  /// Any offered code that is wrong and still open.
  std::int16_t wrong_code(const Arbeitsblatt1& window, int iv_nr) {
    const std::string panel = window.by_degree() ? "st_int_" : "intervall_";
    std::vector<std::int16_t> open;
    for (std::int16_t code = 1; code <= 21; ++code) {
      const Control* button = window.find(panel + std::to_string(code));
      if (button && button->open() && code != right_code(iv_nr)) open.push_back(code);
    }
    return open.at(static_cast<std::size_t>(draw(student, static_cast<int>(open.size()))));
  }
  static void press(Arbeitsblatt1& window, std::int16_t code) {
    window.by_degree() ? window.st_int_click(code) : window.intervall_click(code);
  }
  /// Index of the interval being asked, -1 when none is.
  static int asked(const Arbeitsblatt1& window) {
    const auto number = std::ranges::find_if(window.nriv, &Control::visible);
    return number == window.nriv.end() ? -1 : *number->index();
  }

  /// Answers the whole row rightly, each interval after `seconds`, wrong first with the chance
  /// `wrong`.
  void answer_row(Arbeitsblatt1& window, double seconds = 1, double wrong = 0) {
    for (int iv_nr = asked(window); iv_nr >= 0; iv_nr = asked(window)) {
      scheduler.advance_ms(seconds * 1000);
      if (student.Rnd() < wrong) press(window, wrong_code(window, iv_nr));
      press(window, right_code(iv_nr));
      if (asked(window) == iv_nr) throw std::logic_error("The right answer was not taken");
    }
  }
  /// Hears the row once more and goes on by the order in force.
  void next_task(Arbeitsblatt1& window) {
    window.wieder2_click();
    hear_row();
    window.CmdNextAufg_click();
    if (module.settings().abfrage == 1) scheduler.advance_ms(1800);
    hear_row();
  }
  /// Leaves by `zurueck`, past the result sheet after a while; what was written.
  pugi::xml_node leave(ExerciseWindow& window) {
    window.zurueck_click();
    scheduler.advance_ms(400);
    work = result().content().work.line(", ");
    result().cmdOk_click();
    scheduler.advance_ms(450);
    return written();
  }
  pugi::xml_node written() {
    document.load_string(documents.written.back().content.c_str());
    return document.child("exercise");
  }
  /// What an exercise tells of the answers of each task.
  using Facts = std::map<std::string, std::string>;
  static std::vector<std::vector<Facts>> lessons(const pugi::xml_node& exercise) {
    std::vector<std::vector<Facts>> found;
    for (const pugi::xml_node lesson : exercise.child("lessons").children("lesson")) {
      found.emplace_back();
      for (const pugi::xml_node answer : lesson.child("answers").children("answer")) {
        Facts& facts = found.back().emplace_back();
        facts["lfd"] = answer.attribute("lfd").value();
        for (const pugi::xml_node property : answer.children("property")) {
          facts[property.attribute("key").value()] = property.attribute("value").value();
        }
      }
    }
    return found;
  }

  FakeKeptExercises own_kept;
  KeptExercises& kept = own_kept;
  FakeDocumentWriter documents;
  DocumentWriter& writer = documents;
  ProtocolFolders folders{"/protocols", "/data"};
  std::filesystem::path program_data;
  Server::HostFactory factory;
  VirtualScheduler scheduler;
  StandingClock clock;
  SeededChance chance;
  SeededChance student{99};
  WindowList windows{scheduler};
  Language language{key_languages()};
  RecordingDialogs dialogs{scheduler};
  RecordingDevices devices{scheduler};
  RecordingPrinter printer;
  std::string work;  ///< as the last sheet told it
  bool ended = false;
  pugi::xml_document document;
  Module module{outside()};

 private:
  Outside outside() {
    return {.scheduler = scheduler,
            .windows = windows,
            .language = language,
            .clock = clock,
            .chance = chance,
            .dialogs = dialogs,
            .devices = devices,
            .documents = writer,
            .kept = kept,
            .printer = printer,
            .create_host = factory,
            .folders = folders,
            .program_data = program_data,
            .application = {"vemo06", "Tonarix 2000"},
            .computer_user = "ada (desk)",
            .screen_width = 1280,
            .sound_problem = {},
            .put_listing = {},
            .quit = [this] { ended = true; }};
  }
};

}  // namespace tonarix
