#pragma once

#include <string>

#include <QCheckBox>

namespace tavrin {

class JobFields;

// A check box for a setting of the job that has two values. It shows what the field has, whoever
// set it, and passes the person's choice on to it.
class FieldSwitch : public QCheckBox {
  Q_OBJECT

 public:
  // The option names a setting of the table, which is usual while the box has no tick. The text may
  // hold a mnemonic. The fields outlive the box.
  FieldSwitch(JobFields& fields, const char* option, const QString& text, QWidget* parent);

 private:
  void refresh();

  JobFields& fields;
  const std::string option;
};

}  // namespace tavrin
