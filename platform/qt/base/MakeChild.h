#pragma once

#include <memory>
#include <utility>

namespace tavrin {

// Makes an object that its parent owns, as Qt's objects do; the parent is the last argument of the
// constructor.
template <class T, class... Args>
T* makeChild(Args&&... args) {
  return std::make_unique<T>(std::forward<Args>(args)...).release();
}

}  // namespace tavrin
