#include "replay/screen/WindowContents.h"

#include <QAbstractButton>
#include <QLabel>
#include <QPlainTextEdit>

#include "replay/screen/Outlets.h"

namespace tavrin {
namespace {

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
