#pragma once

#include <exception>
#include <string>
#include <utility>

namespace tavrin {

// How the program ends.
enum class Status {
  done = 0,
  damaged = 1,
  usage = 2,
  locked = 3,
  unknownKind = 4,
  noPages = 5,
  notWritten = 6,
};

// Why the sheets cannot be made. It is thrown also from within the library that writes them, which
// would wrap a std::runtime_error.
class Trouble : public std::exception {
 public:
  Trouble(Status theStatus, std::string theSentence)
      : itsStatus(theStatus), sentence(std::move(theSentence)) {}

  Status status() const { return itsStatus; }
  const char* what() const noexcept override { return sentence.c_str(); }

 private:
  Status itsStatus;
  std::string sentence;
};

}  // namespace tavrin
