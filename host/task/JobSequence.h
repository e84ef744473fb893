#pragma once

#include <filesystem>
#include <memory>
#include <utility>
#include <vector>

#include <QObject>

#include "host/job/JobRunner.h"
#include "host/prepare/DocumentPreparer.h"
#include "host/prepare/SidePicker.h"
#include "host/task/JobReport.h"

namespace tavrin {

// All that happens between Print and the paper: the documents are prepared, then sent as one job
// each, one after the other. On paper that is printed on both sides in two passes, a document is
// two jobs, and between them somebody turns the paper; a document that has no back is only one.
class JobSequence : public QObject {
  Q_OBJECT

 public:
  struct Order {
    Preparation preparation;
    JobRequest request;                 // all but its document
    std::filesystem::path output = {};  // for a printer without a queue; else empty
    bool inTwoPasses = false;
    bool lastSheetFirst = false;  // the print system's own way with these options
  };
  // What is being done.
  enum class Step { preparing, sending, sendingFronts, sendingBacks };
  // How the backs come after one another, beside the fronts.
  enum class BackOrder { same, reversed };

  explicit JobSequence(QObject* parent = nullptr);

  // Answered by one of the last five signals.
  void start(const Order& order);
  // Gives up; `cancelled` comes when that is done.
  void cancel();
  // The paper has been turned. Where the backs cannot be sent, the paper is still turned after
  // `failed` or `folderRefused`, and they can be sent again.
  void printBacks(BackOrder backOrder);

  Step step() const;
  // Whether fronts are printed whose backs are not.
  bool hasBareFronts() const { return pass == Pass::backs; }
  // Whether it waits for printBacks().
  bool isWaitingForPaper() const { return isTurning; }
  // The documents that have been sent, from the first one, also when the sequence ended early.
  std::size_t sent() const { return sentDocuments; }
  // The same, for somebody who takes them off what is to be printed: after that, none.
  std::size_t takeSent() { return std::exchange(sentDocuments, 0); }
  // How many there are in all; 0 while they are prepared.
  std::size_t count() const { return documents.size(); }

 signals:
  // Nothing is known at first of how much there is to send: that is news, too.
  void progressed(const tavrin::Progress& progress);
  // The fronts of a document are sent; nothing happens until printBacks() or cancel().
  void paperToBeTurned();
  void finished(const tavrin::JobReport& report);
  void cancelled();
  // No page is left to print; nothing was sent.
  void nothingLeft(const QString& reason);
  void failed(const QString& reason);
  // The output folder cannot take the job; another one may.
  void folderRefused(const QString& reason);

 private:
  enum class Pass { only, fronts, backs };

  void connectRunner();
  void prepare();
  void sendNext();
  void sendPass();
  void pickSide();
  void send(const std::filesystem::path& prepared);
  static QString titleOfSeveral(const std::vector<DocumentFacts>& facts);
  OptionList passOptions() const;
  std::vector<DocumentFacts> currentFacts() const;
  void giveUp();
  void fail(const QString& reason);
  void arrived(const JobReport& report);

  Order order;
  std::unique_ptr<DocumentPreparer> preparer;
  std::vector<PreparedDocument> documents;
  std::vector<JobReport> reports;
  JobRunner runner;
  std::size_t sentDocuments = 0;
  Pass pass = Pass::only;
  std::unique_ptr<SidePicker> picker;  // holds the file that is being sent
  bool isPicking = false;
  bool isTurning = false;
  BackOrder backOrder = BackOrder::same;
};

}  // namespace tavrin
