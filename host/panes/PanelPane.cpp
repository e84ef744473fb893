#include "host/panes/PanelPane.h"

#include <algorithm>

#include <QLabel>
#include <QVBoxLayout>

#include "host/panels/PrinterSession.h"
#include "host/panes/Widgets.h"
#include "platform/qt/base/ShownText.h"
#include "platform/qt/toolkit/QtToolkit.h"

namespace tavrin {
namespace {

// What a label and a control's text have in common: neither the colon nor the mark of a mnemonic.
QString plain(QString text) {
  text.remove('&');
  while (text.endsWith(':') || text.endsWith(' ')) text.chop(1);
  return text;
}

// The texts in a panel, in the order of its controls.
QStringList textsIn(const QWidget& panel) {
  QStringList texts;
  for (const QWidget* control : panel.findChildren<QWidget*>())
    texts << plain(control->property("text").toString());
  return texts;
}

// A panel gives its lines without an order. What has none comes last.
void putInOrder(Pane::Lines& lines, const QStringList& texts) {
  std::ranges::stable_sort(lines, {}, [&](const auto& line) {
    return static_cast<std::size_t>(texts.indexOf(plain(line.first)));
  });
}

}  // namespace

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
  if (widget) putInOrder(lines, textsIn(*widget));
  return lines;
}

int PanelPane::labelWidth() const { return widget ? QtToolkit::labelColumnWidth(*widget) : 0; }

void PanelPane::setLabelWidth(int pixels) {
  if (widget) QtToolkit::setLabelColumnWidth(*widget, pixels);
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
