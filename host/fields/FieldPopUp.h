#pragma once

#include <string>

#include <QComboBox>

namespace tavrin {

class JobFields;

// A pop-up of the values of a setting of the job. It shows what the field has, whoever set it, or
// what that comes to with the other fields, and passes the person's choice on to it.
class FieldPopUp : public QComboBox {
  Q_OBJECT

 public:
  // The text of a value.
  using Text = QString (*)(const std::string& value);

  // The option names a setting of the table, the name says to people what it is. The fields outlive
  // the pop-up. Without a text function, the values have their usual texts.
  FieldPopUp(JobFields& fields, const char* option, const QString& name, QWidget* parent,
             Text text = nullptr);

 protected:
  void changeEvent(QEvent* event) override;

 private:
  void fill(Text text);
  void addPictures();
  void refresh();

  JobFields& fields;
  const std::string option;
};

}  // namespace tavrin
