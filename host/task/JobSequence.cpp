#include "host/task/JobSequence.h"

#include <utility>

#include "host/prepare/Imposition.h"
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
  connect(&runner, &JobRunner::folderRefused, this, [this](const QString& reason) {
    giveUp();
    emit folderRefused(reason);
  });
  connect(&runner, &JobRunner::failed, this, &JobSequence::fail);
}

void JobSequence::start(const Order& wanted) {
  order = wanted;
  documents.clear();
  reports.clear();
  sentDocuments = 0;
  isTurning = false;
  pass = Pass::only;
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

JobSequence::Step JobSequence::step() const {
  if (documents.empty()) return Step::preparing;
  if (pass == Pass::only) return Step::sending;
  return pass == Pass::fronts ? Step::sendingFronts : Step::sendingBacks;
}

// --- A document ---

void JobSequence::sendNext() {
  if (order.inTwoPasses) pass = Pass::fronts;
  sendPass();
}

void JobSequence::sendPass() {
  emit progressed({});
  const PreparedDocument& document = documents[sentDocuments];
  if (pass != Pass::only && document.folder) return pickSide();
  send(document.folder ? document.file : "");
}

void JobSequence::pickSide() {
  picker = std::make_unique<SidePicker>(documents[sentDocuments], order.preparation.paper);
  isPicking = true;
  connect(picker.get(), &SidePicker::failed, this, &JobSequence::fail);
  connect(picker.get(), &SidePicker::picked, this, [this](const std::filesystem::path& file) {
    isPicking = false;
    send(file);
  });
  picker->start(pass == Pass::fronts ? SidePicker::Side::fronts : SidePicker::Side::backs);
}

void JobSequence::send(const std::filesystem::path& prepared) {
  JobRequest request = order.request;
  request.document = documents[sentDocuments].document;
  request.options = documents[sentDocuments].options;
  request.prepared = prepared;
  if (request.title.empty()) request.title = titleOfSeveral(currentFacts()).toStdString();
  if (order.output.empty())
    runner.submit(request, passOptions());
  else
    runner.writeFolder(order.output, request, passOptions());
}

// A person with twelve pictures in the queue sees more than the name of the first one.
QString JobSequence::titleOfSeveral(const std::vector<DocumentFacts>& facts) {
  if (facts.size() == 1) return {};
  const QString first = QString::fromStdString(nameInWords(facts.front().document));
  return tr("%1 and %n more", nullptr, static_cast<int>(facts.size() - 1)).arg(first);
}

// Each pass is printed on one side of the paper.
OptionList JobSequence::passOptions() const {
  OptionList options = documents[sentDocuments].options;
  if (pass == Pass::only) return options;
  setOption(options, kSidesOption, kOneSided);
  if (!documents[sentDocuments].folder)
    setOption(options, kPageSetOption, pass == Pass::fronts ? "odd" : "even");
  if (pass == Pass::backs && backOrder == BackOrder::reversed)
    setOption(options, kSheetOrderOption, order.lastSheetFirst ? "normal" : kReverse);
  return options;
}

std::vector<DocumentFacts> JobSequence::currentFacts() const {
  const Preparation& all = order.preparation;
  if (goTogether(all.documents, all.options)) return all.documents;
  return {documents[sentDocuments].facts};
}

void JobSequence::arrived(const JobReport& report) {
  reports.push_back(report);
  if (pass == Pass::fronts && !fitOnOneSide(currentFacts(), order.preparation.options)) {
    pass = Pass::backs;
    isTurning = true;
    return emit paperToBeTurned();
  }
  pass = Pass::only;
  if (++sentDocuments == documents.size()) return emit finished(inOne(reports));
  sendNext();
}

void JobSequence::printBacks(BackOrder wanted) {
  if (!std::exchange(isTurning, false)) return;
  backOrder = wanted;
  sendPass();
}

// --- Ends ---

// The fronts are not printed again for the sake of the backs.
void JobSequence::giveUp() {
  isPicking = false;
  isTurning = pass == Pass::backs;
}

void JobSequence::fail(const QString& reason) {
  giveUp();
  emit failed(reason);
}

void JobSequence::cancel() {
  const bool isSending = !preparer && !isPicking && !isTurning;
  if (isSending) return runner.cancel();
  isTurning = false;
  isPicking = false;
  picker.reset();
  preparer.reset();
  QMetaObject::invokeMethod(this, &JobSequence::cancelled, Qt::QueuedConnection);
}

}  // namespace tavrin
