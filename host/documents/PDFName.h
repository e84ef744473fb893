#pragma once

#include <filesystem>

#include <QString>

class QWidget;

namespace tavrin {

// The file that a document would be saved as: its own name, in its own folder where it has one that
// the person can write to, else in the person's folder for documents.
QString suggestedPDF(const std::filesystem::path& document);

// Asks the person for the name of a PDF, and whether it may take the place of a file that is there.
// Empty where the person does not want to save anything.
QString askForPDF(const std::filesystem::path& document, QWidget* parent);

}  // namespace tavrin
