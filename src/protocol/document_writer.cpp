#include "protocol/document_writer.h"

#include <cerrno>
#include <optional>

#include "base/system_failure.h"
#include "protocol/file_in_making.h"

namespace tonarix {

WriteResult FileDocumentWriter::write(const std::filesystem::path& path, std::string_view content) {
  std::error_code error;
  std::filesystem::create_directories(path.parent_path(), error);
  if (error) return {false, error, error.message(), {}};
  errno = 0;
  FileInMaking file(path.parent_path());
  std::optional<std::filesystem::path> place;
  if (file.open() && file.write(content) && file.sync()) place = file.place_beside(path);
  if (place) return {true, {}, "", *place};
  const std::error_code why = last_system_error();
  return {false, why, why.message(), {}};
}

}  // namespace tonarix
