#pragma once

#include <memory>
#include <optional>

#include <QObject>
#include <QTimer>

#include "host/preview/SheetPainter.h"
#include "host/preview/SheetsMaker.h"

namespace tavrin {

// The sheets of a job as they will come out of the printer. It exists so that nothing that shows
// them waits: whatever is asked for is answered by a signal, and work that nobody wants any more is
// dropped.
class Preview : public QObject {
  Q_OBJECT

 public:
  enum class Stage {
    empty,    // there is nothing to show yet
    waiting,  // for the documents
    working,  // on the sheets
    ready,    // to draw
    nothing,  // no page of the document is left to print; the problem says so
    failed,   // there are no sheets; the problem says why
  };

  explicit Preview(QObject* parent = nullptr);

  // Makes the sheets of this job, soon: of several jobs in quick succession only those of the last.
  void show(const Preparation& job);
  // Somebody looks at the documents first.
  void wait();
  // Forgets the job and its sheets.
  void clear();
  // Drops all work until the next show().
  void pause();

  Stage stage() const { return now; }
  // While new sheets are made, still the sheets before.
  const Sheets& sheets() const { return shown; }
  // A sentence; empty unless the stage is nothing or failed.
  const QString& problem() const { return why; }

  // Draws a sheet (SheetPainter::draw), if it is there.
  void draw(int index, int pixels, SheetPainter::Ink ink);

 signals:
  void stageChanged();
  void drawn(int index, int pixels, const QByteArray& picture);
  void drawingFailed(int index);

 private:
  void enter(Stage stage);
  void begin();
  void take(const Sheets& sheets);
  void stopWith(Stage stage, const QString& reason);
  void fail(const QString& reason) { stopWith(Stage::failed, reason); }

  std::optional<Preparation> wanted;
  QTimer rest;  // until the person has stopped
  std::unique_ptr<SheetsMaker> maker;
  SheetPainter painter;
  Sheets shown;
  Stage now = Stage::empty;
  QString why;
};

}  // namespace tavrin
