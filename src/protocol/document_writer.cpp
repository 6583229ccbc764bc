#include "protocol/document_writer.h"

#include <QSaveFile>
#include <cerrno>

#include "base/system_failure.h"

namespace tonarix {
namespace {

// A full disk takes part of a text without a word and refuses the rest. A buffer between would hide
// both, so each piece goes to the disk by itself.
bool write_all(QSaveFile& file, std::string_view content) {
  while (!content.empty()) {
    const qint64 count = file.write(content.data(), static_cast<qint64>(content.size()));
    if (count <= 0) return false;
    content.remove_prefix(static_cast<std::size_t>(count));
  }
  return true;
}

}  // namespace

WriteResult FileDocumentWriter::write(const std::filesystem::path& path, std::string_view content) {
  std::error_code error;
  std::filesystem::create_directories(path.parent_path(), error);
  if (error) return {false, error, error.message()};
  errno = 0;
  QSaveFile file(QString::fromStdString(path.string()));
  bool written = false;
  if (file.open(QIODevice::WriteOnly | QIODevice::Unbuffered)) {
    file.setPermissions(QFileDevice::ReadOwner | QFileDevice::WriteOwner);
    written = write_all(file, content) && file.commit();
  }
  if (written) return {true, {}, ""};
  return {false, last_system_error(), file.errorString().toStdString()};
}

}  // namespace tonarix
