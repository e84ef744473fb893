#pragma once

#include <string>

#include <QMessageBox>

namespace tavrin {

// Says why the program ends without its dialog. It can only be closed.
class ProblemWindow : public QMessageBox {
  Q_OBJECT

 public:
  explicit ProblemWindow(const std::string& sentence);
};

}  // namespace tavrin
