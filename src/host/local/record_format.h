#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "host/host.h"

namespace tonarix {

/// A store record as readable JSON: {"record":["true","3"]}. What would not come back as it was
/// given, such as text that is not UTF-8, is RuntimeError 13.
std::string write_record(const Variant& data);

/// The data of such a text, or nothing when it is damaged.
std::optional<Variant> read_record(std::string_view json);

}  // namespace tonarix
