#pragma once

#include <filesystem>
#include <functional>

#include <QObject>

#include "host/prepare/Documents.h"
#include "host/preview/SheetsSaver.h"
#include "host/task/JobReport.h"
#include "host/task/JobSequence.h"

namespace tavrin {

// The way from Print to the paper, or into a file: waits until the documents are known, then has
// them prepared and sent, or their sheets saved. Documents that were sent are taken off the list,
// so that the next run does not send them again.
class PrintRun : public QObject {
  Q_OBJECT

 public:
  // What is being done.
  struct Work {
    enum class Kind { preparing, sending, sendingFronts, sendingBacks, saving };
    Kind kind = Kind::preparing;
    std::size_t document = 1;   // which one is sent, or has its paper turned, from 1
    std::size_t documents = 1;  // of how many
  };

  // The documents outlive the run.
  explicit PrintRun(Documents& documents, QObject* parent = nullptr);

  // Either is answered by one of the last five signals, and nothing else is started before. What is
  // ordered is asked for when the documents are known; somebody tells that by documentsKnown().
  void send(std::function<JobSequence::Order()> order);
  void save(const std::function<Preparation()>& preparation, const std::filesystem::path& file,
            SheetsSaver::Existing existing);
  void documentsKnown();
  // The paper has been turned: prints its backs.
  void printBacks(JobSequence::BackOrder order) { sequence.printBacks(order); }
  // Gives up; `cancelled` comes when that is done.
  void cancel();

  Work work() const;
  // Whether what is on its way is a file.
  bool isSaving() const { return saves; }
  // Whether printBacks() can be tried (again).
  bool isWaitingForPaper() const { return sequence.isWaitingForPaper(); }
  // Which document has fronts without backs, in a sentence; empty for none.
  QString bareFronts() const;

 signals:
  void progressed(const tavrin::Progress& progress);
  // The fronts of a document are sent; nothing happens until printBacks() or cancel().
  void paperToBeTurned();
  // Some documents were sent, and are no longer among those to be printed; `rest` says so after a
  // failure or a cancel.
  void documentsTaken();
  void finished(const tavrin::JobReport& report);
  void cancelled(const QString& bareFronts, const QString& rest);
  // No page is left to print; nothing was sent.
  void nothingLeft(const QString& reason);
  void failed(const QString& reason, const QString& rest);
  // The output folder cannot take the job; another one may.
  void folderRefused(const QString& reason, const QString& rest);

 private:
  void connectSequence();
  void connectSaver();
  void onceKnown(std::function<void()> begin);
  QString takeSent();

  Documents& papers;
  JobSequence sequence;
  SheetsSaver saver;
  bool saves = false;
  std::function<void()> waiting;  // what to do when the documents are known; empty for nothing
};

}  // namespace tavrin
