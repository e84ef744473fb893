#include "host/program/ProblemWindow.h"

#include "host/notes/ShownSentence.h"

namespace tavrin {

ProblemWindow::ProblemWindow(const std::string& sentence) {
  setWindowTitle(tr("Print"));
  setIcon(QMessageBox::Warning);
  setTextFormat(Qt::PlainText);
  setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
  setText(shownSentence(sentence));
  addButton(tr("&Close"), QMessageBox::RejectRole);
}

}  // namespace tavrin
