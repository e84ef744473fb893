#include "host/prepare/Documents.h"

#include <algorithm>

namespace tavrin {

namespace {

// Standard input has no such time, and does not change.
std::filesystem::file_time_type timeOfChange(const DocumentFacts& facts) {
  std::error_code none;
  return facts.document == kStandardInput ? std::filesystem::file_time_type()
                                          : std::filesystem::last_write_time(facts.document, none);
}

bool hasChanged(const DocumentFacts& facts) { return timeOfChange(facts) != facts.changed; }

}  // namespace

void Documents::add(const std::vector<std::filesystem::path>& documents) {
  const bool wasDone = isLooking && areKnown();
  for (const auto& document : documents) facts.push_back({document});
  if (wasDone) lookAtNext();
}

void Documents::remove(std::size_t place) {
  if (place >= facts.size()) return;
  const auto offset = static_cast<std::ptrdiff_t>(place);
  const bool isLookedAt = place == known && place < files.size();
  facts.erase(facts.begin() + offset);
  if (isLookedAt) current.reset();
  if (place < files.size()) files.erase(files.begin() + offset);
  if (place < known) --known;
  if (isLookedAt && !areKnown()) lookAtNext();
}

void Documents::dropFirst(std::size_t count) {
  facts.erase(facts.begin(), facts.begin() + static_cast<std::ptrdiff_t>(count));
  files.erase(files.begin(), files.begin() + static_cast<std::ptrdiff_t>(count));
  known -= count;
}

void Documents::lookAgain() {
  if (!areKnown() || std::ranges::none_of(facts, hasChanged)) return;
  files.clear();
  known = 0;
  lookAtNext();
}

void Documents::look() {
  if (isLooking) return;
  isLooking = true;
  lookAtNext();
}

void Documents::lookAtNext() {
  if (areKnown()) return emit becameKnown();
  files.push_back(std::make_unique<DocumentFile>());
  DocumentFile& file = *files.back();
  connect(&file, &DocumentFile::ready, this, [this, &file] {
    DocumentFacts found = facts[known];
    found.file = file.path();
    found.format = file.format();
    current = std::make_unique<DocumentLook>(found);
    connect(current.get(), &DocumentLook::seen, this, &Documents::take);
    current->start();
  });
  connect(&file, &DocumentFile::failed, this, [this](const QString& reason) {
    DocumentFacts found = facts[known];
    found.problem = reason.toStdString();
    take(found);
  });
  file.fetch(facts[known].document);
}

void Documents::take(const DocumentFacts& seen) {
  DocumentFacts& taken = facts[known++] = seen;
  taken.changed = timeOfChange(taken);
  lookAtNext();
}

}  // namespace tavrin
