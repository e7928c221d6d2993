#pragma once

#include <memory>
#include <utility>

#include "core/RuntimeError.h"

namespace norvane {

/// A variable that holds an object or nothing. Use of nothing raises 91. The arrow hands out a share of the object for
/// the length of the statement, so an operation under way outlives the object's replacement.
template <class T>
class Object {
 public:
  Object() = default;
  Object(std::shared_ptr<T> object) : object_(std::move(object)) {}

  std::shared_ptr<T> operator->() const {
    if (!object_) Raise(ErrorNumber::ObjectNotSet);
    return object_;
  }
  T& operator*() const {
    if (!object_) Raise(ErrorNumber::ObjectNotSet);
    return *object_;
  }
  explicit operator bool() const { return object_ != nullptr; }
  const std::shared_ptr<T>& Share() const { return object_; }
  void Release() { object_.reset(); }

 private:
  std::shared_ptr<T> object_;
};

}  // namespace norvane
