#include "app/options.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdlib>
#include <string_view>

namespace tonarix {

namespace {

constexpr std::string_view kHostList = "/P=";
constexpr int kHighestMidiNumber = 32767;

std::optional<int> whole_number(const std::string& text, int lowest, int highest) {
  int value = 0;
  const char* end = text.data() + text.size();
  const auto [stop, error] = std::from_chars(text.data(), end, value);
  if (error != std::errc{} || stop != end || value < lowest || value > highest) return {};
  return value;
}

std::vector<std::string> split_list(std::string_view list) {
  std::vector<std::string> parts;
  while (!list.empty()) {
    const auto end = std::min(list.find(';'), list.size());
    parts.emplace_back(list.substr(0, end));
    list.remove_prefix(std::min(end + 1, list.size()));
  }
  return parts;
}

OptionError bad_value(const std::string& option, const std::string& value,
                      const std::string& wanted) {
  return {"vemo06: " + option + ": \"" + value + "\" is not " + wanted + "."};
}

std::optional<OptionError> take_value(const std::string& option, const std::string& value,
                                      Options& options) {
  if (option == "--data") {
    if (value.empty()) return bad_value(option, value, "a folder");
    options.data = value;
  } else if (option == "--user") {
    const auto first = value.find_first_not_of(' ');
    if (first == std::string::npos || value[first] == ';') {
      return bad_value(option, value, "of the form \"Name;Vorname;Matrikel-Nr.\"");
    }
    options.user = value;
  } else if (option == "--role") {
    const auto role = whole_number(value, 2, 4);
    if (!role || *role == 3) return bad_value(option, value, "2 (user) or 4 (supervisor)");
    options.role = *role;
  } else if (option == "--language") {
    if (value.empty()) return bad_value(option, value, "the name of a language");
    options.language = value;
  } else if (option == "--midi") {
    options.midi = whole_number(value, 0, kHighestMidiNumber);
    if (!options.midi) return bad_value(option, value, "a device number (see --list-midi)");
  }
  return {};
}

}  // namespace

std::optional<OptionError> parse_options(const std::vector<std::string>& arguments,
                                         Options& options) {
  static constexpr std::array<std::string_view, 5> kWithValue{"--data", "--user", "--role",
                                                              "--language", "--midi"};
  for (std::size_t i = 0; i < arguments.size(); ++i) {
    const std::string& argument = arguments[i];
    if (argument.starts_with(kHostList)) {
      options.parameters = split_list(std::string_view(argument).substr(kHostList.size()));
      continue;
    }
    if (argument == "--list-midi") {
      options.task = Options::Task::list_midi;
    } else if (argument == "--version") {
      options.task = Options::Task::show_version;
    } else if (argument == "--help" || argument == "-h") {
      options.task = Options::Task::show_help;
    } else {
      const auto equals = argument.find('=');
      const std::string option = argument.substr(0, equals);
      if (std::find(kWithValue.begin(), kWithValue.end(), option) == kWithValue.end()) {
        return OptionError{"vemo06: unknown option \"" + argument + "\" (see --help)."};
      }
      if (equals == std::string::npos && i + 1 == arguments.size()) {
        return OptionError{"vemo06: " + option + " needs a value (see --help)."};
      }
      const std::string value =
          equals == std::string::npos ? arguments[++i] : argument.substr(equals + 1);
      if (auto error = take_value(option, value, options)) return error;
    }
  }
  return {};
}

std::optional<std::filesystem::path> usual_data_folder() {
  if (const char* data = std::getenv("XDG_DATA_HOME"); data != nullptr && *data == '/') {
    return std::filesystem::path(data) / "tonarix";
  }
  const char* home = std::getenv("HOME");
  if (home == nullptr || *home != '/') return {};
  return std::filesystem::path(home) / ".local" / "share" / "tonarix";
}

std::string help_text() {
  return R"(usage: vemo06 [options]

Training in tonal intervals heard or written in succession.

  --data DIR        folder of the embedded host: records, log, rescued protocols
                    (default: tonarix in the user's data folder)
  --user "N;V;M"    who works: name, first name and matriculation number
                    (default: nobody is logged on)
  --role 2|4        2 student, 4 supervisor (default 2)
  --language NAME   Deutsch or English (default Deutsch)
  --midi N          number of the MIDI device (default: the built-in synthesiser)
  --list-midi       list the MIDI devices and end
  --version         print the version and end
  --help            print this text and end
  /P=a;b            the host's own list; accepted and not used
)";
}

}  // namespace tonarix
