#include "core/RuntimeError.h"

namespace norvane {
namespace {

const char* FixedText(ErrorNumber number) {
  switch (number) {
    case ErrorNumber::InvalidProcedureCall:
      return "Invalid procedure call or argument";
    case ErrorNumber::Overflow:
      return "Overflow";
    case ErrorNumber::SubscriptOutOfRange:
      return "Subscript out of range";
    case ErrorNumber::DivisionByZero:
      return "Division by zero";
    case ErrorNumber::TypeMismatch:
      return "Type mismatch";
    case ErrorNumber::FileNotFound:
      return "File not found";
    case ErrorNumber::FileAlreadyExists:
      return "File already exists";
    case ErrorNumber::DiskFull:
      return "Disk full";
    case ErrorNumber::DeviceUnavailable:
      return "Device unavailable";
    case ErrorNumber::PermissionDenied:
      return "Permission denied";
    case ErrorNumber::PathNotFound:
      return "Path not found";
    case ErrorNumber::ObjectNotSet:
      return "Object variable or With block variable not set";
    case ErrorNumber::InvalidUseOfNull:
      return "Invalid use of Null";
    case ErrorNumber::GridSubscriptOutOfRange:
      return "Subscript out of range";
    case ErrorNumber::PropertyIsReadOnly:
      return "Property is read-only";
  }
  return "";
}

}  // namespace

RuntimeError::RuntimeError(ErrorNumber number) : RuntimeError(static_cast<std::int32_t>(number), FixedText(number)) {}

void Raise(ErrorNumber number) {
  throw RuntimeError(number);
}

}  // namespace norvane
