#pragma once

#include <functional>
#include <map>
#include <set>
#include <string>

#include "base/window.h"

namespace tonarix {

/// The tag of a frame that belongs to a test.
inline constexpr char kExamMark[] = "Prüfung";

/// The supervisor's view of one window's controls: what a test consists of, and values put in.
class TestListing {
 public:
  struct Head {
    std::string modul;
    std::string type;
    std::string description;
  };
  using ValueSet = std::map<std::string, int>;

  /// The values that `cmdOptionRead` applies, by tag.
  static const ValueSet& fixed_values();

  /// The document of all options and lists with a tag inside marked frames. Plain ASCII, other
  /// characters as references, so that it is well-formed on any stream.
  static std::string write(const Window& window, const Head& head);
  /// The marked frames that the document tells of.
  static int listed_groups(const Window& window);

  /// How the window takes a choice that was read, its rules included.
  struct Target {
    std::function<void(OptionControl&)> set_option;
    std::function<void(ListControl&, int entry)> set_list;
  };
  /// Sets every control whose tag is in the value set and locks its frame. The frames, each once.
  static std::set<Control*> read(const Window& window, const ValueSet& values,
                                 const Target& target);
};

}  // namespace tonarix
