#include "host/dialog/PaneSwitcher.h"

#include <algorithm>

#include <QShortcut>
#include <QSignalBlocker>
#include <QTabBar>
#include <QVBoxLayout>

#include "host/panes/Mnemonics.h"
#include "host/panes/Widgets.h"

namespace tavrin {

PaneSwitcher::PaneSwitcher(QWidget* parent)
    : QWidget(parent), tabs(makeChild<QTabBar>(this)), column(makeChild<QVBoxLayout>(this)) {
  tabs->setObjectName("panes");
  tabs->setAccessibleName(tr("Settings to show"));
  tabs->setExpanding(false);
  tabs->setUsesScrollButtons(false);
  tabs->setElideMode(Qt::ElideRight);
  column->setContentsMargins(0, 0, 0, 0);
  column->addWidget(tabs);
  connect(tabs, &QTabBar::currentChanged, this, &PaneSwitcher::turnTo);
  addKeys();
}

void PaneSwitcher::addKeys() {
  const auto onKeys = [this](const char* keys, int steps) {
    auto* shortcut = makeChild<QShortcut>(QKeySequence(keys), this);
    connect(shortcut, &QShortcut::activated, this, [this, steps] { turnBy(steps); });
  };
  for (const char* keys : {"Ctrl+Tab", "Ctrl+PgDown"}) onKeys(keys, 1);
  for (const char* keys : {"Ctrl+Shift+Tab", "Ctrl+PgUp"}) onKeys(keys, -1);
}

void PaneSwitcher::setPanes(std::vector<Pane*> thePanes, const QString& toShow) {
  const QSignalBlocker quiet(tabs);
  panes = std::move(thePanes);
  while (tabs->count() > 0) tabs->removeTab(0);
  QString taken = mnemonicsIn(*window());
  int first = 0;
  for (Pane* pane : panes) {
    const int index = tabs->addTab(withFreeMnemonic(pane->name(), taken));
    if (pane->name() == toShow) first = index;
    if (column->indexOf(pane) < 0) column->addWidget(pane);
    pane->setAccessibleName(pane->name());
    pane->hide();
  }
  shown = nullptr;
  tabs->setCurrentIndex(first);
  tellCutNames();
  if (!panes.empty()) showPane(panes[static_cast<std::size_t>(first)]);
}

void PaneSwitcher::turnBy(int steps) {
  if (const int count = tabs->count(); count > 0)
    tabs->setCurrentIndex((tabs->currentIndex() + steps + count) % count);
}

void PaneSwitcher::turnTo(int index) {
  if (index < 0) return;
  Pane* pane = panes[static_cast<std::size_t>(index)];
  if (pane == shown) return;
  if (mayLeave()) {
    showPane(pane);
    return tabs->setFocus();  // also after a letter; the next Tab goes into the pane
  }
  const QSignalBlocker quiet(tabs);
  tabs->setCurrentIndex(static_cast<int>(std::ranges::find(panes, shown) - panes.begin()));
}

void PaneSwitcher::showPane(Pane* pane) {
  const QWidget* focus = shown ? window()->focusWidget() : nullptr;
  // What had the focus is gone with its pane; the next Tab goes into the new one.
  if (focus && shown->isAncestorOf(focus)) tabs->setFocus();
  if (shown) shown->hide();
  shown = pane;
  pane->willShow();
  pane->show();
}

void PaneSwitcher::showAgain() {
  if (shown) shown->willShow();
}

void PaneSwitcher::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  tellCutNames();
}

// Where there is too little room for the names, tool tips have them.
void PaneSwitcher::tellCutNames() {
  const bool areCut = width() < tabs->sizeHint().width();
  for (int i = 0; i < tabs->count(); ++i)
    tabs->setTabToolTip(
        i, areCut ? toolTipFor(panes[static_cast<std::size_t>(i)]->name()) : QString());
}

}  // namespace tavrin
