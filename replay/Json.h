#pragma once

#include <nlohmann/json.hpp>

namespace tavrin {

// Replies keep their fields in the order in which they were written.
using Json = nlohmann::ordered_json;

}  // namespace tavrin
