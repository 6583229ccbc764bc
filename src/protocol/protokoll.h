#pragma once

#include <cstdint>
#include <exception>
#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/wall_clock.h"
#include "host/server.h"
#include "protocol/document.h"

namespace tonarix {

/// What the record of a task tells about its row.
struct LessonFacts {
  struct LessonInterval {
    std::string stufen_iv;    ///< the interval by degrees
    std::string direktes_iv;  ///< the interval from tone to tone
  };
  std::int16_t interval = 1;           ///< running number of the task
  bool tones_alone = false;            ///< writing opens no answer with its task
  std::vector<std::int16_t> qz_tones;  ///< place of each tone on the line of fifths
  std::vector<LessonInterval> intervals;
  /// Bend steps of each tone against the equal pitch; empty where everything stands at it.
  std::vector<std::int16_t> pb_abweichung;
  /// Index of the interval that is asked first, "interval" of the first answer.
  std::optional<std::int16_t> iv_nr;
};

/// Where the finished document went. Exactly one of three: written as wanted, `fell_back`,
/// `failed`.
struct FinishResult {
  std::filesystem::path path;    ///< where it lies, if it does
  std::filesystem::path wanted;  ///< where it should lie
  std::error_code error;         ///< why it could not be written there, if it couldn't
  bool fell_back = false;        ///< it lies in the data folder instead
  bool failed = false;           ///< it lies nowhere yet; finish_again() tries once more
};

struct ProtocolFolders {
  std::filesystem::path protocols;  ///< the usual place, see protocol_folder()
  std::filesystem::path data;       ///< takes the document when the usual place can't
};

/// The environment's "temp", else the system's folder for temporary files.
std::filesystem::path protocol_folder();

/// The record of one exercise: its settings, and every task with its answers. In memory from the
/// acceptance of the settings to the end of the exercise, then one XML file. Apart from
/// ProtokollAufgabe, failures surface in the caller as RuntimeError.
class Protokoll {
 public:
  using Logger = std::function<void(std::string_view tag, std::exception_ptr error)>;

  Protokoll(Server& server, const WallClock& clock, DocumentWriter& writer, ProtocolFolders folders,
            Logger logger);

  /// Begins the document of an exercise. Its file is named after the second; another one of the
  /// same second, of whichever program, gets a number behind the name.
  void ProtokollNeu();
  /// Begins the record of a task and, except in writing, its first answer with number 1. A failure
  /// is logged under "ProtokollAufgabe." and the exercise goes on.
  void ProtokollAufgabe(const LessonFacts& facts);
  /// Begins an answer. `lfd` counts through the whole task; `iv_nr` is the interval it is for.
  void ProtokollAntwort(std::int16_t lfd, std::optional<std::int16_t> iv_nr = std::nullopt);
  /// Answer time in seconds, repeats asked for, and in building the bend steps still missing.
  void ProtokollMesswerte(double seconds, double repeats,
                          std::optional<double> pitch_gap = std::nullopt);
  /// One fact more of the current answer. Numbers have a decimal point whatever the language.
  void ProtokollProperty(const std::string& key, std::string_view value);
  void ProtokollProperty(const std::string& key, double value);
  void ProtokollProperty(const std::string& key, float value);
  void ProtokollProperty(const std::string& key, int value);
  /// Adds what is known at the end and writes the file. An answer that was never given is left out;
  /// without any answer the lessons are left out too. `pairs` is EinstDatSave: element 0 is passed
  /// over, then label and value in turn.
  FinishResult ProtokollSchluss(const std::string& exercise_caption,
                                const std::string& exercise_name,
                                const std::vector<std::string>& pairs);
  /// The document as ProtokollSchluss would write it now. To be asked between two tasks.
  std::string so_far(const std::string& exercise_caption, const std::string& exercise_name,
                     const std::vector<std::string>& pairs);
  /// The name of its file.
  const std::filesystem::path& file_name() const { return file_; }
  /// Tries to write the finished document again, for a user who has made room meanwhile; one that
  /// lies somewhere is not written a second time. A place that does not take it is logged under
  /// "ProtokollSchluss." with the system's words, and so is the data folder's file.
  FinishResult finish_again();

 private:
  void record_lesson(const LessonFacts& facts);
  void drop_unanswered();
  /// What is known of the exercise as a whole, in place of what was told before.
  void tell_exercise(const std::string& caption, const std::string& name,
                     const std::vector<std::string>& pairs);
  WriteResult write_to(const std::filesystem::path& path);
  void log(const std::string& line) const;
  Element section(const std::string& name) const;
  Element current_answer() const;

  Server& server_;
  const WallClock& clock_;
  ProtocolFolders folders_;
  Logger logger_;
  DocumentBuilder document_;
  std::filesystem::path file_;
  std::optional<FinishResult> finished_;  ///< where the document lies
  Element lesson_;
  Element answer_;
  bool answer_given_ = false;      ///< something was told of the current answer
  bool any_answer_given_ = false;  ///< in the whole exercise
};

}  // namespace tonarix
