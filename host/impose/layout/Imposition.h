#pragma once

#include <optional>
#include <vector>

#include "host/impose/layout/Canvas.h"
#include "host/impose/layout/LayoutOptions.h"
#include "host/impose/layout/PageBorder.h"
#include "host/impose/layout/Placement.h"

namespace tavrin {

struct PlacedPage {
  int page;                  // its index
  Matrix matrix;             // takes the unit square to where the page is on the paper
  std::optional<Rect> clip;  // on the paper; absent: all of it shows
};

struct Sheet {
  std::vector<PlacedPage> pages;
  std::vector<Frame> frames;
  Turn turn = Turn::upright;  // how what is to be read lies on it
};

// The sheets that the pages come out on. None when the options ask for no page that is there.
std::vector<Sheet> imposed(const std::vector<PageLook>& pages, const Paper& paper,
                           const LayoutOptions& options, bool wholeSheets);

}  // namespace tavrin
