#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <system_error>

namespace tonarix {

struct WriteResult {
  bool written = false;
  std::error_code error;       ///< why it was not written
  std::string reason;          ///< the same in the system's words, for the log
  std::filesystem::path path;  ///< where it lies, if it was written
};

/// Puts a finished document into a new file, beside whatever bears the name already.
class DocumentWriter {
 public:
  virtual ~DocumentWriter() = default;
  virtual WriteResult write(const std::filesystem::path& path, std::string_view content) = 0;
};

/// Writes whole or not at all: to a temporary file in the same folder, flushed to the disk, then
/// named, so that whoever looks for the file never meets half of it. No file is ever replaced: a
/// name that is taken gets a number behind it, "EXR260101120000-2.xml". Makes the folder if it is
/// missing. The file belongs to the user alone, as temporary folders are often shared.
class FileDocumentWriter final : public DocumentWriter {
 public:
  WriteResult write(const std::filesystem::path& path, std::string_view content) override;
};

}  // namespace tonarix
