#include "host/program/ProblemWindow.h"

#include "platform/qt/base/ShownText.h"

namespace tavrin {

ProblemWindow::ProblemWindow(const std::string& sentence) {
  setWindowTitle(tr("Print"));
  setIcon(QMessageBox::Warning);
  setTextFormat(Qt::PlainText);
  setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
  setText(shownLines(sentence));
  addButton(tr("&Close"), QMessageBox::RejectRole);
}

}  // namespace tavrin
