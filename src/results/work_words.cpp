#include "results/work_words.h"

#include "base/filled_text.h"
#include "base/module_texts.h"

namespace tonarix {

namespace {

/// "12 s", "4 min 12 s", from an hour on "1 h 4 min".
std::string duration(int seconds, const Texts& texts) {
  const std::string h = " " + texts.Wort(text::sheet_hours);
  const std::string min = " " + texts.Wort(394_text);
  const std::string s = " " + texts.Wort(480_text);
  const int minutes = seconds / 60;
  if (minutes == 0) return std::to_string(seconds) + s;
  if (minutes < 60) return std::to_string(minutes) + min + " " + std::to_string(seconds % 60) + s;
  return std::to_string(minutes / 60) + h + " " + std::to_string(minutes % 60) + min;
}

}  // namespace

std::string WorkWords::line(const std::string& between) const {
  return tasks.both() + " " + time + between + right.both() + between + wrong.both();
}

WorkWords work_words(const WorkDone& work, const Texts& texts) {
  WorkWords words;
  words.tasks.number = std::to_string(work.tasks);
  if (work.tasks_in_all) {
    words.tasks.number = filled(texts.Wort(text::sheet_some_of_all),
                                {words.tasks.number, std::to_string(*work.tasks_in_all)});
  }
  const bool one = work.tasks_in_all.value_or(work.tasks) == 1;
  words.tasks.name = texts.Wort(one ? text::sheet_one_task : text::sheet_tasks);
  words.right = {std::to_string(work.right), texts.Wort(text::sheet_right)};
  words.wrong = {std::to_string(work.wrong), texts.Wort(text::sheet_wrong)};
  words.time = filled(texts.Wort(text::sheet_in_time), {duration(work.seconds, texts)});
  return words;
}

}  // namespace tonarix
