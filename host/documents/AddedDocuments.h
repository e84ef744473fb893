#pragma once

#include <filesystem>
#include <vector>

#include <QList>
#include <QString>
#include <QUrl>

class QWidget;

namespace tavrin {

class PrintTask;

// Files that a person brings, sorted.
struct AddedDocuments {
  std::vector<std::filesystem::path> documents;  // that can be printed
  QString refusal;                               // a sentence about the others; empty for none
};

// A folder, what is not on this computer and what the person may not read cannot be printed.
AddedDocuments sortedDocuments(const QList<QUrl>& urls);

// Adds to a task what can be printed of this, and tells the person in the task's notice what was
// added and what was not.
void addDocuments(PrintTask& task, const QList<QUrl>& urls);

// Asks for more documents in a window that belongs to the parent and does not hold up anything,
// and adds them.
void askForDocuments(PrintTask& task, QWidget* parent);

// What is printed, for a title or a row: the name of the document, or how many there are.
QString documentsInWords(const PrintTask& task);

// The names of all documents, a line each; no more than fit a tool tip.
QString documentNames(const PrintTask& task);

}  // namespace tavrin
