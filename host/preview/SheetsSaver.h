#pragma once

#include <filesystem>
#include <memory>

#include <QObject>

#include "host/prepare/LimitedCommand.h"
#include "host/preview/SheetsMaker.h"
#include "host/support/Background.h"

namespace tavrin {

// Writes the sheets that a preview shows into one PDF, instead of printing them: those of a printer
// as the printer gets them, others as one reads them.
class SheetsSaver : public QObject {
  Q_OBJECT

 public:
  // What is to happen to a file that is there already: nothing, unless the person has agreed.
  enum class Existing { stays, isReplaced };

  explicit SheetsSaver(QObject* parent = nullptr) : QObject(parent) {}

  // Answered by one of the signals. The file appears whole or not at all.
  void save(const Preparation& preparation, const std::filesystem::path& file, Existing existing);
  // Gives up; `cancelled` comes when that is done.
  void cancel();

 signals:
  void saved(const std::filesystem::path& file);
  void cancelled();
  void nothingLeft(const QString& reason);
  void failed(const QString& reason);

 private:
  void take(const Sheets& sheets);
  void unite(const std::string& turns);
  void write(const std::filesystem::path& pdf);
  void fail(const QString& reason);

  std::filesystem::path target;
  Existing whatIsThere = Existing::stays;
  bool isForFile = false;  // and no printer's
  std::unique_ptr<SheetsMaker> maker;
  Sheets made;  // holds the files that are being written
  std::shared_ptr<const HiddenFolder> folder;
  std::unique_ptr<LimitedCommand> command;
  bool isWriting = false;  // the background will answer
  Background background;
};

}  // namespace tavrin
