#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace tonarix {

/// What the command line asks for.
struct Options {
  enum class Task { open_module, list_midi, show_version, show_help };
  Task task = Task::open_module;
  std::filesystem::path data;           ///< embedded host's folder; empty: the usual one is meant
  std::optional<std::string> user;      ///< "Name;Vorname;Matrikel-Nr."; none: not logged on
  int role = 2;                         ///< 2 ordinary user, 4 supervisor
  std::optional<std::string> language;  ///< none: the usual one
  std::optional<int> midi;              ///< device number
  std::vector<std::string> parameters;  ///< the host's own "/P=" list; not used
};

/// A command line that can't be understood; what() is one line for the user.
struct OptionError {
  std::string line;
};

/// Reads the arguments behind the program's name.
std::optional<OptionError> parse_options(const std::vector<std::string>& arguments,
                                         Options& options);

/// The folder `tonarix` among the user's data: $XDG_DATA_HOME, else ~/.local/share; none without
/// either. A relative path counts as none: records must not lie wherever the program was started.
std::optional<std::filesystem::path> usual_data_folder();

std::string help_text();

}  // namespace tonarix
