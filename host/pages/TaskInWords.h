#pragma once

#include <QString>

namespace tavrin {

class PrintTask;

// What a task prints, or has printed, in one line as jobInWords() has it, with all that is known of
// its documents and its paper.
QString contentsInWords(const PrintTask& task);

// The same, and with which printer: "2 copies of all 8 pages, on 16 sheets of A4, with Photo".
QString taskInWords(const PrintTask& task);

}  // namespace tavrin
