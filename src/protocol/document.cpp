#include "protocol/document.h"

#include <array>
#include <sstream>

#include "base/runtime_error.h"

namespace tonarix {

namespace {

constexpr std::string_view kReplacement = "\xEF\xBF\xBD";

/// Length of the XML character that the text begins with, 0 when it begins with none.
std::size_t character_length(std::string_view text) {
  const auto byte = [&](std::size_t i) -> unsigned {
    return i < text.size() ? static_cast<unsigned char>(text[i]) : 0U;
  };
  const unsigned lead = byte(0);
  if (lead < 0x80) return lead >= 0x20 || lead == '\t' || lead == '\n' || lead == '\r' ? 1 : 0;

  struct Form {
    unsigned mask, mark, smallest;
  };
  static constexpr std::array<Form, 3> kForms{
      {{0xE0, 0xC0, 0x80}, {0xF0, 0xE0, 0x800}, {0xF8, 0xF0, 0x10000}}};
  for (std::size_t length = 2; length <= 4; ++length) {
    const Form& form = kForms[length - 2];
    if ((lead & form.mask) != form.mark) continue;
    unsigned code = lead & ~form.mask;
    for (std::size_t i = 1; i < length; ++i) {
      if ((byte(i) & 0xC0) != 0x80) return 0;
      code = code << 6 | (byte(i) & 0x3F);
    }
    const bool surrogate = code >= 0xD800 && code <= 0xDFFF;
    const bool allowed =
        code >= form.smallest && code <= 0x10FFFF && !surrogate && code != 0xFFFE && code != 0xFFFF;
    return allowed ? length : 0;
  }
  return 0;
}

}  // namespace

std::string xml_text(std::string_view text) {
  std::string clean;
  clean.reserve(text.size());
  while (!text.empty()) {
    const std::size_t length = character_length(text);
    clean += length > 0 ? text.substr(0, length) : kReplacement;
    text.remove_prefix(length > 0 ? length : 1);
  }
  return clean;
}

ElementList Element::Children() const {
  std::vector<pugi::xml_node> all;
  for (const pugi::xml_node child : node_.children()) {
    if (child.type() == pugi::node_element) all.push_back(child);
  }
  return {node_, std::move(all)};
}

AttributeList Element::Attributes() const {
  return AttributeList(node_);
}

Element ElementList::Add(std::string_view value, const std::string& name) {
  pugi::xml_node child = parent_.append_child(name.c_str());
  if (!child) throw RuntimeError(RuntimeError::kOther, "No place for " + name, "ElementList.Add");
  if (!value.empty()) child.text().set(xml_text(value).c_str());
  found_.push_back(child);
  return Element(child);
}

ElementList ElementList::Find(const std::string& name) const {
  std::vector<pugi::xml_node> named;
  for (const pugi::xml_node child : found_) {
    if (child.name() == name) named.push_back(child);
  }
  return {parent_, std::move(named)};
}

Element ElementList::Item(std::size_t index) const {
  if (index < 1 || index > found_.size()) {
    throw RuntimeError::index_out_of_range("ElementList.Item");
  }
  return Element(found_[index - 1]);
}

Element AttributeList::Add(std::string_view value, const std::string& name) {
  pugi::xml_attribute attribute = owner_.attribute(name.c_str());
  if (!attribute) attribute = owner_.append_attribute(name.c_str());
  if (!attribute.set_value(xml_text(value).c_str())) {
    throw RuntimeError(RuntimeError::kOther, "No place for " + name, "AttributeList.Add");
  }
  return Element(owner_);
}

void DocumentBuilder::CreateDocument(const std::string& root_name) {
  document_.reset();
  pugi::xml_node declaration = document_.append_child(pugi::node_declaration);
  declaration.append_attribute("version") = "1.0";
  declaration.append_attribute("encoding") = "UTF-8";
  document_.append_child(root_name.c_str());
}

std::string DocumentBuilder::text() const {
  std::ostringstream out;
  document_.save(out, "  ", pugi::format_default, pugi::encoding_utf8);
  return std::move(out).str();
}

WriteResult DocumentBuilder::Finish() {
  return writer_.write(path_, text());
}

}  // namespace tonarix
