#pragma once

#include <string_view>
#include <vector>

namespace tavrin {

// A page of a laid-out PDF.
struct Sheet {
  double width = 0;   // points, before it is turned
  double height = 0;  // points
  int rotation = 0;   // how far a reader turns it clockwise to show it: 0, 90, 180 or 270 degrees
  // How far it must be turned clockwise, in place of that, so that what is on it is upright.
  int upright = 0;

  bool liesOnItsSide() const { return upright % 180 != 0; }  // for reading
  bool operator==(const Sheet&) const = default;
};

// The pages of a PDF from what the command pdfinfo writes about all of them; none where that makes
// no sense. The PDF's own texts, which come first in it, cannot forge anything.
std::vector<Sheet> sheetsFromInfo(std::string_view info);

}  // namespace tavrin
