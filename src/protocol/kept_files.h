#pragma once

#include <filesystem>
#include <map>
#include <string>

#include "protocol/file_in_making.h"
#include "protocol/kept_exercise.h"

namespace tonarix {

/// Kept exercises as files of a folder, for their owner alone: "kept-" and the program's number.
/// Each is locked by the program that it belongs to. They are not forced onto the disk: they
/// outlive the program, and a machine that fails may lose the last seconds.
class KeptFiles final : public KeptExercises {
 public:
  explicit KeptFiles(std::filesystem::path folder) : folder_(std::move(folder)) {}

  bool keep(const KeptExercise& exercise, const std::string& name) override;
  void use_up(const std::string& name) override;
  void leave_behind() override;
  std::vector<Left> left_behind() override;

 private:
  std::filesystem::path folder_;
  std::string own_;  ///< name of the running exercise's file, empty while there is none
  std::map<std::string, Descriptor> held_;
};

}  // namespace tonarix
