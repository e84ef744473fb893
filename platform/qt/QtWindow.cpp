#include "platform/qt/QtWindow.h"

#include <algorithm>
#include <utility>

#include <QApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QLayout>
#include <QPlainTextEdit>
#include <QRadioButton>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QWindow>

#include "platform/qt/ShownText.h"

namespace tavrin {

// Turns every way of closing into QtWindow::close, past the dialog's own ways.
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

namespace {

// Lines of this many average characters are read with ease.
constexpr int kLineLength = 72;

int lineWidth(const QWidget& text) { return text.fontMetrics().averageCharWidth() * kLineLength; }

// A layout forgets its own measures only, not those of the layouts in it.
void measureAnew(QLayout& layout) {
  for (int i = 0; i < layout.count(); ++i)
    if (QLayout* inner = layout.itemAt(i)->layout()) measureAnew(*inner);
  layout.invalidate();
}

void wrapLines(const QList<QLabel*>& labels, bool wrap) {
  for (QLabel* label : labels) label->setWordWrap(wrap);
}

// As wide as the longest line, within reason; lines that are longer wrap.
int contentWidth(const QWidget& content, int widest) {
  const QList<QLabel*> labels = content.findChildren<QLabel*>();
  wrapLines(labels, false);
  measureAnew(*content.layout());
  const int width = content.layout()->totalSizeHint().width();
  wrapLines(labels, true);
  measureAnew(*content.layout());
  return std::min(width, widest);
}

QSize contentSize(const QWidget& content, int widest) {
  QLayout& layout = *content.layout();
  const int width = contentWidth(content, widest);
  const int height = layout.hasHeightForWidth() ? layout.totalHeightForWidth(width)
                                                : layout.totalSizeHint().height();
  return {width, std::max(height, layout.totalMinimumSize().height())};
}

// No more of a monstrous text is measured than a screen can show.
QSize textSize(const QPlainTextEdit& text, int widest) {
  const QString start = text.toPlainText().left(8000);
  const QFontMetrics metrics = text.fontMetrics();
  const QRect lines =
      metrics.boundingRect(QRect(0, 0, widest, QWIDGETSIZE_MAX), Qt::TextWordWrap, start);
  const int edge = 2 * (int(text.document()->documentMargin()) + text.frameWidth());
  return {lines.width() + edge + 2 * metrics.averageCharWidth(),
          lines.height() + edge + metrics.lineSpacing() / 2};
}

QSize scrolledSize(const QAbstractScrollArea& area, int widest) {
  if (const auto* text = qobject_cast<const QPlainTextEdit*>(&area)) return textSize(*text, widest);
  const auto* contents = qobject_cast<const QScrollArea*>(&area);
  const bool isLaidOut = contents && contents->widget() && contents->widget()->layout();
  return isLaidOut ? contentSize(*contents->widget(), widest) : area.sizeHint();
}

}  // namespace

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

// What scrolls is made large enough to show everything, as far as the screen has room. There is
// always room for a scroll bar: lines that wrapped because of it would then call for it.
void QtWindow::fitScrolledContents(const QSize& room) {
  for (QAbstractScrollArea* area : widget->findChildren<QAbstractScrollArea*>()) {
    const QSize bar(area->verticalScrollBar()->sizeHint().width(), 0);
    const int widest = std::min(room.width(), lineWidth(*widget)) - bar.width();
    area->setMinimumSize((scrolledSize(*area, widest) + bar).boundedTo(room));
  }
}

void QtWindow::center() {
  if (!widget) return;
  QWidget* covered = coveredWindow();
  const QScreen* screen = covered ? covered->screen() : widget->screen();
  const QRect available = screen->availableGeometry();
  widget->ensurePolished();
  fitScrolledContents(available.size() * 3 / 4);
  widget->layout()->activate();
  widget->resize(widget->layout()->totalMinimumSize().boundedTo(available.size()));
  QRect frame = widget->rect();
  frame.moveCenter(covered ? covered->frameGeometry().center() : available.center());
  frame.moveLeft(std::clamp(frame.left(), available.left(),
                            std::max(available.left(), available.right() - frame.width())));
  frame.moveTop(std::clamp(frame.top(), available.top(),
                           std::max(available.top(), available.bottom() - frame.height())));
  widget->move(frame.topLeft());
  if (!covered) return;
  widget->winId();
  covered->winId();
  widget->windowHandle()->setTransientParent(covered->window()->windowHandle());
}

// A screen reader reads a window's description as it comes up: the lines that name no control.
void QtWindow::describe() {
  QStringList lines;
  for (const QLabel* label : widget->findChildren<QLabel*>())
    if (!label->buddy() && !label->text().isEmpty()) lines << label->text();
  widget->setAccessibleDescription(lines.join(u' '));
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
    // A closed window covers nothing; were it remembered, two windows that take turns would each
    // become the other's parent.
    widget->windowHandle()->setTransientParent(nullptr);
  }
  isClosing = false;
  up = false;
  if (const auto body = closed) body();
}

}  // namespace tavrin
