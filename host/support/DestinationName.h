#pragma once

#include <string>

namespace tavrin {

// "queue" or "queue/instance", as on lp's command line.
inline std::string destinationName(const std::string& queue, const std::string& instance) {
  return instance.empty() ? queue : queue + "/" + instance;
}

}  // namespace tavrin
