#pragma once

#include <map>
#include <memory>
#include <string>
#include <vector>

#include "host/panels/PrinterSession.h"
#include "host/prepare/DocumentFacts.h"
#include "host/request/JobRequest.h"
#include "host/task/JobFields.h"

namespace tavrin {

// What is set for the chosen printer, in its session and in the fields that every job has, and what
// was set for the printers that were left, which comes back with them.
class PrinterSettings {
 public:
  // The request holds the first choices of a person; both outlive this object.
  PrinterSettings(const JobRequest& request, JobFields& jobFields)
      : asked(request), fields(jobFields) {}

  // The settings of the printer that is chosen; null while there are none.
  PrinterSession* session() const { return current.get(); }

  // Another destination (a queue, an instance of one, or what else has settings) is chosen, with
  // the options that lp would send. Its settings begin with these, or are those from before.
  void choose(const std::string& destination, OptionList options);
  // Its session begins. What cannot be meant, in sentences; empty for nothing.
  std::string begin(const SharedPPD& ppd);
  // The session goes on, for another instance of the same printer; sentences likewise.
  std::string restart();
  void end() { current.reset(); }
  // Keeps the settings for their return. Why the panels could not hand over theirs; else empty.
  std::string keep();

  // Takes the paper of a document, where the printer has it and nobody has asked for another one.
  // Its text for the screen; absent where nothing changes.
  OptString takePaper(const DocumentFacts& document);

  // What could not be meant of the options for the fields; empty for nothing.
  const std::string& fieldProblem() const { return problem; }
  // The options of the job as they are set now, but for the marks in the PPD.
  OptionList options() const;

 private:
  // Of a destination that was left.
  struct Kept {
    OptionList options;
    std::vector<std::string> unmarked;  // options in which nothing was chosen at all
  };

  void suggestFields();

  const JobRequest& asked;
  JobFields& fields;
  std::string destination;
  OptionList given;
  std::map<std::string, Kept> kept;  // by destination
  std::unique_ptr<PrinterSession> current;
  OptString usualPaper;  // marked as long as nobody asks for another one; else absent
  std::string problem;
};

// Sentences, those that are not empty, as one text.
std::string inOneText(std::vector<std::string> sentences);

// Whether one of the options is about the paper's size.
bool namesPaper(const OptionList& options);

}  // namespace tavrin
