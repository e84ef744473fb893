#pragma once

#include <filesystem>
#include <string>

#include "host/document/DocumentName.h"
#include "host/support/OptionList.h"

namespace tavrin {

inline constexpr int kMostCopies = 9999;  // of a job

// What is to be printed, and how.
struct JobRequest {
  std::string printer;   // the queue; empty for a printer without one
  std::string instance;  // of the queue; empty for the queue itself
  int copies = 1;
  std::string title;       // as the person gave it; empty: the document's name
  std::string pageRanges;  // "1-3,5"; empty: all pages
  OptionList options;
  std::filesystem::path document = kStandardInput;
  // What is sent of the document where it has been made ready for the printer; empty: itself.
  std::filesystem::path prepared = {};
};

// The file that is sent: standard input where there is none.
const std::filesystem::path& sentFile(const JobRequest& request);

// The name that the job gets: its title, as nameForPrinting makes it, else the document's.
std::string jobTitle(const JobRequest& request);

// The same for a sentence: a document that has no name is "standard input".
std::string titleInWords(const JobRequest& request);

}  // namespace tavrin
