#include "host/error_report.h"

namespace tonarix {

namespace {

RuntimeError facts(std::exception_ptr error) {
  try {
    std::rethrow_exception(error);
  } catch (const std::exception& known) {
    return as_runtime_error(known);
  } catch (...) {
    return {RuntimeError::kOther, "Unknown failure", "vemo06"};
  }
}

std::function<void(Reply)> afterwards(std::function<void()> done) {
  return [done = std::move(done)](Reply) {
    if (done) done();
  };
}

}  // namespace

Message ErrorReport::message() const {
  return warning(texts_.Wort(720_text) + "\n" + texts_.Wort(721_text) + "\n" +
                 texts_.Wort(722_text) + "\n" + texts_.Wort(723_text));
}

void ErrorReport::log(std::string_view tag, std::exception_ptr error, bool show) {
  server_.ServerLogErr(std::string(tag), facts(error));
  if (!show) return;
  dialogs_.show({"Warnung",
                 "Es ist ein Fehler aufgetreten!\nWeitere Informationen befinden sich im LogFile",
                 MessageStyle::warning,
                 {},
                 {}},
                afterwards({}));
}

void ErrorReport::report(std::string_view tag, std::exception_ptr error,
                         std::function<void()> done) {
  log(tag, error);
  dialogs_.show(message(), afterwards(std::move(done)));
}

void ErrorReport::report_exercise(const std::string& window, std::string_view tag,
                                  std::exception_ptr error, std::function<void()> done) {
  log(tag, error);
  Message box = message();
  box.text = window + " " + std::string(tag) + " " + facts(error).description() + "\n" + box.text;
  try {
    server_.ServerLogMess(box.text);
  } catch (const std::exception& silent) {
    // The user is told all the same.
    log("report.", std::make_exception_ptr(as_runtime_error(silent)));
  }
  dialogs_.show(box, afterwards(std::move(done)));
}

}  // namespace tonarix
