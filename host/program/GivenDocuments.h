#pragma once

#include <string>

#include "host/program/CommandLine.h"

// The documents that a command line names, before anything is on the screen.

namespace tavrin {

// Why standard input cannot be the document; empty when it can, or need not.
std::string inputProblem(const CommandLine& line);

// Why one of the documents cannot be printed whatever the printer; empty when all can. Standard
// input is not looked at before it is printed.
std::string documentProblem(const CommandLine& line);

// A document that is a pipe gives its contents once. As standard input they are kept, so that a job
// that failed can be sent again.
void takeForStandardInput(JobRequest& job);

}  // namespace tavrin
