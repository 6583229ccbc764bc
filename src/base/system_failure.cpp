#include "base/system_failure.h"

#include <cerrno>

#include "base/filled_text.h"
#include "base/module_texts.h"

namespace tonarix {

std::string failure_words(const Texts& texts, std::error_code error) {
  switch (error.value()) {
    case ENOSPC:
    case EDQUOT:
      return texts.Wort(text::no_space_left);
    case EACCES:
    case EPERM:
      return texts.Wort(text::no_permission);
    case ENOENT:
    case ENOTDIR:
      return texts.Wort(text::folder_missing);
    case EROFS:
      return texts.Wort(text::disk_read_only);
    default:
      return filled(texts.Wort(text::failure_number), {std::to_string(error.value())});
  }
}

std::error_code last_system_error() {
  return {errno == 0 ? EIO : errno, std::generic_category()};
}

}  // namespace tonarix
