#pragma once

#include <cstdint>

#include <QString>
#include <QStringList>

#include "host/printer/Paper.h"
#include "host/support/OptionList.h"

// The program that puts pages and pictures on sheets, which belongs to this one.

namespace tavrin {

// Where it is.
QString imposer();

// How much memory a process of it may have at most, where it is to have so many bytes. Built with
// the address sanitizer it maps far more than it uses.
constexpr std::uint64_t imposerMemory(std::uint64_t bytes) {
#ifdef __SANITIZE_ADDRESS__
  return bytes > 0 ? ~std::uint64_t(0) : 0;  // RLIM_INFINITY
#else
  return bytes;
#endif
}

// What its exit status means.
enum class Imposed { well, damaged, usage, isProtected, unknownPicture, nothingLeft, cannotWrite };

// How it is told of the paper and of the options; documents follow, format and file.
QStringList imposerArguments(const Paper& paper, const OptionList& options);

}  // namespace tavrin
