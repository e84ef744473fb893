#pragma once

#include <memory>

#include "host/panes/Pane.h"
#include "platform/contract/PrintDialogExtension.h"

namespace tavrin {

class PrinterSession;

// The pane of a plug-in's panel.
class PanelPane : public Pane {
  Q_OBJECT

 public:
  // The panel is one of the session's; both outlive the pane.
  PanelPane(PDEPanel& panel, PrinterSession& session, QWidget* parent);
  ~PanelPane() override;

  // In the order of the panel's controls, once they have been shown.
  Lines summary() const override;
  int labelWidth() const override;
  void setLabelWidth(int pixels) override;
  void willShow() override;
  // Asks the panel, and takes the panels' choices, so that the rest of the dialog shows them.
  bool shouldHide() override;
  bool shouldShowHelp() override { return panel.shouldShowHelp(); }

  // The panel's view has another size.
  void followView();

 signals:
  // The panel could not hand over its choices, and why.
  void saveFailed(const std::string& reason);

 private:
  void addView();

  PDEPanel& panel;
  PrinterSession& session;
  std::shared_ptr<View> view;
  QWidget* widget = nullptr;  // the view's, owned by it
};

}  // namespace tavrin
