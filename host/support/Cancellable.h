#pragma once

#include <string>
#include <utility>
#include <variant>

#include "host/support/Cancellation.h"
#include "platform/text/Result.h"

// What calls answer that can fail and can be cancelled.

namespace tavrin {

// The answer of a call that gave up because it was cancelled.
struct Cancelled {};

// The value of a call that gives nothing else: its work is done.
struct Done {};

// Why a call has no value.
using NoValue = std::variant<Failure, Cancelled>;

// The value of a call, or why there is none: every call that takes a CancelFlag answers with one.
template <class T>
class [[nodiscard]] Cancellable {
 public:
  // NOLINTBEGIN(google-explicit-constructor)
  Cancellable(T value) : content(std::move(value)) {}
  Cancellable(Failure failure) : content(NoValue(std::move(failure))) {}
  Cancellable(Cancelled cancelled) : content(NoValue(cancelled)) {}
  Cancellable(NoValue why) : content(std::move(why)) {}
  // NOLINTEND(google-explicit-constructor)

  explicit operator bool() const { return std::holds_alternative<T>(content); }

  // The value; only after a test that there is one.
  T& operator*() { return std::get<T>(content); }
  const T& operator*() const { return std::get<T>(content); }
  T* operator->() { return &std::get<T>(content); }
  const T* operator->() const { return &std::get<T>(content); }

  // Why there is no value, to be passed on; only after a test that there is none.
  const NoValue& why() const { return std::get<NoValue>(content); }
  bool cancelled() const { return !*this && std::holds_alternative<Cancelled>(why()); }
  // The reason of a failure; only after tests that there is no value and that nobody cancelled.
  const std::string& reason() const { return std::get<Failure>(why()).reason; }

 private:
  std::variant<T, NoValue> content;
};

}  // namespace tavrin
