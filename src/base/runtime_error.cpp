#include "base/runtime_error.h"

namespace tonarix {

RuntimeError RuntimeError::overflow(std::string source) {
  return {kOverflow, "Overflow of a 16-bit number", std::move(source)};
}

RuntimeError RuntimeError::index_out_of_range(std::string source) {
  return {kIndexOutOfRange, "Index out of range", std::move(source)};
}

RuntimeError RuntimeError::type_mismatch(std::string source) {
  return {kTypeMismatch, "Type mismatch", std::move(source)};
}

RuntimeError as_runtime_error(const std::exception& error) {
  if (const auto* own = dynamic_cast<const RuntimeError*>(&error)) return *own;
  return {RuntimeError::kOther, error.what(), "vemo06"};
}

bool is_device_failure(const std::exception_ptr& error) {
  try {
    std::rethrow_exception(error);
  } catch (const RuntimeError& failure) {
    return failure.number() == RuntimeError::kDeviceError;
  } catch (...) {
    return false;
  }
}

}  // namespace tonarix
