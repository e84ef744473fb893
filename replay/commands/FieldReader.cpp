#include "replay/commands/FieldReader.h"

#include "platform/text/Quoted.h"

namespace tavrin {

void FieldReader::mustBe(const std::string& form) const {
  throw SyntaxError{"The field " + quotedInShort(name) + " must be " + form + "."};
}

std::string FieldReader::text() const {
  if (!value.is_string()) mustBe("a text");
  std::string read = value.get<std::string>();
  if (read.find('\0') != std::string::npos) mustBe("a text without NUL characters");
  return read;
}

OptString FieldReader::textOrNull() const {
  if (value.is_null()) return std::nullopt;
  if (!value.is_string()) mustBe("a text or null");
  return text();
}

bool FieldReader::truth() const {
  if (!value.is_boolean()) mustBe("true or false");
  return value.get<bool>();
}

long long FieldReader::wholeNumber() const {
  if (!value.is_number_integer()) mustBe("a whole number");
  const auto read = value.get<long long>();
  // A number that is too large would come out negative.
  if (value.is_number_unsigned() && read < 0) mustBe("a smaller number");
  return read;
}

MarkedChoice FieldReader::markedChoice() const {
  const bool isPair = value.is_array() && value.size() == 2;
  if (!isPair || !value[0].is_string() || !value[1].is_string())
    mustBe("a list of pairs [key, choice] of texts");
  return {FieldReader(name, value[0]).text(), FieldReader(name, value[1]).text()};
}

std::vector<MarkedChoice> FieldReader::marks() const {
  if (!value.is_array()) mustBe("a list of pairs [key, choice] of texts");
  std::vector<MarkedChoice> read;
  for (const Json& entry : value) read.push_back(FieldReader(name, entry).markedChoice());
  return read;
}

std::vector<int> FieldReader::buttonNumbers() const {
  if (!value.is_array()) mustBe("a list of the numbers 1 to 3");
  std::vector<int> numbers;
  for (const Json& entry : value) {
    if (entry != 1 && entry != 2 && entry != 3) mustBe("a list of the numbers 1 to 3");
    numbers.push_back(static_cast<int>(FieldReader(name, entry).wholeNumber()));
  }
  return numbers;
}

WindowAnswer::End FieldReader::end() const {
  if (value == "ok") return WindowAnswer::End::ok;
  if (value != "close") mustBe(R"("ok" or "close")");
  return WindowAnswer::End::close;
}

WindowAnswer FieldReader::answer() const {
  if (!value.is_object()) mustBe(R"(a list of objects with "choose" and "end")");
  WindowAnswer read;
  for (const auto& entry : value.items()) {
    const FieldReader field(entry.key(), entry.value());
    if (entry.key() == "choose")
      read.choose = field.buttonNumbers();
    else if (entry.key() == "end")
      read.end = field.end();
    else
      throw SyntaxError{"An answer has no field " + quotedInShort(entry.key()) + "."};
  }
  return read;
}

std::vector<WindowAnswer> FieldReader::answers() const {
  if (!value.is_array()) mustBe(R"(a list of objects with "choose" and "end")");
  std::vector<WindowAnswer> read;
  for (const Json& entry : value) read.push_back(FieldReader(name, entry).answer());
  return read;
}

}  // namespace tavrin
