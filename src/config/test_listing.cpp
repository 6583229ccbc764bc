#include "config/test_listing.h"

#include <cstdint>
#include <sstream>
#include <vector>

#include "base/colour.h"

namespace tonarix {

namespace {

constexpr Colour kReadLock = RGB(255, 128, 128);

/// Code point at the place, which moves behind it; a broken sequence counts as U+FFFD.
std::uint32_t next_code_point(const std::string& text, std::size_t& place) {
  const auto byte = [&](std::size_t i) { return static_cast<std::uint8_t>(text[i]); };
  const std::uint8_t lead = byte(place++);
  if (lead < 0x80) return lead;
  const int more = lead >= 0xF0 ? 3 : lead >= 0xE0 ? 2 : lead >= 0xC0 ? 1 : 0;
  if (more == 0) return 0xFFFD;
  std::uint32_t code = lead & (0x3F >> more);
  for (int i = 0; i < more; ++i) {
    if (place >= text.size() || (byte(place) & 0xC0) != 0x80) return 0xFFFD;
    code = (code << 6) | (byte(place++) & 0x3F);
  }
  return code;
}

std::string escaped(const std::string& text) {
  std::string xml;
  for (std::size_t place = 0; place < text.size();) {
    const std::uint32_t code = next_code_point(text, place);
    if (code == '&') {
      xml += "&amp;";
    } else if (code == '<') {
      xml += "&lt;";
    } else if (code == '>') {
      xml += "&gt;";
    } else if (code == '"') {
      xml += "&quot;";
    } else if (code < 0x20 || code == 0x7F) {
      xml += code == '\n' || code == '\t' ? "&#" + std::to_string(code) + ";" : " ";
    } else if (code < 0x7F) {
      xml += static_cast<char>(code);
    } else {
      const bool allowed = (code < 0xD800 || code > 0xDFFF) && code < 0xFFFE;
      xml += "&#" + std::to_string(allowed || code > 0xFFFF ? code : 0xFFFD) + ";";
    }
  }
  return xml;
}

void element(std::ostream& out, const char* indent, const char* name, const std::string& text) {
  out << indent << '<' << name << '>' << escaped(text) << "</" << name << ">\n";
}

const ListControl::Item* chosen_entry(const ListControl& list) {
  if (list.selected < 0 || list.selected >= static_cast<int>(list.items.size())) return nullptr;
  return &list.items[static_cast<std::size_t>(list.selected)];
}

/// The option of the array that is set.
const OptionControl* chosen_option(const Window& window, const std::string& name) {
  for (const Control* control : window.controls()) {
    const auto* option = dynamic_cast<const OptionControl*>(control);
    if (option && option->name() == name && option->value) return option;
  }
  return nullptr;
}

void open_control(std::ostream& out, const Control& control, const std::string& text) {
  out << "    <control title=\"" << escaped(control.tag) << "\" text=\"" << escaped(text)
      << "\">\n";
  element(out, "      ", "cname", control.name());
  if (control.index()) element(out, "      ", "index", std::to_string(*control.index()));
}

void write_option(std::ostream& out, const Window& window, const OptionControl& option) {
  open_control(out, option, option.text);
  const OptionControl* chosen = chosen_option(window, option.name());
  out << "      <value True=\"" << (chosen ? escaped(chosen->text) : "") << "\">"
      << (chosen && chosen->index() ? std::to_string(*chosen->index()) : "") << "</value>\n"
      << "    </control>\n";
}

void write_list(std::ostream& out, const ListControl& list, const ListControl::Item& entry) {
  const bool plain = entry.item_data == ListControl::kPlainEntry;
  open_control(out, list, list.accessible_name);
  out << "      <value text=\"" << escaped(entry.text) << "\">"
      << (plain ? list.selected : entry.item_data) << "</value>\n"
      << "    </control>\n";
}

}  // namespace

const TestListing::ValueSet& TestListing::fixed_values() {
  static const ValueSet values{
      {"ArpTempo", 3}, {"Richtung", 1}, {"Ambitus", 2}, {"IntervallAnzahl", 2}};
  return values;
}

std::string TestListing::write(const Window& window, const Head& head) {
  std::ostringstream out;
  out << "<?xml version=\"1.0\" encoding=\"ISO-8859-1\" ?>\n<test>\n  <basic>\n";
  element(out, "    ", "modul", head.modul);
  element(out, "    ", "type", head.type);
  element(out, "    ", "description", head.description);
  out << "  </basic>\n  <setting>\n";
  for (const Control* control : window.controls()) {
    if (control->tag.empty() || !control->container || control->container->tag != kExamMark) {
      continue;
    }
    if (const auto* option = dynamic_cast<const OptionControl*>(control)) {
      write_option(out, window, *option);
    } else if (const auto* list = dynamic_cast<const ListControl*>(control)) {
      const ListControl::Item* entry = chosen_entry(*list);
      if (entry) write_list(out, *list, *entry);
    }
  }
  out << "  </setting>\n</test>\n";
  return out.str();
}

void TestListing::read(const Window& window, const ValueSet& values, const Target& target) {
  std::vector<Control*> frames;
  for (Control* control : window.controls()) {
    const auto found = control->tag.empty() ? values.end() : values.find(control->tag);
    if (found == values.end()) continue;
    if (control->container) frames.push_back(control->container);
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
}

}  // namespace tonarix
