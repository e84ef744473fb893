#pragma once

#include <QDialog>

namespace tavrin {

// The dialog's own help: what each part of it is for. It can stay open beside the dialog.
class HelpWindow : public QDialog {
  Q_OBJECT

 public:
  explicit HelpWindow(QWidget* parent);
};

}  // namespace tavrin
