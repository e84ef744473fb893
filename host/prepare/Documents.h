#pragma once

#include <filesystem>
#include <memory>
#include <vector>

#include <QObject>

#include "host/prepare/DocumentFacts.h"
#include "host/prepare/DocumentFile.h"
#include "host/prepare/DocumentLook.h"

namespace tavrin {

// The documents that a person wants to print, and what is known of them. Nothing in it waits,
// however long a document takes to come.
class Documents : public QObject {
  Q_OBJECT

 public:
  explicit Documents(QObject* parent = nullptr) : QObject(parent) {}

  // Appends some; they are looked at, too, if the others are.
  void add(const std::vector<std::filesystem::path>& documents);
  // Forgets the one in that place, whether or not it has been looked at; becameKnown does not come
  // where all others have been. Does nothing where there is none.
  void remove(std::size_t place);
  // Forgets the first ones; they have all been looked at.
  void dropFirst(std::size_t count);
  // Looks at all of them again if one has changed since it was looked at.
  void lookAgain();
  // Looks at them, one after the other; does nothing when that has begun.
  void look();

  // Whether all have been looked at.
  bool areKnown() const { return known == facts.size(); }
  // In the order in which they were added; of those that have not been looked at, only the path.
  const std::vector<DocumentFacts>& all() const { return facts; }

 signals:
  // All have been looked at. Comes by way of the event loop.
  void becameKnown();

 private:
  void lookAtNext();
  void take(const DocumentFacts& seen);

  std::vector<DocumentFacts> facts;
  std::vector<std::unique_ptr<DocumentFile>> files;  // of those that have been looked at
  std::unique_ptr<DocumentLook> current;
  std::size_t known = 0;
  bool isLooking = false;
};

}  // namespace tavrin
