#pragma once

#include <filesystem>
#include <memory>

#include <QObject>

#include "host/prepare/DocumentPreparer.h"

namespace tavrin {

// Makes a document of the fronts or of the backs of sheets, for paper that is printed on both sides
// in two passes. It exists because the print system, told to print every other page, adds an empty
// one where they are odd in number, and then no back is on its sheet.
class SidePicker : public QObject {
  Q_OBJECT

 public:
  enum class Side { fronts, backs };

  // The document has been prepared as whole sheets of that paper.
  SidePicker(PreparedDocument document, const Paper& paper, QObject* parent = nullptr);

  // Answered by one of the signals, unless the picker is gone by then.
  void start(Side side);

 signals:
  // The document of that side; it is there as long as the picker.
  void picked(const std::filesystem::path& file);
  void failed(const QString& reason);

 private:
  void take(int status);

  PreparedDocument sheets;
  Paper paper;
  std::shared_ptr<const HiddenFolder> folder;
  std::unique_ptr<LimitedCommand> command;
};

// Whether all that is to be printed of these documents, which make one job, goes on one side of one
// sheet; false where nobody knows.
bool fitOnOneSide(const std::vector<DocumentFacts>& documents, const OptionList& options);

}  // namespace tavrin
