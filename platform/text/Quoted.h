#pragma once

#include <string>
#include <string_view>

namespace tavrin {

// A name in quotation marks, for a sentence.
std::string quoted(const std::string& name);

// The same for a text of any length from a stranger's file: a long one is cut between two
// characters of UTF-8 and ends in dots.
std::string quotedInShort(const std::string& text);

// A sentence for a terminal or a log, which has plain marks wherever a window has “ and ”.
std::string plainlyQuoted(std::string_view sentence);

// One word of a command that a person may copy into a shell.
std::string shellQuoted(const std::string& word);

}  // namespace tavrin
