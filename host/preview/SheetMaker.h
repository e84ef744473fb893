#pragma once

#include <functional>
#include <memory>
#include <string>

#include <QObject>

#include "host/prepare/LimitedCommand.h"
#include "host/preview/Sheets.h"

namespace tavrin {

// Lays a prepared document out as the print system does, with the print system's own filters.
class SheetMaker : public QObject {
  Q_OBJECT

 public:
  // The PPD's text, empty for a printer that takes documents as they are, the paper that is marked
  // in it, and the job's title.
  SheetMaker(PreparedDocument document, std::string ppd, const Paper& paper, std::string title,
             QObject* parent = nullptr);

  // Answered by one of the signals, unless the maker is gone by then.
  void start();

 signals:
  void made(const tavrin::LaidOutDocument& sheets);
  // No page of the document is left to print.
  void nothingLeft();
  void failed(const QString& reason);

 private:
  const PreparedDocument& document() const { return sheets.document; }
  // Why these sheets cannot be made; empty when they can.
  QString obstacle() const;
  void layOut();
  void lookAtSheets();
  void run(const LimitedCommand::Call& call, std::function<void(LimitedCommand::End)> next);
  void complain(LimitedCommand::End end);

  std::string ppd;
  Paper paper;
  std::string title;
  LaidOutDocument sheets;
  std::unique_ptr<LimitedCommand> command;
};

}  // namespace tavrin
