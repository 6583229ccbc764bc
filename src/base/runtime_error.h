#pragma once

#include <exception>
#include <stdexcept>
#include <string>

namespace tonarix {

/// A failure inside the program, with the number, description and source that the host's error log
/// takes. Thrown where it happens, caught once at the event handler.
class RuntimeError : public std::runtime_error {
 public:
  static constexpr int kOverflow = 6;
  static constexpr int kIndexOutOfRange = 9;
  static constexpr int kTypeMismatch = 13;
  static constexpr int kDeviceError = 57;
  static constexpr int kPathError = 75;
  static constexpr int kHostFailure = 440;
  static constexpr int kOther = 1000;

  RuntimeError(int number, const std::string& description, std::string source)
      : std::runtime_error(description), number_(number), source_(std::move(source)) {}

  static RuntimeError overflow(std::string source);
  static RuntimeError index_out_of_range(std::string source);
  static RuntimeError type_mismatch(std::string source);

  int number() const { return number_; }
  std::string description() const { return what(); }
  const std::string& source() const { return source_; }

 private:
  int number_;
  std::string source_;
};

/// The same three facts of any exception that reaches a handler; foreign ones get kOther.
RuntimeError as_runtime_error(const std::exception& error);

/// True when the exception, never null, says that a device is gone or refuses (kDeviceError).
bool is_device_failure(const std::exception_ptr& error);

}  // namespace tonarix
