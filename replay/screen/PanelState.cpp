#include "replay/screen/PanelState.h"

#include <cmath>

#include <QAbstractButton>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QRadioButton>
#include <QSlider>

#include "platform/qt/layout/ViewFrames.h"
#include "replay/screen/Outlets.h"

namespace tavrin {
namespace {

bool isEnabled(const QWidget& widget) { return !widget.testAttribute(Qt::WA_ForceDisabled); }

std::string itemText(const QComboBox& box, int index, int role) {
  return box.itemData(index, role).toByteArray().toStdString();
}

Json state(const QComboBox& box) {
  Json items = Json::array();
  for (int i = 0; i < box.count(); ++i)
    items.push_back(
        {{"title", itemText(box, i, kRawTitleRole)}, {"value", itemText(box, i, kValueRole)}});
  return {{"kind", "popup"},
          {"hidden", isFlaggedHidden(box)},
          {"enabled", isEnabled(box)},
          {"items", items},
          {"index", box.currentIndex()}};
}

std::string kindOf(const QAbstractButton& button) {
  if (qobject_cast<const QRadioButton*>(&button)) return "radio";
  return qobject_cast<const QCheckBox*>(&button) ? "check" : "disclosure";
}

Json state(const QAbstractButton& button) {
  return {{"kind", kindOf(button)},
          {"hidden", isFlaggedHidden(button)},
          {"enabled", isEnabled(button)},
          {"title", textOf(button, button.text())},
          {"on", button.isChecked()}};
}

Json state(const QSlider& slider) {
  return {{"kind", "slider"},
          {"hidden", isFlaggedHidden(slider)},
          {"enabled", isEnabled(slider)},
          {"value", slider.value()},
          {"min", slider.minimum()},
          {"max", slider.maximum()}};
}

Json state(const QLabel& label) {
  const QString color = label.property(kTextColor).toString();
  return {{"kind", "label"},
          {"hidden", isFlaggedHidden(label)},
          {"text", textOf(label, label.text())},
          {"color", color.isEmpty() ? "default" : color.toStdString()}};
}

template <class Kind>
void addStates(Json& controls, const QWidget& root) {
  for (const auto& [name, widget] : outlets<Kind>(root)) controls[name] = state(*widget);
}

Json controlsOf(const QWidget& panel) {
  Json controls = Json::object();
  addStates<QComboBox>(controls, panel);
  addStates<QAbstractButton>(controls, panel);
  addStates<QSlider>(controls, panel);
  addStates<QLabel>(controls, panel);
  return controls;
}

// Whole points without a fraction.
Json points(double value) {
  return value == std::trunc(value) ? Json(std::llround(value)) : Json(value);
}

Json frame(const QWidget& widget) {
  const Rect place = frameOf(widget);
  return {{"x", points(place.x)},
          {"y", points(place.y)},
          {"width", points(place.width)},
          {"height", points(place.height)}};
}

const QWidget* viewNamed(const QWidget& panel, const char* name) {
  return panel.objectName() == name ? &panel : panel.findChild<const QWidget*>(name);
}

Json viewsOf(const QWidget& panel) {
  Json views = Json::object();
  for (const char* name : {"ibPDEView", "ibHeaderView", "ibAdvancedView"}) {
    if (const QWidget* view = viewNamed(panel, name)) {
      views[name] = frame(*view);
      views[name]["hidden"] = isFlaggedHidden(*view);
    }
  }
  for (const char* name :
       {"ibDisclosure", "ibDisclosureLabel", "ibPaperSource", "ibPaperSourceLabel"})
    if (const QWidget* view = viewNamed(panel, name)) views[name] = frame(*view);
  return views;
}

}  // namespace

Json panelState(const QWidget& panel) {
  return {{"controls", controlsOf(panel)}, {"views", viewsOf(panel)}};
}

}  // namespace tavrin
