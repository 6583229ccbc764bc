#include "host/local/local_host.h"

#include <QString>
#include <QStringList>

#include "base/module_texts.h"
#include "base/private_file.h"
#include "host/local/record_format.h"

namespace tonarix {

namespace {

/// Makes the folder; the path comes back so that what lies in it can be opened next.
std::filesystem::path make_folder(const std::filesystem::path& folder, std::error_code& error) {
  error = make_private_folder(folder);
  return folder;
}

/// The user's fields without blanks around them.
QStringList fields_of(const std::string& user) {
  QStringList fields = QString::fromStdString(user).split(QLatin1Char(';'));
  for (QString& field : fields) field = field.trimmed();
  return fields;
}

}  // namespace

LocalHostHome::LocalHostHome(LocalHostOptions options, const WallClock& clock)
    : options_(std::move(options)),
      log_(make_folder(options_.folder, folder_error_) / "host.log", clock),
      store_(options_.folder / "host.sqlite", file_stamp(clock.now()), options_.patience_ms,
             [this](const std::string& line) { log_.add(line); }) {
  find_problems();
}

void LocalHostHome::find_problems() {
  using Place = RecordStore::Place;
  const std::string folder = options_.folder.string();
  const std::string reason = folder_error_ ? folder_error_.message() : store_.reason();
  switch (store_.place()) {
    case Place::file:
      if (!log_.writable()) problems_.push_back({text::log_not_written, folder, {}, {}});
      break;
    case Place::file_renewed:
      problems_.push_back({text::database_damaged, store_.put_aside().string(), {}, reason});
      break;
    case Place::memory:
      problems_.push_back(
          {text::folder_read_only, folder, folder_error_ ? folder_error_ : store_.error(), reason});
      break;
    case Place::closed:
      problems_.push_back({text::records_not_read, (options_.folder / "host.sqlite").string(),
                           store_.error(), reason});
      break;
    case Place::waiting:
      break;  // it may be free before anything is wanted of it
  }
  if (store_.place() != Place::file) log_.add("host.sqlite: " + reason);
}

Server::HostFactory LocalHostHome::factory() {
  return [this]() -> std::unique_ptr<Host> { return std::make_unique<LocalHost>(*this); };
}

bool LocalHost::Request(std::string& key, Variant& input, Variant& output) {
  if (key == "STATUS") {
    output = Variant::Array{user(), home_.options_.role};
  } else if (key == "MIDI") {
    if (!home_.options_.midi) return false;
    output = std::to_string(*home_.options_.midi);
  } else if (key == "LOGIN") {
    login(output);
  } else if (key == "LANG") {
    output = home_.options_.language;
  } else if (key == "STORE") {
    StoreTogether({input});
  } else if (key == "READ") {
    read(input, output);
  } else if (key == "LOGMESS") {
    home_.log_.add(input.text());
  } else if (key == "LOGERR") {
    log_error(input);
  } else if (key == "MENUE") {
    home_.log_.add("menu");
    if (home_.on_menue) home_.on_menue();
  } else {
    home_.log_.add("Unknown request: " + key);
    return false;
  }
  return true;
}

std::string LocalHost::user() const {
  return fields_of(home_.options_.user.value_or("")).join(QLatin1Char(';')).toStdString();
}

void LocalHost::login(Variant& output) const {
  if (user().empty()) return;
  Variant::Array fields;
  for (const QString& field : fields_of(user())) fields.push_back(field.toStdString());
  output = fields;
}

bool LocalHost::StoreTogether(const Variant::Array& inputs) {
  RecordTexts records;
  for (const Variant& input : inputs) {
    records.insert_or_assign({user(), input.at(0).text(), input.at(1).text()},
                             write_record(input.at(2)));
  }
  home_.store_.write(records);
  return true;
}

void LocalHost::read(const Variant& input, Variant& output) {
  const std::string module = input.at(0).text();
  const std::string key = input.at(1).text();
  output = Variant::Array{"NIL"};
  const std::optional<std::string> json = home_.store_.read({user(), module, key});
  if (!json) return;
  const std::optional<Variant> data = read_record(*json);
  if (data) {
    output = *data;
    return;
  }
  const std::string told = "Record " + key + " of " + module + " is damaged; it stays as it is";
  home_.log_.add(told);
  throw DamagedRecord(told, "LocalHost");
}

void LocalHost::log_error(const Variant& input) {
  home_.log_.add("ERROR " + input.at(0).text() + " " + input.at(1).text() + " " +
                 input.at(2).text() + " (" + input.at(3).text() + ")");
}

}  // namespace tonarix
