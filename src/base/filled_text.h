#pragma once

#include <initializer_list>
#include <string>

namespace tonarix {

/// A text of the catalogue with its places filled: "%1" by the first value, "%2" by the second. A
/// value is taken as it stands, also where it holds such a sign itself.
std::string filled(const std::string& text, std::initializer_list<std::string> values);

}  // namespace tonarix
