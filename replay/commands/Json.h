#pragma once

#include <nlohmann/json.hpp>

#include "platform/text/OptionalString.h"

namespace tavrin {

// Replies keep their fields in the order in which they were written.
using Json = nlohmann::ordered_json;

// An absent text is null.
inline Json jsonOf(const OptString& text) { return text ? Json(*text) : Json(nullptr); }

}  // namespace tavrin
