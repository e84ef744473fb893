#pragma once

#include <string>
#include <utility>
#include <variant>

namespace tavrin {

// Why something could not be done: a sentence for the person at the screen that names the thing
// and, if there is one, the way out.
struct Failure {
  std::string reason;
};

// The value of a call that can fail, or the reason why it failed.
template <class T>
class [[nodiscard]] Result {
 public:
  Result(T value) : content(std::move(value)) {}            // NOLINT(google-explicit-constructor)
  Result(Failure failure) : content(std::move(failure)) {}  // NOLINT(google-explicit-constructor)

  explicit operator bool() const { return std::holds_alternative<T>(content); }

  // The value; call only after checking that there is one.
  T& operator*() { return std::get<T>(content); }
  const T& operator*() const { return std::get<T>(content); }
  T* operator->() { return &std::get<T>(content); }
  const T* operator->() const { return &std::get<T>(content); }

  // The reason; call only after checking that there is no value.
  const std::string& reason() const { return std::get<Failure>(content).reason; }

 private:
  std::variant<T, Failure> content;
};

}  // namespace tavrin
