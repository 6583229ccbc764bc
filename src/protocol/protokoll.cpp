#include "protocol/protokoll.h"

#include <array>
#include <charconv>
#include <cstdio>
#include <cstdlib>

#include "base/runtime_error.h"

namespace tonarix {

namespace {

template <typename Number>
std::string number_text(Number value) {
  std::array<char, 400> digits{};  // a double written out in full has at most 327
  char* const end = digits.data() + digits.size();
  if constexpr (std::is_integral_v<Number>) {
    return {digits.data(), std::to_chars(digits.data(), end, value).ptr};
  } else {
    return {digits.data(), std::to_chars(digits.data(), end, value, std::chars_format::fixed).ptr};
  }
}

void add_property(Element parent, const std::string& key, std::string_view value) {
  Element property = parent.Children().Add("", "property");
  property.Attributes().Add(key, "key");
  property.Attributes().Add(value, "value");
}

std::string timestamp(const CivilTime& time) {
  std::array<char, 16> seconds{};
  std::snprintf(seconds.data(), seconds.size(), ":%02d", time.second);
  return date_and_time(time) + seconds.data();
}

}  // namespace

std::filesystem::path protocol_folder() {
  const char* const temp = std::getenv("temp");
  if (temp && *temp) return temp;
  std::error_code missing;
  const std::filesystem::path folder = std::filesystem::temp_directory_path(missing);
  return missing ? std::filesystem::path("/tmp") : folder;
}

Protokoll::Protokoll(Server& server, const WallClock& clock, DocumentWriter& writer,
                     ProtocolFolders folders, Logger logger)
    : server_(server),
      clock_(clock),
      folders_(std::move(folders)),
      logger_(std::move(logger)),
      document_(writer) {}

void Protokoll::ProtokollNeu() {
  lesson_ = {};
  answer_ = {};
  document_.CreateDocument("exercise");
  file_ = "EXR" + file_stamp(clock_.now()) + ".xml";
  document_.SetFileName(folders_.protocols / file_);
  ElementList sections = document_.Root().Children();
  Element properties = sections.Add("", "properties");
  properties.Attributes().Add("VEMO06", "programm");
  properties.Attributes().Add(server_.ServerLogin().at(0), "ukey");
  sections.Add("", "settings");
  sections.Add("", "lessons");
  answer_given_ = any_answer_given_ = false;
  finished_.reset();
}

void Protokoll::ProtokollAufgabe(const LessonFacts& facts) {
  try {
    record_lesson(facts);
  } catch (...) {
    if (logger_) logger_("ProtokollAufgabe.", std::current_exception());
  }
}

void Protokoll::record_lesson(const LessonFacts& facts) {
  lesson_ = {};
  answer_ = {};
  lesson_ = section("lessons").Children().Add("", "lesson");
  Element properties = lesson_.Children().Add("", "properties");
  lesson_.Children().Add("", "answers");
  int number = 0;
  for (const std::int16_t qz : facts.qz_tones) {
    add_property(properties, "number", number_text(++number));
    add_property(properties, "QzTon", number_text(qz));
  }
  if (!facts.tones_alone) {
    for (const auto& [stufen_iv, direktes_iv] : facts.intervals) {
      add_property(properties, "Stufen-Iv", stufen_iv);
      add_property(properties, "direktes-Iv", direktes_iv);
    }
    for (const std::int16_t deviation : facts.pb_abweichung) {
      add_property(properties, "PB-Abweichung", number_text(deviation));
    }
    ProtokollAntwort(1, facts.iv_nr);
  }
  lesson_.Attributes().Add(number_text(facts.interval), "interval");
}

void Protokoll::ProtokollAntwort(std::int16_t lfd, std::optional<std::int16_t> iv_nr) {
  if (!lesson_.exists()) {
    throw RuntimeError(RuntimeError::kOther, "An answer without a task", "ProtokollAntwort");
  }
  answer_ = lesson_.Children().Find("answers").Item(1).Children().Add("", "answer");
  answer_.Attributes().Add(number_text(lfd), "lfd");
  answer_given_ = false;
  if (iv_nr) add_property(answer_, "interval", number_text(*iv_nr));
}

void Protokoll::ProtokollMesswerte(double seconds, double repeats,
                                   std::optional<double> pitch_gap) {
  ProtokollProperty("Dauer Antwort", seconds);
  ProtokollProperty("Anz Whlg", repeats);
  if (pitch_gap) ProtokollProperty("Pitch Gap", *pitch_gap);
}

void Protokoll::ProtokollProperty(const std::string& key, std::string_view value) {
  add_property(current_answer(), key, value);
  answer_given_ = any_answer_given_ = true;
}

void Protokoll::ProtokollProperty(const std::string& key, double value) {
  ProtokollProperty(key, std::string_view(number_text(value)));
}

void Protokoll::ProtokollProperty(const std::string& key, float value) {
  ProtokollProperty(key, std::string_view(number_text(value)));
}

void Protokoll::ProtokollProperty(const std::string& key, int value) {
  ProtokollProperty(key, std::string_view(number_text(value)));
}

FinishResult Protokoll::ProtokollSchluss(const std::string& exercise_caption,
                                         const std::string& exercise_name,
                                         const std::vector<std::string>& pairs) {
  drop_unanswered();
  tell_exercise(exercise_caption, exercise_name, pairs);
  lesson_ = {};
  answer_ = {};
  return finish_again();
}

std::string Protokoll::so_far(const std::string& exercise_caption, const std::string& exercise_name,
                              const std::vector<std::string>& pairs) {
  tell_exercise(exercise_caption, exercise_name, pairs);
  return document_.text();
}

void Protokoll::tell_exercise(const std::string& caption, const std::string& name,
                              const std::vector<std::string>& pairs) {
  for (const char* told : {"properties", "settings"}) {
    const ElementList before = section(told).Children();
    for (std::size_t i = 1; i <= before.Count(); ++i) before.Item(i).Remove();
  }
  ElementList facts = section("properties").Children();
  facts.Add(caption, "exercise");
  facts.Add(timestamp(clock_.now()), "timestamp");
  facts.Add("Untersuchung: " + name, "description");
  ElementList settings = section("settings").Children();
  for (std::size_t label = 1; label + 1 < pairs.size(); label += 2) {
    AttributeList pair = settings.Add("", "setting").Attributes();
    pair.Add(pairs[label], "key");
    pair.Add(pairs[label + 1], "value");
  }
}

void Protokoll::drop_unanswered() {
  if (answer_.exists() && !answer_given_) answer_.Remove();
  if (any_answer_given_) return;
  const ElementList lessons = section("lessons").Children().Find("lesson");
  for (std::size_t i = 1; i <= lessons.Count(); ++i) lessons.Item(i).Remove();
}

FinishResult Protokoll::finish_again() {
  if (!document_.has_document()) {
    throw RuntimeError(RuntimeError::kOther, "No document to finish", "ProtokollSchluss");
  }
  if (finished_) return *finished_;
  FinishResult result;
  result.wanted = folders_.protocols / file_;
  const WriteResult first = write_to(result.wanted);
  result.path = first.path;
  if (!first.written) {
    result.error = first.error;
    const WriteResult second = write_to(folders_.data / file_);
    result.path = second.path;
    result.fell_back = second.written;
    result.failed = !second.written;
    if (result.fell_back) log("It lies in " + result.path.string());
  }
  if (!result.failed) finished_ = result;
  return result;
}

WriteResult Protokoll::write_to(const std::filesystem::path& path) {
  document_.SetFileName(path);
  WriteResult result = document_.Finish();
  if (!result.written) log(path.string() + ": " + result.reason);
  return result;
}

void Protokoll::log(const std::string& line) const {
  const RuntimeError error(RuntimeError::kPathError, line, "ProtokollSchluss");
  logger_("ProtokollSchluss.", std::make_exception_ptr(error));
}

Element Protokoll::section(const std::string& name) const {
  return document_.Root().Children().Find(name).Item(1);
}

Element Protokoll::current_answer() const {
  if (!answer_.exists()) {
    throw RuntimeError(RuntimeError::kOther, "A fact without an answer", "ProtokollProperty");
  }
  return answer_;
}

}  // namespace tonarix
