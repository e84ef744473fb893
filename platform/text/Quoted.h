#pragma once

#include <string>

namespace tavrin {

// A name in quotation marks, for a sentence.
std::string quoted(const std::string& name);

// The same for a text of any length from a stranger's file: a long one is cut between two
// characters of UTF-8 and ends in dots.
std::string quotedInShort(const std::string& text);

// One word of a command that a person may copy into a shell.
std::string shellQuoted(const std::string& word);

}  // namespace tavrin
