#include "host/task/PrintRun.h"

#include <utility>

namespace tavrin {

PrintRun::PrintRun(Documents& documents, QObject* parent) : QObject(parent), papers(documents) {
  connectSequence();
  connectSaver();
}

void PrintRun::connectSequence() {
  connect(&sequence, &JobSequence::progressed, this, &PrintRun::progressed);
  connect(&sequence, &JobSequence::paperToBeTurned, this, &PrintRun::paperToBeTurned);
  connect(&sequence, &JobSequence::finished, this, &PrintRun::finished);
  connect(&sequence, &JobSequence::nothingLeft, this, &PrintRun::nothingLeft);
  connect(&sequence, &JobSequence::cancelled, this, [this] {
    const QString fronts = bareFronts();
    emit cancelled(fronts, takeSent());
  });
  connect(&sequence, &JobSequence::failed, this,
          [this](const QString& reason) { emit failed(reason, takeSent()); });
  connect(&sequence, &JobSequence::folderRefused, this,
          [this](const QString& reason) { emit folderRefused(reason, takeSent()); });
}

void PrintRun::connectSaver() {
  connect(&saver, &SheetsSaver::saved, this,
          [this](const std::filesystem::path& file) { emit finished(reportOnFile(file)); });
  connect(&saver, &SheetsSaver::nothingLeft, this, &PrintRun::nothingLeft);
  connect(&saver, &SheetsSaver::cancelled, this, [this] { emit cancelled({}, {}); });
  connect(&saver, &SheetsSaver::failed, this,
          [this](const QString& reason) { emit failed(reason, {}); });
}

void PrintRun::send(std::function<JobSequence::Order()> order) {
  saves = false;
  onceKnown([this, order = std::move(order)] { sequence.start(order()); });
}

void PrintRun::save(const std::function<Preparation()>& preparation,
                    const std::filesystem::path& file, SheetsSaver::Existing existing) {
  saves = true;
  onceKnown([=, this] { saver.save(preparation(), file, existing); });
}

void PrintRun::onceKnown(std::function<void()> begin) {
  papers.lookAgain();
  if (papers.areKnown()) return begin();
  waiting = std::move(begin);
  papers.look();
}

void PrintRun::documentsKnown() {
  if (waiting) std::exchange(waiting, {})();
}

void PrintRun::cancel() {
  if (waiting) {
    waiting = {};
    return emit cancelled({}, {});
  }
  saves ? saver.cancel() : sequence.cancel();
}

PrintRun::Work PrintRun::work() const {
  using Kind = Work::Kind;
  using Step = JobSequence::Step;
  const Work begun{saves && !waiting ? Kind::saving : Kind::preparing, 1, papers.all().size()};
  if (waiting || saves) return begun;
  switch (sequence.step()) {
    case Step::preparing:
      return begun;
    case Step::sending:
      return {Kind::sending, sequence.sent() + 1, sequence.count()};
    case Step::sendingFronts:
      return {Kind::sendingFronts, sequence.sent() + 1, sequence.count()};
    case Step::sendingBacks:
      return {Kind::sendingBacks, sequence.sent() + 1, sequence.count()};
  }
  return begun;
}

QString PrintRun::bareFronts() const {
  if (!sequence.hasBareFronts()) return {};
  const DocumentFacts& document = papers.all()[sequence.sent()];
  return tr("The fronts of “%1” were printed, its backs were not.")
      .arg(QString::fromStdString(nameInWords(document.document)));
}

// What to do about the others, in a sentence; empty where none was sent. Those whose paper waits to
// be turned are still under way.
QString PrintRun::takeSent() {
  if (isWaitingForPaper()) return {};
  const std::size_t sent = sequence.takeSent();
  const std::size_t all = papers.all().size();
  if (sent == 0 || sent == all) return {};
  papers.dropFirst(sent);
  emit documentsTaken();
  return tr(" %1 of %2 documents were sent before; Print sends the others.").arg(sent).arg(all);
}

}  // namespace tavrin
