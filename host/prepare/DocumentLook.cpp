#include "host/prepare/DocumentLook.h"

#include <fstream>
#include <utility>

#include <nlohmann/json.hpp>

#include "host/document/DocumentName.h"
#include "host/prepare/Imposer.h"

namespace tavrin {

namespace {

constexpr LimitedCommand::Limits kLookLimits{std::chrono::seconds(20), imposerMemory(1 << 30),
                                             16 << 20};

// Numbers that no paper has are as good as none.
double length(const nlohmann::json& seen, const char* name) {
  const double points = seen.value(name, 0.0);
  return points > 0 && points < 1e6 ? points : 0;
}

}  // namespace

DocumentLook::DocumentLook(DocumentFacts theFacts, QObject* parent)
    : QObject(parent), facts(std::move(theFacts)) {}

void DocumentLook::start() {
  const bool hasPages = isPDF(facts.format) || isPicture(facts.format);
  if (hasPages) folder = temporaryHiddenFolder();
  if (!folder) {
    QMetaObject::invokeMethod(
        this, [this] { emit seen(facts); }, Qt::QueuedConnection);
    return;
  }
  command = std::make_unique<LimitedCommand>(LimitedCommand::Call{
      imposer(),
      {"--look", QString::fromStdString(facts.format), QString::fromStdString(facts.file.string())},
      folder->path(),
      folder->path() / "seen",
      kLookLimits});
  connect(command.get(), &LimitedCommand::ended, this, [this](LimitedCommand::End end) {
    if (end == LimitedCommand::End::well) read();
    if (command->status() == int(Imposed::isProtected))
      facts.problem = whyProtected(facts.document).toStdString();
    emit seen(facts);
  });
  command->start();
}

QString whyProtected(const std::filesystem::path& document) {
  return DocumentLook::tr(
             "“%1” is protected with a password. Open it in its own program, and print "
             "it there or save it without the password.")
      .arg(QString::fromStdString(nameInWords(document)));
}

QString whyDamagedPicture(const std::filesystem::path& document) {
  return DocumentLook::tr(
             "“%1” is damaged or cut off, or too large. Copy it anew, or open it in its own "
             "program and print it there.")
      .arg(QString::fromStdString(nameInWords(document)));
}

void DocumentLook::read() {
  std::ifstream stream(folder->path() / "seen");
  const auto seen = nlohmann::json::parse(stream, nullptr, false);
  if (!seen.is_object()) return;
  try {
    facts.pages = seen.value("pages", 0);
    facts.width = length(seen, "width");
    facts.height = length(seen, "height");
    facts.widePages = seen.value("wide", std::vector<int>());
    facts.isStoredOtherwise = seen.value("storedOtherwise", false);
  } catch (const nlohmann::json::exception&) {
    // It answers with what it was made to answer with; anything else tells nothing.
  }
}

}  // namespace tavrin
