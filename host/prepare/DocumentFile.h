#pragma once

#include <filesystem>
#include <memory>
#include <string>

#include <QObject>

#include "host/support/Background.h"
#include "host/support/HiddenFolder.h"

namespace tavrin {

// A document as a file that a command can read: a file is one already, standard input is copied
// into one. Nothing in it waits, however long the document takes to come.
class DocumentFile : public QObject {
  Q_OBJECT

 public:
  explicit DocumentFile(QObject* parent = nullptr) : QObject(parent) {}

  // Makes the document ready; answered by one of the signals. What has failed fails again.
  void fetch(const std::filesystem::path& document);
  // Gives up, so that somebody else can read on; what has come is not lost.
  void stop() { background.cancel(); }

  // Where it is; empty until it is ready.
  const std::filesystem::path& path() const { return file; }
  // Its MIME type.
  const std::string& format() const { return itsFormat; }

 signals:
  void ready();
  void failed(const QString& reason);

 private:
  void refuse(const QString& reason);

  std::shared_ptr<const HiddenFolder> folder;  // of the copy; outlives the thread that fills it
  std::filesystem::path file;
  std::string itsFormat;
  QString refusal;
  Background background;
};

}  // namespace tavrin
