#include "host/dialog/HelpWindow.h"

#include <QDialogButtonBox>
#include <QTextBrowser>
#include <QVBoxLayout>

#include "host/panes/Widgets.h"

namespace tavrin {

namespace {

constexpr int kWidthInLetters = 60;
constexpr int kHeightInLines = 24;

struct Entry {
  const char* term;
  const char* text;
};

constexpr Entry kEntries[] = {
    {QT_TRANSLATE_NOOP("HelpWindow", "Preview"),
     QT_TRANSLATE_NOOP("HelpWindow",
                       "The sheets as they will come out. A narrow window leaves it out.")},
    {QT_TRANSLATE_NOOP("HelpWindow", "Printer"),
     QT_TRANSLATE_NOOP("HelpWindow",
                       "Which printer prints, what it is doing and where it stands. Where a "
                       "printer has saved sets of options, each set is an entry of its own.")},
    {QT_TRANSLATE_NOOP("HelpWindow", "Copies, Pages, Paper Size"),
     QT_TRANSLATE_NOOP(
         "HelpWindow",
         "How often, which pages, in which order and on which paper. Write pages and "
         "ranges with commas between them: 1-3,5 prints pages 1, 2, 3 and 5; 7- prints "
         "from page 7 to the end, -4 the first four. Collated copies come out one after "
         "the other, others page by page.")},
    {QT_TRANSLATE_NOOP("HelpWindow", "Several documents"),
     QT_TRANSLATE_NOOP(
         "HelpWindow",
         "Drop files on the window, or press Control and O, to print more documents with the same "
         "settings. Where there are several, a button above the printer lists them.")},
    {QT_TRANSLATE_NOOP("HelpWindow", "Both sides by hand"),
     QT_TRANSLATE_NOOP(
         "HelpWindow",
         "On a printer that cannot turn the paper, you do: first the fronts are printed, then the "
         "dialog says how to turn the stack, then the backs are printed.")},
    {QT_TRANSLATE_NOOP("HelpWindow", "The tabs"),
     QT_TRANSLATE_NOOP("HelpWindow",
                       "All other settings, sorted by what they are about. Control and Tab turn to "
                       "the next tab.")},
    {QT_TRANSLATE_NOOP("HelpWindow", "Layout"),
     QT_TRANSLATE_NOOP(
         "HelpWindow",
         "How pages lie on the sheets: which way up, how large and where, how many "
         "together and in which sequence, and whether both sides of the paper are "
         "printed. A booklet has two pages on each side, to be folded in the middle.")},
    {QT_TRANSLATE_NOOP("HelpWindow", "Printer Features"),
     QT_TRANSLATE_NOOP("HelpWindow", "Everything else that this printer can be told.")},
    {QT_TRANSLATE_NOOP("HelpWindow", "Print Settings"),
     QT_TRANSLATE_NOOP("HelpWindow",
                       "The settings that the maker of the printer added to this dialog. While "
                       "they are shown, the help button shows the printer's own help.")},
    {QT_TRANSLATE_NOOP("HelpWindow", "Summary"),
     QT_TRANSLATE_NOOP("HelpWindow",
                       "What will be printed in words, and all settings in one list, to look over "
                       "before printing.")},
};

QString helpText() {
  QString text;
  for (const Entry& entry : kEntries)
    text += QString("<h3>%1</h3><p>%2</p>")
                .arg(HelpWindow::tr(entry.term).toHtmlEscaped(),
                     HelpWindow::tr(entry.text).toHtmlEscaped());
  return text;
}

}  // namespace

HelpWindow::HelpWindow(QWidget* parent) : QDialog(parent) {
  setWindowTitle(tr("Help for Printing"));
  auto* column = makeChild<QVBoxLayout>(this);
  auto* text = makeChild<QTextBrowser>(this);
  text->setAccessibleName(windowTitle());
  text->setHtml(helpText());
  text->setMinimumSize(fontMetrics().averageCharWidth() * kWidthInLetters / 2,
                       fontMetrics().height() * kHeightInLines / 3);
  column->addWidget(text);
  auto* buttons = makeChild<QDialogButtonBox>(this);
  // The box's own Close would be the only button with an icon.
  buttons->addButton(tr("&Close"), QDialogButtonBox::RejectRole);
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
  column->addWidget(buttons);
  resize(fontMetrics().averageCharWidth() * kWidthInLetters,
         fontMetrics().height() * kHeightInLines);
}

}  // namespace tavrin
