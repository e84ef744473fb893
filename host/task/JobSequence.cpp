#include "host/task/JobSequence.h"

#include "host/request/JobOptions.h"

namespace tavrin {

JobSequence::JobSequence(QObject* parent) : QObject(parent) { connectRunner(); }

void JobSequence::connectRunner() {
  connect(&runner, &JobRunner::progressed, this, &JobSequence::progressed);
  connect(&runner, &JobRunner::submitted, this, [this](const Submission& submission) {
    arrived(reportOn(order.request.printer, submission));
  });
  connect(&runner, &JobRunner::folderWritten, this,
          [this](const std::filesystem::path& folder) { arrived(reportOn(folder)); });
  connect(&runner, &JobRunner::cancelled, this, &JobSequence::cancelled);
  connect(&runner, &JobRunner::folderRefused, this, &JobSequence::folderRefused);
  connect(&runner, &JobRunner::failed, this, &JobSequence::failed);
}

void JobSequence::start(const Order& wanted) {
  order = wanted;
  documents.clear();
  reports.clear();
  sentDocuments = 0;
  isTurning = false;
  pass = order.inTwoPasses ? Pass::fronts : Pass::only;
  prepare();
}

void JobSequence::prepare() {
  preparer = std::make_unique<DocumentPreparer>(order.preparation);
  connect(preparer.get(), &DocumentPreparer::failed, this, &JobSequence::failed);
  connect(preparer.get(), &DocumentPreparer::nothingLeft, this, &JobSequence::nothingLeft);
  connect(preparer.get(), &DocumentPreparer::prepared, this,
          [this](const std::vector<PreparedDocument>& prepared) {
            documents = prepared;
            preparer.reset();
            sendNext();
          });
  preparer->start();
}

void JobSequence::sendNext() {
  const PreparedDocument& next = documents[sentDocuments];
  JobRequest request = order.request;
  request.document = next.document;
  request.options = next.options;
  if (next.folder) request.prepared = next.file;
  OptionList options = next.options;
  if (pass != Pass::only) setOption(options, kPageSetOption, pass == Pass::fronts ? "odd" : "even");
  if (order.output.empty())
    runner.submit(request, options);
  else
    runner.writeFolder(order.output, request, options);
}

void JobSequence::arrived(const JobReport& report) {
  reports.push_back(report);
  if (pass == Pass::fronts) {
    pass = Pass::backs;
    isTurning = true;
    return emit paperToBeTurned();
  }
  if (pass == Pass::backs) pass = Pass::fronts;
  if (++sentDocuments == documents.size()) return emit finished(inOne(reports));
  sendNext();
}

void JobSequence::printBacks() {
  if (std::exchange(isTurning, false)) sendNext();
}

void JobSequence::cancel() {
  const bool isSending = !preparer && !isTurning;
  if (isSending) return runner.cancel();
  isTurning = false;
  preparer.reset();
  QMetaObject::invokeMethod(this, &JobSequence::cancelled, Qt::QueuedConnection);
}

}  // namespace tavrin
