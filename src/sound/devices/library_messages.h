#pragma once

#include <iosfwd>
#include <string>
#include <vector>

namespace tonarix {

/// While it lives, the sound libraries write nothing to the console; what the synthesiser's library
/// complains of is kept. Made and destroyed on the main thread.
class LibraryMessages {
 public:
  LibraryMessages();
  ~LibraryMessages();
  LibraryMessages(const LibraryMessages&) = delete;
  LibraryMessages& operator=(const LibraryMessages&) = delete;

  /// The complaints so far, joined by "; ".
  std::string joined() const;

 private:
  static void take(int level, const char* text, void* self);

  std::vector<std::string> complaints_;
  std::streambuf* console_;
};

}  // namespace tonarix
