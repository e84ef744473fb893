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
  connect(&painter, &SheetPainter::drawn, this, &Preview::drawn);
  connect(&painter, &SheetPainter::failed, this, &Preview::drawingFailed);
}

void Preview::enter(Stage stage) {
  now = stage;
  emit stageChanged();
}

void Preview::show(const Preparation& job) {
  if (wanted == job) return;
  const bool isFirst = !wanted;
  wanted = job;
  maker.reset();
  if (now == Stage::empty || now == Stage::waiting) enter(Stage::working);
  rest.start(isFirst ? kFirstRest : kRest);
}

void Preview::wait() {
  pause();
  enter(Stage::waiting);
}

void Preview::pause() {
  rest.stop();
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
  enter(Stage::working);
  maker = std::make_unique<SheetsMaker>(*wanted);
  connect(maker.get(), &SheetsMaker::made, this, &Preview::take);
  connect(maker.get(), &SheetsMaker::nothingLeft, this,
          [this](const QString& reason) { stopWith(Stage::nothing, reason); });
  connect(maker.get(), &SheetsMaker::failed, this, &Preview::fail);
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
  if (index >= 0 && index < shown.count()) painter.draw(shown, index, pixels, ink);
}

}  // namespace tavrin
