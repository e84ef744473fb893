#pragma once

#include <string_view>

namespace tavrin {

// libplist trusts what it reads: small files can make it run for minutes, fill the memory or
// overflow the stack. These checks let a list through only if reading it is cheap, whatever it
// says; whether it is a sound list is still for libplist to find out. Both run in linear time.

// Whether the bytes are a binary property list in which every object lies inside the file, no
// path through the objects is endless or deep, and writing out the shared objects at each place
// where they are used stays small.
bool isHarmlessBinaryList(std::string_view bytes);

// Whether the bytes are XML with closed elements, no entities of their own, little nesting, and no
// more elements, key comparisons and character references than libplist handles quickly.
bool isHarmlessXmlList(std::string_view bytes);

}  // namespace tavrin
