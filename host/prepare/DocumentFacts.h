#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "host/document/DocumentName.h"

namespace tavrin {

// What is known of a document before it is printed.
struct DocumentFacts {
  std::filesystem::path document = kStandardInput;  // as the person named it
  std::filesystem::path file = {};  // that commands can read; empty where there is none
  std::string format = {};          // its MIME type
  int pages = 0;                    // 0 where nobody knows
  // The first page as a reader shows it, in points; 0 where nobody knows.
  double width = 0;
  double height = 0;
  std::vector<int> widePages = {};               // those wider than high, from 1, ascending
  bool isStoredOtherwise = false;                // a reader turns the picture, or cuts the pages
  std::filesystem::file_time_type changed = {};  // when, as far as it is known
  std::string problem = {};  // why commands cannot read it, in a sentence; empty when they can

  bool isPortrait() const { return widePages.empty(); }
  bool operator==(const DocumentFacts&) const = default;
};

// What may be done to a document of this format.
inline bool isPDF(const std::string& format) { return format == "application/pdf"; }
inline bool isPicture(const std::string& format) { return format.starts_with("image/"); }
inline bool isText(const std::string& format) { return format.starts_with("text/"); }

}  // namespace tavrin
