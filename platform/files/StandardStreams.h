#pragma once

#include <string>

// What a program reads and writes without having opened it: descriptors 0 to 2. Whoever started the
// program may have closed them, or lead them to a disk that is full.

namespace tavrin {

// To be called before anything else: occupies those that are closed, in such a way that they still
// fail. Else the next file or socket that is opened would get their numbers, and the print
// server or the display would be read as the document.
void occupyStandardStreams();

// Whether standard input can be read; false when it was closed.
bool canReadStandardInput();

// Writes "program: sentence" and a line break on standard error, made visible and plainly
// quoted.
void writeError(const std::string& program, const std::string& sentence);

// Writes text on standard output, made visible but for its line breaks, and sees it through. Empty,
// or why that failed, as the rest of a sentence about standard output.
std::string writeOutput(const std::string& text);

}  // namespace tavrin
