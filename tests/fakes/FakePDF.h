#pragma once

#include <string>
#include <vector>

namespace tavrin {

// A PDF of that many pages in US Letter, each with its number and a mark in one corner, so that it
// shows when a page is missing, mirrored or upside down.
std::string numberedPDF(int pages);

// A PDF that nobody can open without its password.
std::string lockedPDF();

// A PDF of these objects, which are numbered from 1; the first is the catalogue.
std::string pdfOf(const std::vector<std::string>& objects);
// An object that is a stream; the entries are those of its dictionary beside the length.
std::string pdfStream(const std::string& contents, const std::string& entries = "");

}  // namespace tavrin
