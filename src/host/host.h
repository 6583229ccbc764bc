#pragma once

#include <string>
#include <variant>
#include <vector>

#include "base/runtime_error.h"

namespace tonarix {

/// A value that passes between the module and its host: empty, a flag, a number, a text or an array
/// of values.
class Variant {
 public:
  using Array = std::vector<Variant>;

  Variant() = default;
  Variant(bool value) : value_(value) {}
  Variant(double value) : value_(value) {}
  Variant(int value) : value_(static_cast<double>(value)) {}
  Variant(std::string value) : value_(std::move(value)) {}
  Variant(const char* value) : value_(std::string(value)) {}
  Variant(Array value) : value_(std::move(value)) {}
  static Variant strings(const std::vector<std::string>& texts);

  bool is_empty() const { return std::holds_alternative<std::monostate>(value_); }
  bool is_array() const { return std::holds_alternative<Array>(value_); }
  bool is_text() const { return std::holds_alternative<std::string>(value_); }
  bool is_flag() const { return std::holds_alternative<bool>(value_); }
  bool is_number() const { return std::holds_alternative<double>(value_); }

  /// The text of a text, a number, or a flag ("True", "False"). An array or an empty value is a
  /// type mismatch (RuntimeError 13).
  std::string text() const;
  /// The number of a number, of a flag (0 and -1), or of a text that is one. Else RuntimeError 13.
  double number() const;
  /// The array; anything else is RuntimeError 13.
  const Array& array() const;
  /// Element of the array; RuntimeError 9 outside it, 13 when there is no array.
  const Variant& at(int index) const;

  friend bool operator==(const Variant&, const Variant&) = default;

 private:
  std::variant<std::monostate, bool, double, std::string, Array> value_;
};

/// The host is occupied just now; the same call may be answered in a moment.
class HostBusy final : public RuntimeError {
 public:
  HostBusy(const std::string& description, std::string source)
      : RuntimeError(kHostFailure, description, std::move(source)) {}
};

/// What the host keeps under this name is no record any more; it stays as it is.
class DamagedRecord final : public RuntimeError {
 public:
  DamagedRecord(const std::string& description, std::string source)
      : RuntimeError(kHostFailure, description, std::move(source)) {}
};

/// The host application's one keyed operation.
class Host {
 public:
  virtual ~Host() = default;
  /// `key` selects the function, `input` carries what the module gives, `output` is pre-set with a
  /// default and overwritten. True when the host answered. A failing call raises RuntimeError.
  virtual bool Request(std::string& key, Variant& input, Variant& output) = 0;
  /// Stores several records at once, each as "STORE" takes it: all of them or, when the call
  /// raises, none. False, with nothing stored, where the host can't.
  virtual bool StoreTogether(const Variant::Array&) { return false; }
  /// False while a store would go no further than memory and end with the program, as the last call
  /// found it.
  virtual bool lasting() const { return true; }
};

}  // namespace tonarix
