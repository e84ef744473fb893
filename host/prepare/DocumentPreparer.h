#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include <QObject>

#include "host/prepare/DocumentFacts.h"
#include "host/prepare/LimitedCommand.h"
#include "host/printer/Paper.h"
#include "host/support/HiddenFolder.h"
#include "host/support/OptionList.h"

namespace tavrin {

// Documents, and how they are to come out of a printer.
struct Preparation {
  std::vector<DocumentFacts> documents = {};
  std::string ppd = {};      // its text; empty for a printer that takes documents as they are
  Paper paper = {};          // that is marked in the PPD
  OptionList options = {};   // of the job, all of them
  std::string title = {};    // of the job, which some filters print; empty: each document's name
  bool wholeSheets = false;  // an even number of sides for each document
  // For a file that somebody keeps, not for a printer: pictures stay as they are stored, and sheets
  // are saved as one reads them.
  bool isForFile = false;

  bool operator==(const Preparation&) const = default;
};

// A document as it is sent; several pictures may have become one.
struct PreparedDocument {
  std::filesystem::path document;  // as the person named it; the first one of several
  std::filesystem::path file;      // what commands read of it; empty where there is none
  std::string format;              // of the file
  OptionList options;              // that it is sent with
  DocumentFacts facts = {};        // of the person's document; of several, the pages of all
  // Of a document that has been changed, for each of its pages a digit: how many quarters of a
  // circle clockwise bring what is on it upright.
  std::string turns = {};
  // Holds the file where the document has been changed; null where it goes as it is.
  std::shared_ptr<const HiddenFolder> folder = {};
};

// Makes documents ready to be sent, away from the user interface. It exists so that there is one
// way from what a person sets to what a printer gets: the preview, a job, a job's folder and a PDF
// all begin here. Documents that the print system lays out right by itself are left alone.
class DocumentPreparer : public QObject {
  Q_OBJECT

 public:
  explicit DocumentPreparer(Preparation preparation, QObject* parent = nullptr);

  // Answered by one of the signals, unless the preparer is gone by then.
  void start();

 signals:
  // In the order of the documents; one for each job.
  void prepared(const std::vector<tavrin::PreparedDocument>& documents);
  // No page of a document is left to print, and which document.
  void nothingLeft(const QString& reason);
  void failed(const QString& reason);

 private:
  using Batch = std::vector<DocumentFacts>;
  using Next = std::function<void(int status)>;

  void prepareNext();
  void prepare(const Batch& batch);
  void passOn(const DocumentFacts& document);
  void layOutText(const DocumentFacts& text);
  void impose(const Batch& batch);
  void take(int status);
  void run(const LimitedCommand::Call& call, const Next& next);
  void fail(const QString& reason);
  void complain(const DocumentFacts& document, int status);

  Preparation wanted;
  std::vector<Batch> batches;
  std::vector<PreparedDocument> done;
  std::shared_ptr<const HiddenFolder> folder;  // of the document that is being prepared
  std::unique_ptr<LimitedCommand> command;
};

// Why no page of this document would be printed, in a sentence; empty when some would, or nobody
// knows.
QString whyNoPage(const DocumentFacts& document, const OptionList& options);

}  // namespace tavrin
