#pragma once

#include <vector>

#include "host/impose/layout/LayoutOptions.h"

namespace tavrin {

// Which of so many pages the options ask for: their indices from 0, each once, in ascending order.
std::vector<int> pickedPages(int pages, const LayoutOptions& options);

}  // namespace tavrin
