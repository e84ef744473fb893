#include "platform/text/OptionalString.h"

#include <algorithm>
#include <cstdlib>
#include <limits>

namespace tavrin {

int integerValue(const OptString& text) {
  if (!text) return 0;
  const long long value = std::strtoll(text->c_str(), nullptr, 10);
  return static_cast<int>(std::clamp<long long>(value, std::numeric_limits<int>::min(),
                                                std::numeric_limits<int>::max()));
}

}  // namespace tavrin
