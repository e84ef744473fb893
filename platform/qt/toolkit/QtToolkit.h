#pragma once

#include <filesystem>
#include <functional>

#include <QObject>

#include "platform/qt/base/ReadablePalette.h"
#include "platform/qt/controls/PendingChange.h"
#include "platform/qt/controls/WheelAndReturn.h"
#include "platform/qt/layout/LabelColumn.h"
#include "platform/qt/toolkit/ActionRuns.h"
#include "platform/qt/windows/ModalRuns.h"
#include "platform/toolkit/Toolkit.h"

class QWidget;

namespace tavrin {

// The toolkit on Qt Widgets. A program makes one after its QApplication, installs it, and
// uninstalls it before it goes. While it lives, all controls of the program treat wheel and keys
// as a panel's do, and no text is too faint: see WheelAndReturn and ReadablePalette.
class QtToolkit : public QObject, public Toolkit {
  Q_OBJECT

 public:
  // The toolkit of this process; null before a program has installed one of this kind.
  static QtToolkit* installed() { return dynamic_cast<QtToolkit*>(&Toolkit::current()); }

  std::shared_ptr<LoadedInterface> loadInterface(const Bundle& bundle, const std::string& name,
                                                 InterfaceBindings bindings) override;
  // The same for a file that is not in a bundle.
  std::shared_ptr<LoadedInterface> loadInterfaceFrom(const std::filesystem::path& file,
                                                     InterfaceBindings bindings);

  bool runModalForWindow(Window& window) override;
  void stopModal() override { runs.stop(); }

  // Called with every window that comes up modally, from inside its run; nobody by default.
  void onModalWindow(std::function<void(QWidget&)> observer);

  // Runs at once the action of a pop-up that somebody is just going through with the keyboard, if
  // there is one; its message windows come up and go before this returns. For a program that is
  // about to ask a panel for its choices, or to take it away.
  void settle() { pendingChange.settle(); }
  // The widget of a view, for a program to put into its own layout; null for a null object and once
  // the widget has been deleted. It belongs to the interface that the view was loaded with, but a
  // program may give it a parent and delete that.
  static QWidget* widgetOf(View& view);
  // The width that the labels beside a panel's controls ask for, and the least width to give them
  // (pixels): with the same for the labels of a program's own forms, all controls share one edge.
  static int labelColumnWidth(const QWidget& panel) { return tavrin::labelColumnWidth(panel); }
  static void setLabelColumnWidth(QWidget& panel, int pixels) {
    tavrin::setLabelColumnWidth(panel, pixels);
  }

 signals:
  // An action has run because the user changed a control, in a panel or in one of its message
  // windows: whatever the panel was asked before may be out of date. Once for an action and all
  // that ran inside it, after the last of its windows is down; the panel itself may be gone by
  // then.
  void actionRan();

 private:
  ActionRuns actions{[this] { emit actionRan(); }};
  ModalRuns runs;
  ReadablePalette readablePalette;
  WheelAndReturn wheelAndReturn;
  PendingChange pendingChange;  // made after the others: it sees every event before them
};

}  // namespace tavrin
