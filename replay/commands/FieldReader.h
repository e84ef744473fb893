#pragma once

#include <string>
#include <vector>

#include "replay/commands/Json.h"
#include "replay/commands/ReplayCommand.h"

namespace tavrin {

// A line that cannot be a command, with the sentence for the reply. The names in the sentence come
// from the script and may hold NULs, so it is not a C string.
struct SyntaxError {
  std::string sentence;
};

// One field of a line, read in the form that its place calls for. Every function throws a
// SyntaxError that names the field if it has another form.
class FieldReader {
 public:
  FieldReader(std::string fieldName, const Json& fieldValue)
      : name(std::move(fieldName)), value(fieldValue) {}

  // A text without NULs, which the C strings of a PPD could not hold.
  std::string text() const;
  OptString textOrNull() const;
  bool truth() const;
  long long wholeNumber() const;
  // A list of pairs [key, choice].
  std::vector<MarkedChoice> marks() const;
  // A list of {"choose": [numbers 1 to 3], "end": "ok" or "close"}, both optional.
  std::vector<WindowAnswer> answers() const;

 private:
  [[noreturn]] void mustBe(const std::string& form) const;
  MarkedChoice markedChoice() const;
  WindowAnswer answer() const;
  std::vector<int> buttonNumbers() const;
  WindowAnswer::End end() const;

  std::string name;
  const Json& value;
};

}  // namespace tavrin
