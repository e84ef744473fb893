#include "host/panes/PanelPane.h"

#include <QLabel>
#include <QVBoxLayout>

#include "host/panels/PrinterSession.h"
#include "host/panes/Widgets.h"
#include "platform/qt/base/ShownText.h"
#include "platform/qt/toolkit/QtToolkit.h"

namespace tavrin {

PanelPane::PanelPane(PDEPanel& thePanel, PrinterSession& theSession, QWidget* parent)
    : Pane(shownLine(thePanel.panelName()), parent), panel(thePanel), session(theSession) {
  auto* column = makeChild<QVBoxLayout>(this);
  column->setContentsMargins(0, 0, 0, 0);
}

PanelPane::~PanelPane() {
  // The widget goes with the panel's view, not with this pane.
  if (widget) widget->setParent(nullptr);
}

void PanelPane::addView() {
  view = panel.panelView();
  widget = view ? QtToolkit::widgetOf(*view) : nullptr;
  if (widget) return layout()->addWidget(widget);
  QLabel* apology = makeTextLabel(this);
  apology->setText(tr("These settings cannot be shown. The printer's usual settings are used."));
  layout()->addWidget(apology);
}

Pane::Lines PanelPane::summary() const {
  Lines lines;
  for (const auto& [label, value] : panel.summaryInfo())
    lines.emplace_back(shownLine(label), shownLine(value.value_or("")));
  return lines;
}

void PanelPane::willShow() {
  if (layout()->isEmpty()) addView();
  panel.willShow();
}

bool PanelPane::shouldHide() {
  if (!panel.shouldHide()) return false;
  if (const std::string reason = session.takePanelChoices(); !reason.empty())
    emit saveFailed(reason);
  return true;
}

void PanelPane::followView() {
  if (widget) widget->updateGeometry();
  layout()->invalidate();
}

}  // namespace tavrin
