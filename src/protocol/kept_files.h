#pragma once

#include <filesystem>
#include <map>
#include <optional>
#include <string>

#include "protocol/file_in_making.h"
#include "protocol/kept_exercise.h"

namespace tonarix {

/// Kept exercises as files of a folder, for their owner alone: "kept-" and the program's number.
/// Each is locked by the program that it belongs to, and on the disk before it takes the place of
/// an older one. One that can't be read is set aside as "damaged-kept-".
class KeptFiles final : public KeptExercises {
 public:
  explicit KeptFiles(std::filesystem::path folder) : folder_(std::move(folder)) {}

  bool keep(const KeptExercise& exercise, const std::string& name) override;
  void use_up(const std::string& name) override;
  void leave_behind() override;
  std::vector<Left> left_behind() override;

 private:
  /// The exercise in a file that is locked; one that can't be read goes out of the way.
  std::optional<KeptExercise> read(const std::filesystem::path& path, const Descriptor& file);
  void set_aside(const std::filesystem::path& path);

  std::filesystem::path folder_;
  std::string own_;  ///< name of the running exercise's file, empty while there is none
  std::map<std::string, Descriptor> held_;
};

}  // namespace tonarix
