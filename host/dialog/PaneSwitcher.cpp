#include "host/dialog/PaneSwitcher.h"

#include <algorithm>

#include <QComboBox>
#include <QFrame>
#include <QHBoxLayout>
#include <QSignalBlocker>
#include <QVBoxLayout>

#include "host/panes/Widgets.h"

namespace tavrin {

namespace {

QFrame* makeLine(QWidget* parent) {
  auto* line = makeChild<QFrame>(parent);
  line->setFrameShape(QFrame::HLine);
  line->setFrameShadow(QFrame::Sunken);
  return line;
}

}  // namespace

PaneSwitcher::PaneSwitcher(QWidget* parent)
    : QWidget(parent), popUp(makeChild<QComboBox>(this)), column(makeChild<QVBoxLayout>(this)) {
  popUp->setObjectName("panes");
  popUp->setAccessibleName(tr("Settings to show"));
  popUp->setSizeAdjustPolicy(QComboBox::AdjustToContents);
  auto* line = makeChild<QHBoxLayout>();
  line->addWidget(makeLine(this), 1);
  line->addWidget(popUp);
  line->addWidget(makeLine(this), 1);
  column->setContentsMargins(0, 0, 0, 0);
  column->addLayout(line);
  connect(popUp, &QComboBox::currentIndexChanged, this, &PaneSwitcher::turnTo);
}

void PaneSwitcher::setPanes(std::vector<Pane*> thePanes, const QString& toShow) {
  const QSignalBlocker quiet(popUp);
  panes = std::move(thePanes);
  popUp->clear();
  for (Pane* pane : panes) {
    popUp->addItem(pane->name());
    if (column->indexOf(pane) < 0) column->addWidget(pane);
    pane->hide();
  }
  shown = nullptr;
  popUp->setCurrentIndex(std::max(popUp->findText(toShow), 0));
  if (!panes.empty()) show(panes[static_cast<std::size_t>(popUp->currentIndex())]);
}

void PaneSwitcher::turnTo(int index) {
  if (index < 0) return;
  Pane* pane = panes[static_cast<std::size_t>(index)];
  if (pane == shown) return;
  if (mayLeave()) return show(pane);
  const QSignalBlocker quiet(popUp);
  popUp->setCurrentText(shown->name());
}

void PaneSwitcher::show(Pane* pane) {
  if (shown) shown->hide();
  shown = pane;
  pane->willShow();
  pane->show();
}

void PaneSwitcher::showAgain() {
  if (shown) shown->willShow();
}

}  // namespace tavrin
