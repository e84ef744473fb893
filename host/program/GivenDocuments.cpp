#include "host/program/GivenDocuments.h"

#include <fcntl.h>
#include <unistd.h>

#include "host/document/Document.h"
#include "platform/files/FileDescriptor.h"
#include "platform/files/StandardStreams.h"

namespace tavrin {

namespace {

std::string problemOf(const std::filesystem::path& document) {
  if (document == kStandardInput) return {};
  const auto opened = Document::open(document);
  return opened ? "" : opened.reason();
}

}  // namespace

std::string inputProblem(const CommandLine& line) {
  if (line.job.document != kStandardInput) return {};
  if (!canReadStandardInput())
    return "Standard input is closed, so there is no document in it. Name a file.";
  const bool isForgotten = !line.namesDocument && isatty(STDIN_FILENO);
  return isForgotten ? "No document was named. Name a file, or - to type the document." : "";
}

std::string documentProblem(const CommandLine& line) {
  std::string problem = problemOf(line.job.document);
  for (const auto& document : line.furtherDocuments)
    if (problem.empty()) problem = problemOf(document);
  return problem;
}

void takeForStandardInput(JobRequest& job) {
  std::error_code none;
  if (!std::filesystem::is_fifo(job.document, none)) return;
  const FileDescriptor pipe(open(job.document.c_str(), O_RDONLY | O_NONBLOCK));
  if (!pipe || dup2(pipe.get(), STDIN_FILENO) < 0) return;  // the dialog will say why
  if (job.title.empty()) job.title = job.document.filename().string();
  job.document = kStandardInput;
}

}  // namespace tavrin
