#pragma once

#include <functional>
#include <stdexcept>
#include <utility>

namespace norvane {

class Form;
class Program;

/// Holds the program's dispatch open: forms unloaded meanwhile live until the outermost dispatch has ended. Whatever
/// raises events and goes on afterwards opens one.
class Dispatch {
 public:
  explicit Dispatch(const Form& form);
  explicit Dispatch(Program& program);
  ~Dispatch();
  Dispatch(const Dispatch&) = delete;
  Dispatch& operator=(const Dispatch&) = delete;

 private:
  Program& program_;
};

namespace detail {
/// Runs `body` as an event of `form`: not at all if the form is not loaded; an error that leaves it is shown by the
/// runtime's box and ends there; forms unloaded meanwhile live until the outermost event has returned.
void RunAsEvent(Form& form, const std::function<void()>& body);
}  // namespace detail

/// An event with the one handler that its form gave it, if any. A second handler is refused (std::logic_error) unless
/// it says that it replaces the first.
template <class... Args>
class Event {
 public:
  explicit Event(Form& form) : form_(form) {}
  Event(const Event&) = delete;

  template <class Handler>
  Event& operator=(Handler handler) {
    if (handler_) throw std::logic_error("The event has a handler already.");
    handler_ = std::move(handler);
    return *this;
  }
  /// Takes the place of the handler that the event has, if any.
  template <class Handler>
  void Replace(Handler handler) {
    handler_ = std::move(handler);
  }
  bool HasHandler() const { return handler_ != nullptr; }

  /// Runs the handler to its end, nested events included, before it returns.
  void Raise(Args... args) {
    if (!handler_) return;
    const auto handler = handler_;
    detail::RunAsEvent(form_, [&] { handler(args...); });
  }

 private:
  Form& form_;
  std::function<void(Args...)> handler_;
};

}  // namespace norvane
