#pragma once

#include <filesystem>

#include "host/language.h"

namespace tonarix {

/// The language libraries as compiled catalogues in a folder, found at run time: a file
/// "tonarixlang.deutsch.qm" is the language with the suffix "deutsch", and its name is the
/// catalogue's own text 1000. A file that can't be read is no language.
LanguageLibraries catalogue_folder(const std::filesystem::path& folder);

}  // namespace tonarix
