#include "host/documents/PDFName.h"

#include <QCoreApplication>
#include <QFileDialog>
#include <QFileInfo>
#include <QStandardPaths>

#include "host/document/DocumentName.h"

namespace tavrin {

namespace {

constexpr char kSuffix[] = "pdf";

QString folderFor(const std::filesystem::path& document) {
  const QFileInfo folder(QFileInfo(QFile::decodeName(document.c_str())).absolutePath());
  if (document != kStandardInput && folder.isWritable()) return folder.filePath();
  return QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
}

QString tr(const char* text) { return QCoreApplication::translate("PDFName", text); }

}  // namespace

// A PDF that is printed as one gets a name beside its own.
QString suggestedPDF(const std::filesystem::path& document) {
  const QFileInfo original(QFile::decodeName(document.c_str()));
  const bool isNamed = document != kStandardInput;
  const QString name = isNamed ? original.completeBaseName() : tr("Document");
  const bool isPDF = original.suffix().compare(kSuffix, Qt::CaseInsensitive) == 0;
  return folderFor(document) + "/" + (isPDF ? tr("%1 to print").arg(name) : name) + ".pdf";
}

QString askForPDF(const std::filesystem::path& document, QWidget* parent) {
  QFileDialog dialog(parent, tr("Save as PDF"), suggestedPDF(document), tr("PDF files (*.pdf)"));
  dialog.selectFile(QFileInfo(suggestedPDF(document)).fileName());
  dialog.setAcceptMode(QFileDialog::AcceptSave);
  dialog.setDefaultSuffix(kSuffix);
  return dialog.exec() == QDialog::Accepted ? dialog.selectedFiles().value(0) : QString();
}

}  // namespace tavrin
