#pragma once

#include <string>
#include <system_error>

#include "base/texts.h"

namespace tonarix {

/// Why a file or folder could not be used, a sentence of the catalogue: no space, no permission, no
/// folder, a protected disk; any other error by its number.
std::string failure_words(const Texts& texts, std::error_code error);

/// The error of the system call that failed just now, after `errno` was set to 0; an input or
/// output error where the call itself did not fail.
std::error_code last_system_error();

}  // namespace tonarix
