#include "replay/WidgetState.h"

#include <cmath>
#include <map>

#include <QAbstractButton>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QPlainTextEdit>
#include <QRadioButton>
#include <QSlider>
#include <QWidget>

#include "platform/qt/ViewFrames.h"
#include "platform/qt/WidgetProperties.h"

namespace tavrin {
namespace {

// Every widget of the kind that has an outlet's name, in the names' order. Qt's own parts of a
// widget have other names.
template <class Kind>
std::map<std::string, const Kind*> outlets(const QWidget& root) {
  std::map<std::string, const Kind*> found;
  for (const Kind* widget : root.findChildren<const Kind*>())
    if (widget->objectName().startsWith("ib"))
      found.emplace(widget->objectName().toStdString(), widget);
  return found;
}

// A text as it was set; the interface file's text before.
std::string textOf(const QWidget& widget, const QString& textOfFile) {
  const QVariant raw = widget.property(kRawText);
  return raw.isValid() ? raw.toByteArray().toStdString() : textOfFile.toStdString();
}

bool isHidden(const QWidget& widget) { return widget.property(kHiddenFlag).toBool(); }

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
          {"hidden", isHidden(box)},
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
          {"hidden", isHidden(button)},
          {"enabled", isEnabled(button)},
          {"title", textOf(button, button.text())},
          {"on", button.isChecked()}};
}

Json state(const QSlider& slider) {
  return {{"kind", "slider"},        {"hidden", isHidden(slider)}, {"enabled", isEnabled(slider)},
          {"value", slider.value()}, {"min", slider.minimum()},    {"max", slider.maximum()}};
}

Json state(const QLabel& label) {
  const QString color = label.property(kTextColor).toString();
  return {{"kind", "label"},
          {"hidden", isHidden(label)},
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
      views[name]["hidden"] = isHidden(*view);
    }
  }
  for (const char* name :
       {"ibDisclosure", "ibDisclosureLabel", "ibPaperSource", "ibPaperSourceLabel"})
    if (const QWidget* view = viewNamed(panel, name)) views[name] = frame(*view);
  return views;
}

std::string titleOf(const QWidget& window) { return textOf(window, window.windowTitle()); }

Json labelsOf(const QWidget& window) {
  Json labels = Json::object();
  for (const auto& [name, label] : outlets<QLabel>(window))
    labels[name] = textOf(*label, label->text());
  return labels;
}

Json buttonsOf(const QWidget& window) {
  Json buttons = Json::object();
  for (const auto& [name, button] : outlets<QAbstractButton>(window))
    buttons[name] = {{"title", textOf(*button, button->text())}, {"on", button->isChecked()}};
  return buttons;
}

}  // namespace

Json panelState(const QWidget& panel) {
  return {{"controls", controlsOf(panel)}, {"views", viewsOf(panel)}};
}

std::string windowName(const QWidget& window) {
  const std::string name = window.objectName().toStdString();
  if (name == "ibInstructionWindow") return "Instructions";
  const bool isOutlet = name.starts_with("ib") && name.ends_with("Window");
  return isOutlet ? name.substr(2, name.size() - 8) : name;
}

Json windowContents(const QWidget& window) {
  const auto* text = window.findChild<const QPlainTextEdit*>("ibInstructionText");
  if (text) return {{"title", titleOf(window)}, {"text", textOf(*text, text->toPlainText())}};
  return {{"title", titleOf(window)}, {"labels", labelsOf(window)}, {"buttons", buttonsOf(window)}};
}

}  // namespace tavrin
