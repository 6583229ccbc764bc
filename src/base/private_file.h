#pragma once

#include <filesystem>
#include <system_error>

namespace tonarix {

/// Makes the folder where it is missing, for its owner alone, whatever the umask. A folder that
/// stands already keeps its rights.
std::error_code make_private_folder(const std::filesystem::path& folder);

/// Makes an empty file where there is none and closes it to all but its owner, whatever the umask.
/// What can't be made or belongs to somebody else stays as it is: who opens it will see.
void make_private_file(const std::filesystem::path& file);

}  // namespace tonarix
