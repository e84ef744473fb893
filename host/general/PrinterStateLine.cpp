#include "host/general/PrinterStateLine.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QStyle>

#include "host/general/ElidedLabel.h"
#include "host/general/PrinterTexts.h"
#include "host/panes/Widgets.h"
#include "host/task/PrintTask.h"
#include "platform/qt/base/ShownText.h"

namespace tavrin {
namespace {

// Red and amber that can be read on a light ground and on a dark one.
QColor colorOf(Concern concern, const QPalette& palette) {
  const bool isDark = palette.color(QPalette::Window).lightness() < 128;
  switch (concern) {
    case Concern::warning:
      return isDark ? QColor(0xff, 0xc4, 0x6b) : QColor(0x7a, 0x4b, 0x00);
    case Concern::trouble:
      return isDark ? QColor(0xff, 0x9a, 0x8f) : QColor(0xa8, 0x1e, 0x16);
    case Concern::none:
      break;
  }
  return palette.color(QPalette::WindowText);
}

QString shownFolder(const std::filesystem::path& folder) {
  std::error_code none;
  const std::filesystem::path whole = std::filesystem::absolute(folder, none).lexically_normal();
  const auto& last = whole.has_filename() ? whole : whole.parent_path();
  return shownLine(last.filename().string());
}

}  // namespace

PrinterStateLine::PrinterStateLine(PrintTask& theTask, QWidget* parent)
    : QWidget(parent),
      task(theTask),
      sign(makeChild<QLabel>(this)),
      label(makeChild<ElidedLabel>(this)) {
  label->setObjectName("printerState");
  auto* line = makeChild<QHBoxLayout>(this);
  line->setContentsMargins(0, 0, 0, 0);
  line->addWidget(sign);
  line->addWidget(label, 1);
  connect(&task, &PrintTask::printersChanged, this, &PrinterStateLine::refresh);
  connect(&task, &PrintTask::stageChanged, this, &PrinterStateLine::refresh);
  refresh();
}

void PrinterStateLine::refresh() {
  const Printer* printer = task.printers().chosen();
  if (task.target() == PrintTask::Target::file) {
    say(tr("The sheets become one PDF"), Concern::none, {});
  } else if (task.target() == PrintTask::Target::folder) {
    const std::filesystem::path& folder = task.outputFolder();
    say(tr("Jobs go to the folder “%1”").arg(shownFolder(folder)), Concern::none,
        shownLine(folder.string()));
  } else if (printer) {
    say(stateAndPlace(*printer), concernOf(printer->state), stateAndPlace(*printer));
  } else {
    say({}, Concern::none, {});
  }
}

void PrinterStateLine::say(const QString& text, Concern theConcern, const QString& toolTip) {
  concern = theConcern;
  label->setText(text);
  setToolTip(toolTip.isEmpty() ? QString() : toolTipFor(toolTip));
  showSign();
}

void PrinterStateLine::showSign() {
  sign->setVisible(concern != Concern::none);
  if (concern != Concern::none) {  // a style looks through many folders for its icons
    const auto picture =
        concern == Concern::trouble ? QStyle::SP_MessageBoxCritical : QStyle::SP_MessageBoxWarning;
    sign->setPixmap(style()->standardIcon(picture).pixmap(label->fontMetrics().height()));
  }
  QPalette colors = palette();
  colors.setColor(QPalette::WindowText, colorOf(concern, colors));
  label->setPalette(colors);
}

void PrinterStateLine::changeEvent(QEvent* event) {
  QWidget::changeEvent(event);
  const auto type = event->type();
  if (type == QEvent::PaletteChange || type == QEvent::StyleChange || type == QEvent::FontChange)
    showSign();
}

}  // namespace tavrin
