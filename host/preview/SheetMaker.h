#pragma once

#include <filesystem>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include <QObject>

#include "host/preview/LimitedCommand.h"
#include "host/preview/PreviewJob.h"
#include "host/preview/SheetList.h"
#include "host/support/HiddenFolder.h"

namespace tavrin {

// A document as it comes out of a printer: a PDF with a page for each side of paper.
struct Sheets {
  std::shared_ptr<const HiddenFolder> folder;  // holds the PDF
  std::filesystem::path pdf;
  std::vector<Sheet> list;
  OptionList options;     // that they were made with
  int documentPages = 0;  // of the document; 0 where nobody knows
};

// Lays a document out as the print system does, with the print system's own filters.
class SheetMaker : public QObject {
  Q_OBJECT

 public:
  // The file is the job's document.
  SheetMaker(PreviewJob job, std::filesystem::path file, std::string format,
             QObject* parent = nullptr);

  // Answered by one of the signals, unless the maker is gone by then.
  void start();

 signals:
  void made(const tavrin::Sheets& sheets);
  // No page of the document is left to print.
  void nothingLeft();
  void failed(const QString& reason);

 private:
  // Why these sheets cannot be made; empty when they can.
  QString obstacle() const;
  void layOut();
  void lookAtSheets();
  void lookAtDocument();
  // Has a command write a file of that name in the folder.
  void run(const char* program, const QStringList& arguments, const char* output,
           LimitedCommand::Limits limits, std::function<void(LimitedCommand::End)> next);
  void complain(LimitedCommand::End end);
  std::filesystem::path place(const char* name) const { return sheets.folder->path() / name; }

  PreviewJob job;
  std::filesystem::path file;
  std::string format;
  Sheets sheets;
  std::unique_ptr<LimitedCommand> command;
};

// The options of a job as the filters get them, each as one argument "name=value".
QStringList filterOptions(const OptionList& options);

}  // namespace tavrin
