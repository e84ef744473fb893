#pragma once

#include <memory>

#include <QObject>

#include "host/prepare/DocumentFacts.h"
#include "host/prepare/LimitedCommand.h"
#include "host/support/HiddenFolder.h"

namespace tavrin {

// Counts and measures the pages of a document, in a process of its own.
class DocumentLook : public QObject {
  Q_OBJECT

 public:
  // The facts have the file and its format.
  explicit DocumentLook(DocumentFacts facts, QObject* parent = nullptr);

  // Answered by the signal, unless the look is gone by then. What cannot be seen stays unknown; a
  // document that is protected has that for its problem.
  void start();

 signals:
  void seen(const tavrin::DocumentFacts& facts);

 private:
  void read();

  DocumentFacts facts;
  std::shared_ptr<const HiddenFolder> folder;
  std::unique_ptr<LimitedCommand> command;
};

// What is said of a document that cannot be opened without its password, or must not be printed.
QString whyProtected(const std::filesystem::path& document);
// What is said of a picture that cannot be decoded.
QString whyDamagedPicture(const std::filesystem::path& document);

}  // namespace tavrin
