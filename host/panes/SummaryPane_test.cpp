#include "host/panes/SummaryPane.h"

#include <QCoreApplication>
#include <QLabel>
#include <QScrollBar>
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

QString noWords() { return {}; }

TEST(SummaryPane, SaysTheJobInWordsForAllSenses) {
  QString words = "all pages";
  SummaryPane pane([&] { return words; }, [] { return SummaryPane::Sections(); }, nullptr);
  pane.willShow();
  words = "page 2, mirrored";
  pane.willShow();
  EXPECT_EQ(pane.findChild<QLabel*>("inWords")->text(), "Page 2, mirrored.");
  EXPECT_EQ(pane.findChild<QTreeWidget*>("summary")->accessibleDescription(), "Page 2, mirrored.");
}

TEST(SummaryPane, ToolTipsShowTheirTextAsItIs) {
  for (const char* text :
       {"Plain", "Black & White", "&amp;", "<b>Bold</b>", "a < b", "two  blanks"}) {
    QWidget window;
    SummaryPane pane(
        noWords,
        [&] {
          return SummaryPane::Sections{{"Pane", {{text, text}}}};
        },
        &window);
    pane.willShow();
    const auto* list = pane.findChild<QTreeWidget*>("summary");
    const QTreeWidgetItem* line = list->topLevelItem(0)->child(0);
    for (int column : {0, 1}) EXPECT_EQ(shownToolTip(line->toolTip(column)), text);
  }
}

TEST(SummaryPane, ScrollsOnlyWhereThereIsTooLittleRoom) {
  Pane::Lines lines;
  for (int i = 0; i < 30; ++i) lines.emplace_back(QString("Setting %1").arg(i), "On");
  SummaryPane pane(
      noWords,
      [&] {
        return SummaryPane::Sections{{"Pane", lines}};
      },
      nullptr);
  pane.willShow();
  const auto* bar = pane.findChild<QTreeWidget*>("summary")->verticalScrollBar();
  const auto scrollsAt = [&](int height) {
    pane.resize(pane.sizeHint().width(), height);
    pane.show();
    QCoreApplication::processEvents();
    return bar->maximum() > 0;
  };
  EXPECT_FALSE(scrollsAt(pane.sizeHint().height()));
  EXPECT_TRUE(scrollsAt(pane.minimumSizeHint().height()));
}

}  // namespace
}  // namespace tavrin
