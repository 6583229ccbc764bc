#pragma once

#include <cstddef>
#include <filesystem>
#include <pugixml.hpp>
#include <string>
#include <string_view>
#include <vector>

#include "protocol/document_writer.h"

namespace tonarix {

/// UTF-8 that an XML 1.0 reader accepts: whatever is no UTF-8 or no character of XML (control
/// characters but tab and line ends) becomes the replacement sign U+FFFD.
std::string xml_text(std::string_view text);

class ElementList;
class AttributeList;

/// One element of a document; a handle that is cheap to copy and lives as long as its document.
class Element {
 public:
  Element() = default;
  explicit Element(pugi::xml_node node) : node_(node) {}
  bool exists() const { return static_cast<bool>(node_); }
  /// Takes the element out of its document.
  void Remove() { node_.parent().remove_child(node_); }
  ElementList Children() const;
  AttributeList Attributes() const;

 private:
  pugi::xml_node node_;
};

/// The children of an element, or those of them that were found by name.
class ElementList {
 public:
  ElementList(pugi::xml_node parent, std::vector<pugi::xml_node> found)
      : parent_(parent), found_(std::move(found)) {}
  /// Adds a child; an empty value makes a plain element.
  Element Add(std::string_view value, const std::string& name);
  ElementList Find(const std::string& name) const;
  /// Counted from 1; any other index is RuntimeError 9.
  Element Item(std::size_t index) const;
  std::size_t Count() const { return found_.size(); }

 private:
  pugi::xml_node parent_;
  std::vector<pugi::xml_node> found_;
};

/// The attributes of an element.
class AttributeList {
 public:
  explicit AttributeList(pugi::xml_node owner) : owner_(owner) {}
  /// Sets an attribute, anew if it stands there already; gives the element back.
  Element Add(std::string_view value, const std::string& name);

 private:
  pugi::xml_node owner_;
};

/// Builds one XML document in memory and writes it to its file at the end.
class DocumentBuilder {
 public:
  explicit DocumentBuilder(DocumentWriter& writer) : writer_(writer) {}

  /// Begins a new document; one that was not finished is dropped.
  void CreateDocument(const std::string& root_name);
  void SetFileName(std::filesystem::path path) { path_ = std::move(path); }
  const std::filesystem::path& file_name() const { return path_; }
  bool has_document() const { return Root().exists(); }
  Element Root() const { return Element(document_.document_element()); }
  /// The document as text, UTF-8.
  std::string text() const;
  /// Writes the document to its file, whole or not at all. The document stays, so that another
  /// place can be tried.
  WriteResult Finish();

 private:
  DocumentWriter& writer_;
  pugi::xml_document document_;
  std::filesystem::path path_;
};

}  // namespace tonarix
