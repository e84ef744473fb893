#include "host/pages/ResultPage.h"

#include <QDesktopServices>
#include <QFile>
#include <QFormLayout>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QShowEvent>
#include <QStyle>

#include "host/documents/AddedDocuments.h"
#include "host/notes/Announcement.h"
#include "host/notes/Headline.h"
#include "host/notes/ShownSentence.h"
#include "host/pages/TaskInWords.h"
#include "host/panes/Widgets.h"
#include "host/task/PrintTask.h"
#include "platform/qt/base/ShownText.h"

namespace tavrin {
namespace {

// A text that the person may want to copy, with the mouse or without one.
QLabel* makeSelectable(const QString& text, QWidget* parent) {
  QLabel* label = makeTextLabel(parent);
  label->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
  label->setText(text);
  return label;
}

QString wordsOf(const JobReport& report) { return shownSentence(report.text.toStdString()); }

}  // namespace

ResultPage::ResultPage(PrintTask& theTask, QWidget* parent)
    : ResultPage(theTask, &QDesktopServices::openUrl, parent) {}

ResultPage::ResultPage(PrintTask& theTask, Opener opener, QWidget* parent)
    : QScrollArea(parent),
      task(theTask),
      open(std::move(opener)),
      content(makeChild<QWidget>(this)),
      text(makeSelectable(wordsOf(*task.arrived()), content)) {
  text->setObjectName("resultText");
  setFrameShape(QFrame::NoFrame);
  setFocusPolicy(Qt::NoFocus);
  setWidgetResizable(true);
  build();
  setWidget(content);
}

void ResultPage::build() {
  const JobReport& report = *task.arrived();
  auto* grid = makeChild<QGridLayout>(content);
  const int gap = fontMetrics().height();
  grid->setContentsMargins(gap, gap, gap, gap);
  grid->setSpacing(gap);
  grid->setColumnStretch(1, 1);
  grid->addWidget(makeIcon(report.isWarning), 0, 0);
  QLabel* headline = makeHeadline(report.headline, content);
  headline->setObjectName("resultHeadline");
  grid->addWidget(headline, 0, 1);
  grid->addWidget(text, 1, 1);
  grid->addWidget(makeDetails(), 2, 1);
  if (!report.folder.empty()) grid->addWidget(makeFolderButton(), 3, 1, Qt::AlignLeading);
  grid->setRowStretch(4, 1);
}

QWidget* ResultPage::makeIcon(bool isWarning) {
  auto* icon = makeChild<QLabel>(content);
  icon->setObjectName("resultIcon");
  const auto picture = isWarning ? QStyle::SP_MessageBoxWarning : QStyle::SP_MessageBoxInformation;
  const int size = style()->pixelMetric(QStyle::PM_MessageBoxIconSize);
  icon->setPixmap(style()->standardIcon(picture).pixmap(size));
  return icon;
}

QWidget* ResultPage::makeDetails() {
  auto* details = makeChild<QWidget>(content);
  QFormLayout* form = makeForm(details);
  const auto add = [&](const QString& label, const QString& value) {
    QLabel* shown = makeSelectable(value, details);
    addRow(*form, label, *shown);
    return shown;
  };
  const bool isOne = task.documents().all().size() == 1;
  QLabel* what = add(isOne ? tr("Document:") : tr("Documents:"), documentsInWords(task));
  if (!isOne) what->setToolTip(toolTipFor(documentNames(task)));
  add(tr("Contents:"), contentsInWords(task));
  add(tr("Printer:"), shownLine(task.printerName()));
  return details;
}

QWidget* ResultPage::makeFolderButton() {
  auto* button = makeChild<QPushButton>(tr("&Open Folder"), content);
  button->setObjectName("openFolder");
  button->setAutoDefault(false);
  connect(button, &QPushButton::clicked, this, &ResultPage::openFolder);
  return button;
}

void ResultPage::showEvent(QShowEvent* event) {
  QScrollArea::showEvent(event);
  if (!event->spontaneous()) announce(*text);
}

void ResultPage::openFolder() {
  const QString path = QFile::decodeName(task.arrived()->folder.c_str());
  if (!open(QUrl::fromLocalFile(path)))
    task.warn(tr("No program on this computer shows folders. The job is in the folder %1.")
                  .arg(path)
                  .toStdString());
}

}  // namespace tavrin
