#pragma once

#include <memory>

#include <QObject>

#include "host/preview/SheetMaker.h"

namespace tavrin {

// Makes the sheets of all documents of a job as they will come out of the printer: prepared as they
// are sent, then laid out as the print system does it.
class SheetsMaker : public QObject {
  Q_OBJECT

 public:
  explicit SheetsMaker(Preparation preparation, QObject* parent = nullptr);

  // Answered by one of the signals, unless the maker is gone by then.
  void start() { preparer.start(); }

 signals:
  void made(const tavrin::Sheets& sheets);
  // No page of a document is left to print, and which document.
  void nothingLeft(const QString& reason);
  void failed(const QString& reason);

 private:
  void layOutNext();

  Preparation wanted;
  DocumentPreparer preparer;
  std::vector<PreparedDocument> prepared;
  std::unique_ptr<SheetMaker> maker;
  Sheets sheets;
};

}  // namespace tavrin
