#include "platform/qt/QtWindow.h"

#include <algorithm>
#include <utility>

#include <QApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QLayout>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QTextBlock>
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
constexpr int kLineLength = 64;

int lineWidth(const QWidget& text) { return text.fontMetrics().averageCharWidth() * kLineLength; }

QSize contentSize(const QWidget& content, int widest) {
  const QLayout& layout = *content.layout();
  const int width = std::clamp(layout.sizeHint().width(), 0, widest);
  const int height = layout.hasHeightForWidth() ? layout.totalHeightForWidth(width)
                                                : layout.totalSizeHint().height();
  return {width, height};
}

QSize textSize(const QPlainTextEdit& text, int widest) {
  const QFontMetrics metrics = text.fontMetrics();
  int width = 0;
  int lines = 0;
  for (QTextBlock block = text.document()->begin(); block.isValid() && lines < 200;
       block = block.next()) {
    const int line = metrics.horizontalAdvance(block.text().left(4 * kLineLength));
    width = std::max(width, std::min(line, widest));
    lines += 1 + line / std::max(1, widest) + block.length() / (4 * kLineLength);
  }
  const int edge = 2 * (int(text.document()->documentMargin()) + text.frameWidth());
  return {width + edge + metrics.averageCharWidth(), lines * metrics.lineSpacing() + edge};
}

}  // namespace

QtWindow::QtWindow(QDialog& dialog) : widget(&dialog), events(std::make_unique<Events>(*this)) {}

QtWindow::~QtWindow() = default;

void QtWindow::setTitle(const std::string& title) {
  if (widget) widget->setWindowTitle(shownLine(title));
}

QWidget* QtWindow::coveredWindow() const {
  QWidget* active = QApplication::activeWindow();
  if (active && active != widget) return active;
  for (QWidget* window : QApplication::topLevelWidgets())
    if (window != widget && window->isVisible() && window->windowType() != Qt::Popup) return window;
  return nullptr;
}

// What scrolls is made large enough to show everything, as far as the screen has room.
void QtWindow::fitScrolledContents(const QSize& room) {
  for (QScrollArea* area : widget->findChildren<QScrollArea*>()) {
    if (!area->widget() || !area->widget()->layout()) continue;
    const QSize size = contentSize(*area->widget(), std::min(room.width(), lineWidth(*widget)));
    const int bar =
        size.height() > room.height() ? area->verticalScrollBar()->sizeHint().width() : 0;
    area->setMinimumSize((size + QSize(bar, 0)).boundedTo(room));
  }
  for (QPlainTextEdit* text : widget->findChildren<QPlainTextEdit*>())
    text->setMinimumSize(textSize(*text, lineWidth(*widget)).boundedTo(room));
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
  if (widget) widget->hide();
  isClosing = false;
  up = false;
  if (const auto body = closed) body();
}

}  // namespace tavrin
