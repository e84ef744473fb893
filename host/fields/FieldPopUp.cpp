#include "host/fields/FieldPopUp.h"

#include <QEvent>

#include "host/fields/SettingPictures.h"
#include "host/panes/Widgets.h"
#include "host/request/SettingWords.h"
#include "host/task/JobFields.h"

namespace tavrin {

FieldPopUp::FieldPopUp(JobFields& theFields, const char* theOption, const QString& name,
                       QWidget* parent, Text text)
    : QComboBox(parent), fields(theFields), option(theOption) {
  setObjectName(QString::fromStdString(option));
  setAccessibleName(name);
  fill(text);
  refresh();
  letPopUpShrink(*this);
  connect(&fields, &JobFields::suggestionTaken, this, &FieldPopUp::refresh);
  connect(&fields, &JobFields::changed, this, &FieldPopUp::refresh);
  connect(this, &QComboBox::activated, this,
          [this](int index) { fields.setValue(option, itemData(index).toString().toStdString()); });
}

void FieldPopUp::fill(Text text) {
  for (const std::string& value : findJobSetting(option)->values)
    addItem(text ? text(value) : valueText(option, value), QString::fromStdString(value));
  addPictures();
}

void FieldPopUp::addPictures() {
  const int height = fontMetrics().height();
  for (int i = 0; i < count(); ++i)
    setItemIcon(i, valuePicture(option, itemData(i).toString().toStdString(), palette(), height));
}

void FieldPopUp::changeEvent(QEvent* event) {
  QComboBox::changeEvent(event);
  if (event->type() == QEvent::PaletteChange || event->type() == QEvent::FontChange) addPictures();
}

void FieldPopUp::refresh() {
  setCurrentIndex(findData(QString::fromStdString(fields.effectiveValue(option))));
}

}  // namespace tavrin
