#include "platform/qt/windows/QtWindow.h"

#include <algorithm>
#include <utility>

#include <QAbstractScrollArea>
#include <QApplication>
#include <QIcon>
#include <QKeyEvent>
#include <QLabel>
#include <QLayout>
#include <QRadioButton>
#include <QScreen>
#include <QScrollBar>
#include <QStyle>
#include <QWindow>

#include "platform/qt/base/ShownText.h"
#include "platform/qt/windows/ContentSize.h"

namespace tavrin {

// Turns every way of closing into QtWindow::close, bypassing the dialog's own.
class QtWindow::Events : public QObject {
 public:
  explicit Events(QtWindow& owner) : window(owner) { owner.widget->installEventFilter(this); }

  bool eventFilter(QObject*, QEvent* event) override {
    const bool escape = event->type() == QEvent::KeyPress &&
                        static_cast<QKeyEvent*>(event)->matches(QKeySequence::Cancel);
    if (!escape && event->type() != QEvent::Close) return false;
    event->accept();
    window.close();
    return true;
  }

 private:
  QtWindow& window;
};

QtWindow::QtWindow(QDialog& dialog) : widget(&dialog), events(std::make_unique<Events>(*this)) {}

QtWindow::~QtWindow() = default;

void QtWindow::setTitle(const std::string& title) {
  if (widget) widget->setWindowTitle(shownLine(title));
}

QWidget* QtWindow::coveredWindow() const {
  QWidget* active = QApplication::activeWindow();
  if (active && active != widget && active->isVisible()) return active;
  for (QWidget* window : QApplication::topLevelWidgets())
    if (window != widget && window->isVisible() && window->windowType() != Qt::Popup) return window;
  return nullptr;
}

// Scroll areas are made large enough to show everything, as far as the screen has room. Room for a
// scroll bar is always left: lines that wrapped because of the bar would make it necessary.
void QtWindow::fitScrolledContents(const QSize& room) {
  for (QAbstractScrollArea* area : widget->findChildren<QAbstractScrollArea*>()) {
    const QSize bar(area->verticalScrollBar()->sizeHint().width(), 0);
    const int widest = std::min(room.width(), easyLineWidth(*widget)) - bar.width();
    area->setMinimumSize((contentSize(*area, widest) + bar).boundedTo(room));
  }
}

void QtWindow::center() {
  if (!widget) return;
  QWidget* covered = coveredWindow();
  const QScreen* screen = covered ? covered->screen() : widget->screen();
  fit(screen->availableSize());
  widget->move(placeOver(covered, screen->availableGeometry()));
  if (!covered) return;
  widget->winId();
  covered->winId();
  widget->windowHandle()->setTransientParent(covered->window()->windowHandle());
}

void QtWindow::fit(const QSize& screen) {
  widget->ensurePolished();
  showSigns();
  fitScrolledContents(screen * 3 / 4);
  widget->layout()->activate();
  widget->resize(widget->layout()->totalMinimumSize().boundedTo(screen));
}

// In the middle of what it covers, but on the screen.
QPoint QtWindow::placeOver(const QWidget* covered, const QRect& screen) const {
  QRect frame = widget->rect();
  frame.moveCenter(covered ? covered->frameGeometry().center() : screen.center());
  const int right = std::max(screen.left(), screen.right() - frame.width());
  const int bottom = std::max(screen.top(), screen.bottom() - frame.height());
  return {std::clamp(frame.left(), screen.left(), right),
          std::clamp(frame.top(), screen.top(), bottom)};
}

// A screen reader reads a window's description aloud as it comes up: the lines that name no
// control.
void QtWindow::describe() {
  QStringList lines;
  for (const QLabel* label : widget->findChildren<QLabel*>())
    if (!label->buddy() && !label->text().isEmpty()) lines << label->text();
  widget->setAccessibleDescription(lines.join(u' '));
}

// As high as three lines of text.
void QtWindow::showSigns() {
  const QIcon sign = widget->style()->standardIcon(QStyle::SP_MessageBoxWarning, nullptr, widget);
  const int height = 3 * widget->fontMetrics().height();
  for (QLabel* label : widget->findChildren<QLabel*>())
    if (label->objectName().startsWith(QStringLiteral("warningSign")))
      label->setPixmap(sign.pixmap(QSize(height, height), widget->devicePixelRatio()));
}

void QtWindow::focusFirstChoice() {
  for (QRadioButton* choice : widget->findChildren<QRadioButton*>())
    if (choice->isChecked()) return choice->setFocus(Qt::TabFocusReason);
}

void QtWindow::display() {
  if (!widget) return;
  describe();
  up = true;
  widget->show();
  widget->activateWindow();
  focusFirstChoice();
}

// The delegate may close the window again, or release everything.
void QtWindow::close() {
  if (!up || isClosing) return;
  const auto alive = keepAlive();
  isClosing = true;
  if (const auto body = closing) body();
  if (widget) {
    widget->hide();
    // Otherwise two windows that take turns would become each other's parent.
    widget->windowHandle()->setTransientParent(nullptr);
  }
  isClosing = false;
  up = false;
  if (const auto body = closed) body();
}

}  // namespace tavrin
