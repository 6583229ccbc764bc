#include "config/test_listing.h"

#include <algorithm>
#include <cstdint>
#include <pugixml.hpp>
#include <sstream>

#include "base/colour.h"

namespace tonarix {

namespace {

constexpr Colour kReadLock = RGB(255, 128, 128);

/// What XML can't hold becomes a blank.
std::string printable(std::string text) {
  std::ranges::replace_if(
      text, [](char c) { return c >= 0 && c < ' ' && c != '\n' && c != '\t'; }, ' ');
  return text;
}

pugi::xml_node add(pugi::xml_node parent, const char* name, const std::string& text = {}) {
  pugi::xml_node child = parent.append_child(name);
  if (!text.empty()) child.text().set(printable(text).c_str());
  return child;
}

const ListControl::Item* chosen_entry(const ListControl& list) {
  if (list.selected < 0 || list.selected >= static_cast<int>(list.items.size())) return nullptr;
  return &list.items[static_cast<std::size_t>(list.selected)];
}

/// True for an option or a list that belongs to a marked group.
bool listed(const Control& control) {
  if (control.tag.empty() || !control.container || control.container->tag != kExamMark) {
    return false;
  }
  return dynamic_cast<const OptionControl*>(&control) || dynamic_cast<const ListControl*>(&control);
}

/// The option of the array that is set.
const OptionControl* chosen_option(const Window& window, const std::string& name) {
  for (const Control* control : window.controls()) {
    const auto* option = dynamic_cast<const OptionControl*>(control);
    if (option && option->name() == name && option->value) return option;
  }
  return nullptr;
}

void add_control(pugi::xml_node setting, const Control& control, const std::string& text,
                 const char* attribute, const std::string& value, const std::string& number) {
  pugi::xml_node node = add(setting, "control");
  node.append_attribute("title") = printable(control.tag).c_str();
  node.append_attribute("text") = printable(text).c_str();
  add(node, "cname", control.name());
  if (control.index()) add(node, "index", std::to_string(*control.index()));
  add(node, "value", number).append_attribute(attribute) = printable(value).c_str();
}

void add_option(pugi::xml_node setting, const Window& window, const OptionControl& option) {
  const OptionControl* chosen = chosen_option(window, option.name());
  add_control(setting, option, option.text, "True", chosen ? chosen->text : "",
              chosen && chosen->index() ? std::to_string(*chosen->index()) : "");
}

void add_list(pugi::xml_node setting, const ListControl& list) {
  const ListControl::Item* entry = chosen_entry(list);
  if (!entry) return;
  const bool plain = entry->item_data == ListControl::kPlainEntry;
  add_control(setting, list, list.accessible_name, "text", entry->text,
              std::to_string(plain ? list.selected : entry->item_data));
}

/// The document as text, every character beyond ASCII as a reference.
std::string as_ascii(const pugi::xml_document& document) {
  std::ostringstream out;
  document.save(
      out, "  ",
      pugi::format_indent | pugi::format_no_declaration | pugi::format_no_empty_element_tags,
      pugi::encoding_utf8);
  std::string ascii = "<?xml version=\"1.0\" encoding=\"ISO-8859-1\" ?>\n";
  for (const wchar_t character : pugi::as_wide(out.str())) {
    if (character < 0x7F) {
      ascii += static_cast<char>(character);
    } else {
      ascii += "&#" + std::to_string(static_cast<std::uint32_t>(character)) + ";";
    }
  }
  return ascii;
}

}  // namespace

const TestListing::ValueSet& TestListing::fixed_values() {
  static const ValueSet values{
      {"ArpTempo", 3}, {"Richtung", 1}, {"Ambitus", 2}, {"IntervallAnzahl", 2}};
  return values;
}

std::string TestListing::write(const Window& window, const Head& head) {
  pugi::xml_document document;
  const pugi::xml_node test = add(document, "test");
  const pugi::xml_node basic = add(test, "basic");
  add(basic, "modul", head.modul);
  add(basic, "type", head.type);
  add(basic, "description", head.description);
  pugi::xml_node setting = add(test, "setting");
  for (const Control* control : window.controls()) {
    if (!listed(*control)) continue;
    if (const auto* option = dynamic_cast<const OptionControl*>(control)) {
      add_option(setting, window, *option);
    } else if (const auto* list = dynamic_cast<const ListControl*>(control)) {
      add_list(setting, *list);
    }
  }
  if (!setting.first_child()) setting.text().set("\n  ");
  return as_ascii(document);
}

int TestListing::listed_groups(const Window& window) {
  std::set<const Control*> groups;
  for (const Control* control : window.controls()) {
    if (listed(*control)) groups.insert(control->container);
  }
  return static_cast<int>(groups.size());
}

std::set<Control*> TestListing::read(const Window& window, const ValueSet& values,
                                     const Target& target) {
  std::set<Control*> frames;
  for (Control* control : window.controls()) {
    const auto found = control->tag.empty() ? values.end() : values.find(control->tag);
    if (found == values.end()) continue;
    if (control->container) frames.insert(control->container);
    if (auto* option = dynamic_cast<OptionControl*>(control)) {
      if (option->index() == found->second) target.set_option(*option);
    } else if (auto* list = dynamic_cast<ListControl*>(control)) {
      const ListControl::Item* entry = chosen_entry(*list);
      if (entry && entry->item_data == ListControl::kPlainEntry &&
          found->second < static_cast<int>(list->items.size())) {
        target.set_list(*list, found->second);
      }
    }
  }
  // A locked frame takes no choice, so the locks come last.
  for (Control* frame : frames) {
    frame->enabled = false;
    frame->back = kReadLock;
  }
  return frames;
}

}  // namespace tonarix
