#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace tonarix {

/// The training of a kept exercise as it stood after its last task.
struct KeptTraining {
  int study = 0;                      ///< `Theoriewahl`
  int kind = 0;                       ///< `ueb_typ`
  bool continued = false;             ///< it goes on with the training that the store holds
  std::vector<std::string> settings;  ///< `EinstSicherung`
  std::vector<std::string> state;     ///< `AntwSicherung`
  /// The state that the store held when the exercise began, empty when it held none; nothing where
  /// the host did not tell.
  std::optional<std::vector<std::string>> stored_before;
  friend bool operator==(const KeptTraining&, const KeptTraining&) = default;
};

/// What outlives a program that ends without the way out of its exercise.
struct KeptExercise {
  std::string user;      ///< whose exercise it is
  int tasks = 0;         ///< tasks done to their end
  std::string file;      ///< name of the protocol's file
  std::string document;  ///< the protocol so far, whole; empty once it lies where it belongs
  std::optional<KeptTraining> training;
  std::string title = {};  ///< what the student knows it by: study, exercise and level
  friend bool operator==(const KeptExercise&, const KeptExercise&) = default;
};

/// Where exercises are kept while they run. One program has one of its own.
class KeptExercises {
 public:
  struct Left {
    std::string name;
    KeptExercise exercise;
  };

  virtual ~KeptExercises() = default;
  /// Keeps the running exercise of this program, in place of what was kept of it before; with a
  /// name one that was left behind. False when it could not, and then the former state stays.
  virtual bool keep(const KeptExercise& exercise, const std::string& name = {}) = 0;
  /// An orderly end needs nothing kept.
  virtual void use_up(const std::string& name = {}) = 0;
  /// The own exercise stays for the next start; what is kept from now on is another one.
  virtual void leave_behind() = 0;
  /// What programs that live no longer have left, newest first. Each is this program's alone from
  /// then on, until it is used up or this program ends too.
  virtual std::vector<Left> left_behind() = 0;
  /// What `left_behind` has found and could not read, each once: the file as it was set aside, or
  /// an empty path for an empty file, which is gone.
  std::vector<std::filesystem::path> take_damaged() { return std::exchange(damaged_, {}); }

 protected:
  std::vector<std::filesystem::path> damaged_;
};

/// The kept exercise around its protocol: one well-formed document, UTF-8, in three parts to be
/// written one after the other.
struct KeptText {
  std::string head;
  std::string_view body;  ///< of `exercise.document`
  std::string_view tail;
};
KeptText kept_text(const KeptExercise& exercise);
/// Reads such a document; nothing when it is damaged. The protocol comes back byte for byte.
std::optional<KeptExercise> read_kept(std::string_view text);

}  // namespace tonarix
