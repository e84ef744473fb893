#include "host/documents/AddedDocuments.h"

#include <algorithm>

#include <QCoreApplication>
#include <QFile>
#include <QFileDialog>
#include <QFileInfo>

#include "host/document/DocumentName.h"
#include "host/request/JobRequest.h"
#include "host/task/PrintTask.h"
#include "platform/qt/base/MakeChild.h"
#include "platform/qt/base/ShownText.h"

namespace tavrin {
namespace {

constexpr int kMostNamed = 3;  // in a sentence
constexpr int kMostInToolTip = 20;

struct AddedTexts {
  Q_DECLARE_TR_FUNCTIONS(AddedDocuments)
};

QString lineOf(const QString& text) { return shownLine(text.toStdString()); }

QString nameOf(const DocumentFacts& document) { return shownLine(nameInWords(document.document)); }

// Why it cannot be printed, with its name; empty when it can.
QString whyNot(const QUrl& url) {
  if (!url.isLocalFile())
    return AddedTexts::tr("“%1” is not on this computer (save it here first)")
        .arg(lineOf(url.toDisplayString()));
  const QFileInfo file(url.toLocalFile());
  const QString name = lineOf(file.fileName().isEmpty() ? file.filePath() : file.fileName());
  if (!file.exists()) return AddedTexts::tr("“%1” is no longer there").arg(name);
  if (file.isDir()) return AddedTexts::tr("“%1” is a folder (add the files in it)").arg(name);
  if (!file.isFile()) return AddedTexts::tr("“%1” is no file").arg(name);
  return file.isReadable() ? QString() : AddedTexts::tr("you may not read “%1”").arg(name);
}

QString inOneSentence(QStringList reasons) {
  if (reasons.empty()) return {};
  const auto others = static_cast<int>(reasons.size()) - kMostNamed;
  if (others > 0) {
    reasons.resize(kMostNamed);
    reasons << AddedTexts::tr("%n others cannot be printed either", nullptr, others);
  }
  return AddedTexts::tr("Not added: %1.").arg(reasons.join(AddedTexts::tr("; ", "in a list")));
}

QString whatWasAdded(const std::vector<std::filesystem::path>& documents) {
  if (documents.empty()) return {};
  if (documents.size() == 1)
    return AddedTexts::tr("“%1” was added.").arg(shownLine(nameInWords(documents.front())));
  return AddedTexts::tr("%n documents were added.", nullptr, static_cast<int>(documents.size()));
}

}  // namespace

AddedDocuments sortedDocuments(const QList<QUrl>& urls) {
  AddedDocuments added;
  QStringList reasons;
  for (const QUrl& url : urls) {
    const QString reason = whyNot(url);
    if (reason.isEmpty())
      added.documents.emplace_back(QFile::encodeName(url.toLocalFile()).toStdString());
    else
      reasons << reason;
  }
  added.refusal = inOneSentence(reasons);
  return added;
}

void addDocuments(PrintTask& task, const QList<QUrl>& urls) {
  const AddedDocuments added = sortedDocuments(urls);
  if (!added.documents.empty()) task.addDocuments(added.documents);
  QStringList sentences{whatWasAdded(added.documents), added.refusal};
  sentences.removeAll("");
  const std::string said = sentences.join(' ').toStdString();
  added.refusal.isEmpty() ? task.say(said) : task.warn(said);
}

void askForDocuments(PrintTask& task, QWidget* parent) {
  const auto& first = task.documents().all().front().document;
  const QString folder = QFileInfo(QFile::decodeName(first.c_str())).absolutePath();
  auto* chooser = makeChild<QFileDialog>(parent, AddedTexts::tr("Add Documents"),
                                         first == kStandardInput ? QString() : folder);
  chooser->setAttribute(Qt::WA_DeleteOnClose);
  chooser->setFileMode(QFileDialog::ExistingFiles);
  QObject::connect(chooser, &QFileDialog::urlsSelected, &task,
                   [&task](const QList<QUrl>& urls) { addDocuments(task, urls); });
  chooser->open();
}

QString documentsInWords(const PrintTask& task) {
  const auto count = static_cast<int>(task.documents().all().size());
  return count == 1 ? shownLine(titleInWords(task.request()))
                    : AddedTexts::tr("%n documents", nullptr, count);
}

QString documentNames(const PrintTask& task) {
  QStringList names;
  for (const DocumentFacts& document : task.documents().all()) names << nameOf(document);
  if (names.size() <= kMostInToolTip) return names.join('\n');
  names.resize(kMostInToolTip);
  return names.join('\n') + "\n…";
}

}  // namespace tavrin
