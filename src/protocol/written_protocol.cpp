#include "protocol/written_protocol.h"

#include <algorithm>
#include <pugixml.hpp>
#include <sstream>
#include <string>
#include <vector>

#include "protocol/file_in_making.h"

namespace tonarix {

namespace {

struct Told {
  std::string exercise;              ///< user, kind and settings
  std::vector<std::string> lessons;  ///< with all their answers and times
};

std::string text_of(pugi::xml_node node) {
  std::ostringstream text;
  node.print(text);
  return std::move(text).str();
}

std::optional<Told> told_in(std::string_view text) {
  pugi::xml_document document;
  if (!document.load_buffer(text.data(), text.size())) return {};
  const pugi::xml_node root = document.child("exercise");
  pugi::xml_node properties = root.child("properties");
  properties.remove_child("timestamp");  // of the writing
  Told told{text_of(properties) + text_of(root.child("settings")), {}};
  for (const pugi::xml_node lesson : root.child("lessons").children()) {
    told.lessons.push_back(text_of(lesson));
  }
  return told;
}

bool begins_with(const Told& written, const Told& kept) {
  return written.exercise == kept.exercise &&
         std::ranges::mismatch(kept.lessons, written.lessons).in1 == kept.lessons.end();
}

}  // namespace

std::optional<std::filesystem::path> written_in(const std::filesystem::path& folder,
                                                const std::filesystem::path& file,
                                                std::string_view document) {
  const std::optional<Told> kept = told_in(document);
  if (!kept) return {};
  const std::string stem = file.stem();
  std::error_code error;
  for (std::filesystem::directory_iterator entry(folder, error), end; !error && entry != end;
       entry.increment(error)) {
    const std::filesystem::path& path = entry->path();
    if (!path.filename().string().starts_with(stem) || path.extension() != file.extension())
      continue;
    const std::optional<Told> written = told_in(content_of(path).value_or(""));
    if (written && begins_with(*written, *kept)) return path;
  }
  return {};
}

}  // namespace tonarix
