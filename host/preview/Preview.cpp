#include "host/preview/Preview.h"

#include <utility>

namespace tavrin {

namespace {

// Longer than the pauses between two keys or turns of a wheel, shorter than anybody waits.
constexpr std::chrono::milliseconds kRest(120);
// So that a window comes up before its preview wants the processor.
constexpr std::chrono::milliseconds kFirstRest(100);

}  // namespace

Preview::Preview(QObject* parent) : QObject(parent) {
  rest.setSingleShot(true);
  rest.setInterval(kRest);
  connect(&rest, &QTimer::timeout, this, &Preview::begin);
  connect(&document, &DocumentFile::ready, this, &Preview::makeSheets);
  connect(&document, &DocumentFile::failed, this, &Preview::fail);
  connect(&painter, &SheetPainter::drawn, this, &Preview::drawn);
  connect(&painter, &SheetPainter::failed, this, &Preview::drawingFailed);
}

void Preview::enter(Stage stage) {
  now = stage;
  emit stageChanged();
}

void Preview::show(const PreviewJob& job) {
  if (wanted == job) return;
  const bool isFirst = !wanted;
  wanted = job;
  maker.reset();
  if (now == Stage::empty) enter(Stage::working);
  rest.start(isFirst ? kFirstRest : kRest);
}

void Preview::pause() {
  rest.stop();
  if (document.path().empty()) document.stop();
  maker.reset();
  painter.stop();
  wanted.reset();
}

void Preview::clear() {
  pause();
  shown = {};
  enter(Stage::empty);
}

void Preview::begin() {
  if (!document.path().empty()) return makeSheets();
  enter(Stage::waiting);
  document.fetch(wanted->document);
}

void Preview::makeSheets() {
  if (!wanted || rest.isActive()) return;
  enter(Stage::working);
  maker = std::make_unique<SheetMaker>(*wanted, document.path(), document.format());
  connect(maker.get(), &SheetMaker::made, this, &Preview::take);
  connect(maker.get(), &SheetMaker::nothingLeft, this, [this] {
    stopWith(Stage::nothing, tr("With these settings nothing comes out of the printer: no page of "
                                "the document is left to print."));
  });
  connect(maker.get(), &SheetMaker::failed, this, &Preview::fail);
  maker->start();
}

void Preview::take(const Sheets& sheets) {
  painter.stop();
  shown = sheets;
  why.clear();
  enter(Stage::ready);
}

void Preview::stopWith(Stage stage, const QString& reason) {
  why = reason;
  enter(stage);
}

void Preview::draw(int index, int pixels, SheetPainter::Ink ink) {
  if (index >= 0 && static_cast<std::size_t>(index) < shown.list.size())
    painter.draw(shown, index, pixels, ink);
}

}  // namespace tavrin
