#include "host/sheets/PreviewArea.h"

#include <algorithm>
#include <array>
#include <cstdlib>

#include <QAccessible>
#include <QKeyEvent>
#include <QLabel>
#include <QScrollArea>
#include <QScrollBar>
#include <QVBoxLayout>
#include <QWheelEvent>

#include "host/document/DocumentName.h"
#include "host/preview/SheetLook.h"
#include "host/sheets/SheetTexts.h"
#include "host/sheets/SheetTurner.h"
#include "host/sheets/SheetView.h"
#include "platform/qt/base/MakeChild.h"
#include "platform/qt/base/ShownText.h"

namespace tavrin {

namespace {

constexpr int kWidthInLines = 24;
// A picture that is about to be replaced stays as it is for so long.
constexpr std::chrono::milliseconds kFadeRest(300);

// The first fits the sheet into the view, the others show it so many times as large as it is.
constexpr std::array kZooms{0.0, 0.5, 1.0, 2.0};
constexpr int kFullSize = 2;  // which of them

constexpr double kPointsPerInch = 72;
constexpr int kNotch = 120;  // of a wheel, as Qt counts

}  // namespace

PreviewArea::PreviewArea(QWidget* parent)
    : QWidget(parent),
      desk(makeChild<QScrollArea>(this)),
      view(makeChild<SheetView>(desk)),
      turner(makeChild<SheetTurner>(this)),
      contents(makeChild<QLabel>(this)) {
  build();
  fadeTimer.setSingleShot(true);
  fadeTimer.setInterval(kFadeRest);
  connectParts();
  setZoom(0);
  describe();
}

void PreviewArea::connectParts() {
  connect(&fadeTimer, &QTimer::timeout, this, [this] { view->setFaded(true); });
  connect(view, &SheetView::resized, this, &PreviewArea::wantPicture);
  connect(&preview, &Preview::stageChanged, this, &PreviewArea::follow);
  connect(&pictures, &SheetPictures::drawn, this, &PreviewArea::showSheet);
  connect(&pictures, &SheetPictures::failed, this, [this] {
    const QString text = tr("This sheet cannot be drawn. It can be printed all the same.");
    view->setMessage(shownName(), text);
    view->setAccessibleName(text);
  });
  connect(turner, &SheetTurner::turned, this, &PreviewArea::turnTo);
  connect(turner, &SheetTurner::zoomed, this, [this](int step) { zoomBy(step); });
}

void PreviewArea::build() {
  setObjectName("preview");
  desk->setFrameShape(QFrame::NoFrame);
  desk->setWidgetResizable(true);
  desk->setFocusPolicy(Qt::NoFocus);
  desk->setWidget(view);
  view->setFocusPolicy(Qt::StrongFocus);
  view->setObjectName("sheetView");
  view->installEventFilter(this);
  contents->setTextFormat(Qt::PlainText);
  contents->setAlignment(Qt::AlignCenter);
  QSizePolicy keepsItsRoom = turner->sizePolicy();
  keepsItsRoom.setRetainSizeWhenHidden(true);
  turner->setSizePolicy(keepsItsRoom);
  for (QScrollBar* bar : {desk->horizontalScrollBar(), desk->verticalScrollBar()})
    connect(bar, &QScrollBar::rangeChanged, bar,
            [bar](int least, int most) { bar->setValue((least + most) / 2); });
  auto* column = makeChild<QVBoxLayout>(this);
  column->setContentsMargins(0, 0, 0, 0);
  column->addWidget(desk, 1);
  column->addWidget(contents);
  column->addWidget(turner);
}

QSize PreviewArea::sizeHint() const {
  const int line = fontMetrics().height();
  return QSize(line * kWidthInLines, line * kWidthInLines * 5 / 4);
}

void PreviewArea::show(const Preparation& shown) {
  if (job == shown && !isPaused) return;
  job = shown;
  isPaused = false;
  view->setPaper(shown.paper);
  say({});
  preview.show(shown);
  if (count() > 0) fadeTimer.start();
}

void PreviewArea::wait() {
  isPaused = false;
  preview.wait();
}

void PreviewArea::showNothing(const QString& reason) {
  pause();
  preview.clear();
  job.reset();
  view->setPicture({});
  say(reason);
}

void PreviewArea::pause() {
  preview.pause();
  isPaused = true;
  describe();
  fadeTimer.stop();
  pictures.stop();
}

// --- What the preview tells ---

void PreviewArea::follow() {
  switch (preview.stage()) {
    case Preview::Stage::ready:
      return takeSheets();
    case Preview::Stage::nothing:
    case Preview::Stage::failed:
      fadeTimer.stop();
      return say(preview.problem());
    case Preview::Stage::empty:
    case Preview::Stage::waiting:
    case Preview::Stage::working:
      return describe();
  }
}

void PreviewArea::takeSheets() {
  pictures.clear();
  index = std::clamp(index, 0, count() - 1);
  say({});
  showSheet();
}

void PreviewArea::showSheet() {
  view->setMessage({}, {});
  if (const QImage* picture = pictures.of(index)) {
    fadeTimer.stop();
    view->setPicture(*picture, sizeOf(index));
  } else {
    fadeTimer.start();
    wantPicture();
  }
  describe();
}

QSizeF PreviewArea::sizeOf(int sheet) const {
  const SheetPlace place = preview.sheets().at(sheet);
  const Sheet& found = place.document.list[static_cast<std::size_t>(place.index)];
  const QSizeF size(found.width, found.height);
  return found.liesOnItsSide() ? size.transposed() : size;
}

void PreviewArea::wantPicture() {
  if (count() > 0)
    pictures.want(index, view->longSide(sizeOf(index)),
                  printsInGrey(options()) ? SheetPainter::Ink::grey : SheetPainter::Ink::colour);
}

// --- What is said ---

QString PreviewArea::shownName() const {
  if (!job || job->documents.empty()) return {};
  if (job->documents.size() > 1) return tr("%n documents", nullptr, int(job->documents.size()));
  const auto& document = job->documents.front().document;
  return document == kStandardInput ? tr("Standard input") : shownLine(documentName(document));
}

void PreviewArea::say(const QString& text) {
  message = text;
  view->setMessage(shownName(), message);
  describe();
}

void PreviewArea::describe() {
  const bool hasSheets = message.isEmpty() && count() > 0;
  turner->setVisible(hasSheets);
  contents->setText(" ");
  if (hasSheets)
    describeSheet();
  else if (message.isEmpty() && !isPaused)
    contents->setText(preview.stage() == Preview::Stage::waiting ? tr("Waiting for the document…")
                                                                 : tr("Preparing the preview…"));
  if (!hasSheets) view->setAccessibleName(message.isEmpty() ? contents->text() : message);
  QAccessibleEvent event(view, QAccessible::NameChanged);
  QAccessible::updateAccessibility(&event);
}

void PreviewArea::describeSheet() {
  turner->showSheet(index, count(), textBeforeNumber(options()),
                    textAfterNumber(count(), options()));
  if (const QString text = contentsText(preview.sheets(), index, options()); !text.isEmpty())
    contents->setText(preview.sheets().documents.size() > 1 ? text
                                                            : text.left(1).toUpper() + text.mid(1));
  view->setAccessibleName(sheetText(preview.sheets(), index, options()));
}

// --- What the person does ---

void PreviewArea::turnTo(int wanted) {
  if (!message.isEmpty()) return;  // the sheets are those of a job before
  if (wanted < 0 || wanted >= count() || wanted == index) return;
  index = wanted;
  showSheet();
}

double PreviewArea::scaleOf(int step) const {
  return kZooms.at(static_cast<std::size_t>(step)) * logicalDpiX() / kPointsPerInch;
}

// Every step is larger, or smaller, than what is shown; the smallest fits the sheet in.
void PreviewArea::zoomBy(int direction) {
  const double fitting = view->fittingScale();
  int step = zoom + direction;
  while (step > 0 && step < int(kZooms.size()) && scaleOf(step) <= fitting) step += direction;
  setZoom(step);
}

void PreviewArea::setZoom(int step) {
  zoom = std::clamp(step, 0, int(kZooms.size()) - 1);
  view->setScale(scaleOf(zoom));
  turner->showZoom(zoom + 1 < int(kZooms.size()), zoom > 0);
  wantPicture();
}

void PreviewArea::keyPressEvent(QKeyEvent* event) {
  switch (event->key()) {
    case Qt::Key_PageUp:
      return turnTo(index - 1);
    case Qt::Key_PageDown:
      return turnTo(index + 1);
    case Qt::Key_Home:
      return turnTo(0);
    case Qt::Key_End:
      return turnTo(count() - 1);
    case Qt::Key_Plus:
      return zoomBy(1);
    case Qt::Key_Minus:
      return zoomBy(-1);
    case Qt::Key_0:
      return setZoom(0);
    default:
      QWidget::keyPressEvent(event);
  }
}

// A fine wheel or a touchpad tells of a notch in many parts.
bool PreviewArea::turnByWheel(const QWheelEvent& event) {
  const bool zooms = event.modifiers() & Qt::ControlModifier;
  if (!zooms && zoom != 0) return false;
  wheelAngle += event.angleDelta().y();
  for (; std::abs(wheelAngle) >= kNotch; wheelAngle -= wheelAngle > 0 ? kNotch : -kNotch) {
    const int step = wheelAngle > 0 ? 1 : -1;
    zooms ? zoomBy(step) : turnTo(index - step);
  }
  return true;
}

// A zoomed sheet is moved by hand.
void PreviewArea::drag(const QMouseEvent& event) {
  const QPoint place = event.globalPosition().toPoint();
  if (event.type() == QEvent::MouseMove) {
    const QPoint way = place - dragged;
    desk->horizontalScrollBar()->setValue(desk->horizontalScrollBar()->value() - way.x());
    desk->verticalScrollBar()->setValue(desk->verticalScrollBar()->value() - way.y());
  }
  dragged = place;
}

bool PreviewArea::takeKey(QKeyEvent& event) {
  keyPressEvent(&event);
  const bool isTaken = event.isAccepted();
  event.accept();  // as it came: the view has keys of its own
  return isTaken;
}

// The scroll area around the view has uses of its own for keys and the wheel.
bool PreviewArea::eventFilter(QObject* watched, QEvent* event) {
  if (watched != view) return QWidget::eventFilter(watched, event);
  switch (event->type()) {
    case QEvent::Wheel:
      return turnByWheel(*static_cast<QWheelEvent*>(event));
    case QEvent::KeyPress:
      return takeKey(*static_cast<QKeyEvent*>(event));
    case QEvent::MouseButtonPress:
    case QEvent::MouseMove:
      drag(*static_cast<QMouseEvent*>(event));
      return false;
    case QEvent::MouseButtonDblClick:
      setZoom(zoom == 0 ? kFullSize : 0);
      return true;
    default:
      return false;
  }
}

}  // namespace tavrin
