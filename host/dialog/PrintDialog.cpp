#include "host/dialog/PrintDialog.h"

#include <algorithm>

#include <QEvent>
#include <QScreen>
#include <QShortcut>
#include <QStyle>
#include <QTimer>
#include <QVBoxLayout>

#include "host/dialog/FittingScrollArea.h"
#include "host/dialog/GeneralArea.h"
#include "host/dialog/HelpWindow.h"
#include "host/dialog/JobButtons.h"
#include "host/dialog/Note.h"
#include "host/dialog/PaneSwitcher.h"
#include "host/dialog/PrinterPopUp.h"
#include "host/job/JobOptions.h"
#include "host/panes/FeaturesPane.h"
#include "host/panes/LayoutPane.h"
#include "host/panes/PanelPane.h"
#include "host/panes/SummaryPane.h"
#include "host/panes/Widgets.h"
#include "platform/qt/ShownText.h"

namespace tavrin {

namespace {

// What a window manager puts around a window, at most.
constexpr QSize kWindowFrame(16, 48);

// Room for most panels, in line heights, so that the window does not jump when one comes in.
constexpr int kUsualWidth = 35;

QString titleFor(const JobRequest& request) {
  const bool isNamed = !request.title.empty() || request.document != "-";
  return isNamed ? PrintDialog::tr("Print “%1”").arg(shownLine(jobTitle(request)))
                 : PrintDialog::tr("Print");
}

}  // namespace

PrintDialog::PrintDialog(JobRequest theRequest, QWidget* parent)
    : QDialog(parent),
      request(std::move(theRequest)),
      scroll(makeChild<FittingScrollArea>(this)),
      content(makeChild<QWidget>(scroll)),
      general(makeChild<GeneralArea>(content)),
      switcher(makeChild<PaneSwitcher>(content)),
      conflictNote(makeChild<Note>(content)),
      note(makeChild<Note>(this)),
      buttons(makeChild<JobButtons>(this)),
      layoutPane(makeChild<LayoutPane>(switcher)),
      summaryPane(makeChild<SummaryPane>([this] { return allLines(); }, switcher)),
      stateTimer(makeChild<QTimer>(this)) {
  setWindowTitle(titleFor(request));
  build();
  fillIn();
  connectParts();
  connectBrowser();
  connectRunner();
}

PrintDialog::~PrintDialog() { endSession(); }

void PrintDialog::build() {
  auto* inside = makeChild<QVBoxLayout>(content);
  inside->setContentsMargins(0, 0, 0, 0);
  inside->addWidget(general);
  inside->addWidget(switcher);
  inside->addWidget(conflictNote);
  inside->addStretch();
  scroll->setWidget(content);
  auto* column = makeChild<QVBoxLayout>(this);
  column->addWidget(scroll, 1);
  column->addWidget(note);
  column->addWidget(buttons);
  switcher->setPanes({layoutPane, summaryPane}, layoutPane->name());
  resize(kUsualWidth * fontMetrics().height(), 0);
  note->setObjectName("note");
  conflictNote->setObjectName("conflictNote");
}

// What the fields of the dialog hold, they hold in place of the options.
void PrintDialog::fillIn() {
  const OptionList options = startOptions();
  const OptString copies = optionValue(options, kCopiesOption);
  general->suggestCopies(request.copies > 1 || !copies ? request.copies : integerValue(copies));
  const OptString ranges = optionValue(options, kPageRangesOption);
  general->suggestPageRanges(
      shownLine(request.pageRanges.empty() ? ranges.value_or("") : request.pageRanges));
}

void PrintDialog::connectParts() {
  connect(buttons, &JobButtons::helpWanted, this, &PrintDialog::showHelp);
  connect(buttons, &JobButtons::cancelled, this, &PrintDialog::reject);
  connect(buttons, &JobButtons::closed, this, &PrintDialog::accept);
  connect(buttons, &JobButtons::printWanted, this, &PrintDialog::print);
  connect(note, &Note::wayOutTaken, this, &PrintDialog::usePrintServer);
  connect(layoutPane, &LayoutPane::pagesPerSheetChanged, this, [this](int pages) {
    if (current) current->setPagesPerSheet(pages);
  });
  auto* helpKey = makeChild<QShortcut>(QKeySequence(QKeySequence::HelpContents), this);
  connect(helpKey, &QShortcut::activated, this, &PrintDialog::showHelp);
}

void PrintDialog::setVisible(bool visible) {
  // Left to itself, a dialog comes up with two thirds of the screen at most.
  if (visible) {
    lineUpForms(*content);
    fit();
  }
  QDialog::setVisible(visible);
}

bool PrintDialog::event(QEvent* event) {
  const bool handled = QDialog::event(event);
  if (event->type() == QEvent::LayoutRequest) {
    lineUpForms(*content);
    fit();
  }
  return handled;
}

// Follows the contents as far as the screen goes; what the person has added to the window's height
// stays.
void PrintDialog::fit() {
  ensurePolished();
  const QSize room = screen()->availableSize() - kWindowFrame;
  const int width = std::max(layout()->totalSizeHint().width(), this->width());
  const int height = layout()->totalHeightForWidth(width);
  const int extra = wantedHeight ? std::max(this->height() - wantedHeight, 0) : 0;
  const int bar = height > room.height() ? style()->pixelMetric(QStyle::PM_ScrollBarExtent) : 0;
  wantedHeight = std::min(height, room.height());
  resize(QSize(width + bar, height + extra).boundedTo(room));
  if (isVisible()) stayOnScreen();
}

// A window that grows does so downwards and to the right, wherever it stands.
void PrintDialog::stayOnScreen() {
  const QRect screenArea = screen()->availableGeometry();
  const QRect frame = frameGeometry();
  const QPoint beyond(std::max(frame.right() - screenArea.right(), 0),
                      std::max(frame.bottom() - screenArea.bottom(), 0));
  if (!beyond.isNull())
    move(std::max(frame.left() - beyond.x(), screenArea.left()),
         std::max(frame.top() - beyond.y(), screenArea.top()));
}

void PrintDialog::showHelp() {
  if (Pane* pane = switcher->current(); pane && !pane->shouldShowHelp()) return;
  if (!help) help = makeChild<HelpWindow>(this);
  help->show();
  help->raise();
  help->activateWindow();
}

void PrintDialog::say(const std::string& sentence) {
  note->say(shownLines(sentence), Note::Kind::information);
}

void PrintDialog::showConflicts() {
  QStringList texts;
  for (const std::string& text : current->marks().conflictingOptions()) texts << shownLine(text);
  conflictNote->say(texts.isEmpty() ? QString()
                                    : tr("The printer cannot do these together as they are set: "
                                         "%1. Changing one of them puts it right.")
                                          .arg(texts.join(", ")),
                    Note::Kind::information);
}

SummaryPane::Sections PrintDialog::allLines() const {
  SummaryPane::Sections sections{{tr("General"), general->summary()}};
  std::vector<const Pane*> panes{layoutPane};
  panes.insert(panes.end(), panelPanes.begin(), panelPanes.end());
  if (featuresPane) panes.push_back(featuresPane);
  for (const Pane* pane : panes) sections.emplace_back(pane->name(), pane->summary());
  return sections;
}

void PrintDialog::reject() {
  if (buttons->state() == JobButtons::State::done) return accept();
  if (buttons->state() != JobButtons::State::printing) return leave(note->warning());
  if (buttons->isCancelling())
    return leave(tr("The job may still be on its way. See whether it is in the queue: lpstat -o"));
  buttons->showCancelling();
  runner.cancel();
}

void PrintDialog::leave(const QString& lastWords) {
  if (end == Outcome::cancelled) reportText = lastWords;
  QDialog::reject();
}

}  // namespace tavrin
