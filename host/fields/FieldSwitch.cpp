#include "host/fields/FieldSwitch.h"

#include "host/task/JobFields.h"

namespace tavrin {

FieldSwitch::FieldSwitch(JobFields& theFields, const char* theOption, const QString& text,
                         QWidget* parent)
    : QCheckBox(text, parent), fields(theFields), option(theOption) {
  setObjectName(QString::fromStdString(option));
  refresh();
  connect(&fields, &JobFields::suggestionTaken, this, &FieldSwitch::refresh);
  connect(&fields, &JobFields::changed, this, &FieldSwitch::refresh);
  connect(this, &QCheckBox::clicked, this, [this] {
    const JobSetting& setting = *findJobSetting(option);
    fields.setValue(option, isChecked() ? setting.values.back() : setting.usual());
  });
}

void FieldSwitch::refresh() { setChecked(fields.value(option) != findJobSetting(option)->usual()); }

}  // namespace tavrin
