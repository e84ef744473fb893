#pragma once

#include <string>
#include <string_view>

#include "ppd/CupsHandles.h"

// Requests to the print server, and looking into its answers.

namespace tavrin {

// A request about a queue, in the name of the current user.
IppPtr printerRequest(ipp_op_t operation, const std::string& queue);
// A request about a job.
IppPtr jobRequest(ipp_op_t operation, int jobId);

// Reads a message that came from somebody; null when it is broken, or nested deeper than any
// answer: libcups takes each level of it by a call within a call, until there is no stack left.
IppPtr readMessage(std::string_view bytes);

// What an answer says under a name; 0, the fallback or the empty text when it says nothing of that
// kind. Several values are separated by commas.
int integerIn(ipp_t& answer, const char* name);
bool booleanIn(ipp_t& answer, const char* name, bool fallback);
std::string textIn(ipp_t& answer, const char* name);

// A single text as it is; several values as valuesOf() writes them.
std::string textOf(ipp_attribute_t& attribute);
// All values of an attribute as they are written among options: separated by commas, with a
// backslash before quotation marks.
std::string valuesOf(ipp_attribute_t& attribute);

}  // namespace tavrin
