#pragma once

#include <memory>
#include <string>

#include <cups/cups.h>
#include <cups/ppd.h>

// Owners for the handles of libcups.

namespace tavrin {

// Its text stays with a PPD, for those who hand it to others.
struct PPDCloser {
  void operator()(ppd_file_t* ppd) const { ppdClose(ppd); }

  std::shared_ptr<const std::string> text;
};
using PPDPtr = std::unique_ptr<ppd_file_t, PPDCloser>;
// A PPD that several may hold; made from a PPDPtr.
using SharedPPD = std::shared_ptr<ppd_file_t>;

// The text, unpacked, that a PPD was loaded from; empty where it did not stay.
inline std::string sourceOf(const SharedPPD& ppd) {
  const auto* closer = std::get_deleter<PPDCloser>(ppd);
  return closer && closer->text ? *closer->text : "";
}

struct HttpCloser {
  void operator()(http_t* http) const { httpClose(http); }
};
using HttpPtr = std::unique_ptr<http_t, HttpCloser>;

struct IppDeleter {
  void operator()(ipp_t* message) const { ippDelete(message); }
};
using IppPtr = std::unique_ptr<ipp_t, IppDeleter>;

struct CupsFileCloser {
  void operator()(cups_file_t* file) const { cupsFileClose(file); }
};
using CupsFilePtr = std::unique_ptr<cups_file_t, CupsFileCloser>;

}  // namespace tavrin
