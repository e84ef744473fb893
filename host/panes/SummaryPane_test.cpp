#include "host/panes/SummaryPane.h"

#include <QTextDocument>
#include <QTreeWidget>
#include <gtest/gtest.h>

namespace tavrin {
namespace {

// What a tool tip shows: Qt takes a text for markup only where it looks like it.
QString shownToolTip(const QString& toolTip) {
  if (!Qt::mightBeRichText(toolTip)) return toolTip;
  QTextDocument page;
  page.setHtml(toolTip);
  return page.toPlainText();
}

TEST(SummaryPane, ToolTipsShowTheirTextAsItIs) {
  for (const char* text :
       {"Plain", "Black & White", "&amp;", "<b>Bold</b>", "a < b", "two  blanks"}) {
    QWidget window;
    SummaryPane pane([&] { return SummaryPane::Sections{{"Pane", {{text, text}}}}; }, &window);
    pane.willShow();
    const auto* list = pane.findChild<QTreeWidget*>("summary");
    const QTreeWidgetItem* line = list->topLevelItem(0)->child(0);
    for (int column : {0, 1}) EXPECT_EQ(shownToolTip(line->toolTip(column)), text);
  }
}

}  // namespace
}  // namespace tavrin
