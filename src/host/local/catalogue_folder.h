#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "host/language.h"

namespace tonarix {

/// The language libraries as compiled catalogues in a folder, found at run time: a file
/// "tonarixlang.deutsch.qm" is the language with the suffix "deutsch", and its name is the
/// catalogue's own text 1000. Length and checksum stand in "tonarixlang.deutsch.qm.sum"; a file
/// that can't be read, or is not as they say, is no language.
LanguageLibraries catalogue_folder(const std::filesystem::path& folder);

/// True where there is a file that is called like a catalogue, whole or not.
bool holds_catalogues(const std::filesystem::path& folder);
/// Names of the files in the folder that should be catalogues and are not whole.
std::vector<std::string> damaged_catalogues(const std::filesystem::path& folder);

}  // namespace tonarix
