#pragma once

#include <cstdint>
#include <stdexcept>
#include <string>
#include <utility>

namespace norvane {

/// The runtime's error numbers that the program raises itself; the store adds its own (store/StoreError.h).
enum class ErrorNumber : std::int32_t {
  InvalidProcedureCall = 5,
  Overflow = 6,
  SubscriptOutOfRange = 9,
  DivisionByZero = 11,
  TypeMismatch = 13,
  FileNotFound = 53,
  FileAlreadyExists = 58,
  DiskFull = 61,
  DeviceUnavailable = 68,
  PermissionDenied = 70,
  PathNotFound = 76,
  ObjectNotSet = 91,
  InvalidUseOfNull = 94,
  GridSubscriptOutOfRange = 381,
  PropertyIsReadOnly = 383,
};

/// An error with the number and the text that the user sees.
class RuntimeError : public std::runtime_error {
 public:
  /// The runtime's own error, with its fixed text.
  explicit RuntimeError(ErrorNumber number);
  /// `cause` is what is known beyond the text, in words for details that the user may open; mostly empty.
  RuntimeError(std::int32_t number, const std::string& text, std::string cause = {})
      : std::runtime_error(text), number_(number), cause_(std::move(cause)) {}

  std::int32_t Number() const { return number_; }
  std::string Text() const { return what(); }
  const std::string& Cause() const { return cause_; }

 private:
  std::int32_t number_;
  std::string cause_;
};

/// Raises `number` with its fixed text.
[[noreturn]] void Raise(ErrorNumber number);

}  // namespace norvane
