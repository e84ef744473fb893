#pragma once

#include <utility>
#include <vector>

#include <QString>
#include <QWidget>

namespace tavrin {

// One page of the dialog, which a tab leads to.
class Pane : public QWidget {
  Q_OBJECT

 public:
  // What the summary lists: a setting's label and its value for the screen.
  using Lines = std::vector<std::pair<QString, QString>>;

  explicit Pane(const QString& name, QWidget* parent) : QWidget(parent), title(name) {}

  // Its name on the tab.
  const QString& name() const { return title; }
  virtual Lines summary() const = 0;

  // A pane whose labels are in no form lines them up with those of the forms: what they ask for,
  // and the least width to give them, in pixels.
  virtual int labelWidth() const { return 0; }
  virtual void setLabelWidth(int) {}

  // The pane is about to be shown.
  virtual void willShow() {}
  // Whether the person may leave the pane now.
  virtual bool shouldHide() { return true; }
  // False when the pane has shown help of its own, true when the dialog should show its help.
  virtual bool shouldShowHelp() { return true; }

 private:
  QString title;
};

}  // namespace tavrin
