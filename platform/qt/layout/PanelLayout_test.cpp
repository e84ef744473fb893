#include "platform/qt/layout/PanelLayout.h"

#include <cstdlib>
#include <set>

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QVBoxLayout>
#include <gtest/gtest.h>

#include "platform/qt/base/WidgetProperties.h"
#include "tests/fixtures/TestPanel.h"

namespace tavrin {
namespace {

struct Shape {
  bool secondTray;
  bool expanded;
  double points;
  const char* suffix;
  Qt::LayoutDirection direction = Qt::LeftToRight;
  bool narrow = false;  // as narrow as it gets

  friend void PrintTo(const Shape& shape, std::ostream* out) {
    *out << (shape.secondTray ? "two trays" : "one tray") << (shape.expanded ? ", expanded" : "")
         << ", " << shape.points << " points" << shape.suffix
         << (shape.direction == Qt::RightToLeft ? ", right to left" : "")
         << (shape.narrow ? ", narrow" : "");
  }
};

class PanelShapes : public testing::TestWithParam<Shape> {
 protected:
  void SetUp() override {
    const Shape& shape = GetParam();
    QFont font = QApplication::font();
    font.setPointSizeF(shape.points);
    host.setFont(font);
    host.setLayoutDirection(shape.direction);
    panel.layOut(shape.secondTray);
    panel.fill(shape.secondTray, shape.secondTray, shape.suffix);
    panel.disclose(shape.expanded);
    layout.addWidget(&panel.widget());
    panel.widget().show();
    host.resize(shape.narrow ? host.minimumSizeHint() : host.sizeHint());
    host.show();
    QCoreApplication::processEvents();
  }

  void TearDown() override { panel.widget().setParent(nullptr); }

  std::vector<QWidget*> leaves() const {
    std::vector<QWidget*> shown;
    for (QWidget* widget : panel.widget().findChildren<QWidget*>())
      if (widget->property(kFrame).isValid() && widget->isVisible() &&
          widget->metaObject() != &QWidget::staticMetaObject)
        shown.push_back(widget);
    return shown;
  }

  QRect placeOf(const QWidget& widget) const {
    return QRect(widget.mapTo(&panel.widget(), QPoint(0, 0)), widget.size());
  }
  QRect placeOf(const char* name) const { return placeOf(panel.find<QWidget>(name)); }

  QtToolkit toolkit;
  QWidget host;
  QVBoxLayout layout{&host};
  TestPanel panel{toolkit};
};

TEST_P(PanelShapes, NothingIsClipped) {
  ASSERT_GE(leaves().size(), 6u);
  for (const QWidget* leaf : leaves()) {
    const std::string name = leaf->objectName().toStdString();
    EXPECT_TRUE(panel.widget().rect().contains(placeOf(*leaf))) << name;
    EXPECT_TRUE(leaf->visibleRegion().boundingRect() == leaf->rect()) << name;
    EXPECT_GE(leaf->height(), leaf->sizeHint().height()) << name;
    if (!qobject_cast<const QComboBox*>(leaf)) {
      EXPECT_GE(leaf->width(), leaf->sizeHint().width()) << name;
    }
  }
}

TEST_P(PanelShapes, FitsEveryWidthBetweenItsLeastAndItsHint) {
  const int least = panel.widget().minimumSizeHint().width();
  const int wanted = panel.widget().sizeHint().width();
  EXPECT_LT(least, wanted);
  for (int width = least; width < wanted; width += 7) {
    panel.widget().resize(width, panel.widget().height());
    panel.widget().layout()->activate();
    for (const QWidget* leaf : leaves())
      EXPECT_TRUE(panel.widget().rect().contains(placeOf(*leaf)))
          << width << ": " << leaf->objectName().toStdString();
  }
}

TEST_P(PanelShapes, PopUpsHaveRoomForTheirItems) {
  for (const QWidget* leaf : leaves()) {
    const auto* box = qobject_cast<const QComboBox*>(leaf);
    for (int i = 0; box && i < box->count(); ++i)
      EXPECT_GT(box->width(), box->fontMetrics().horizontalAdvance(box->itemText(i)) + 20);
  }
}

TEST_P(PanelShapes, NothingOverlaps) {
  const auto shown = leaves();
  for (std::size_t i = 0; i < shown.size(); ++i)
    for (std::size_t j = i + 1; j < shown.size(); ++j)
      EXPECT_FALSE(placeOf(*shown[i]).intersects(placeOf(*shown[j])))
          << shown[i]->objectName().toStdString() << " and "
          << shown[j]->objectName().toStdString();
}

TEST_P(PanelShapes, EverythingShownCanBeClicked) {
  for (QWidget* leaf : leaves()) {
    const QPoint middle = placeOf(*leaf).center();
    QWidget* hit = panel.widget().childAt(middle);
    EXPECT_TRUE(hit == leaf || leaf->isAncestorOf(hit)) << leaf->objectName().toStdString();
  }
}

TEST_P(PanelShapes, LabelsEndAtTheColonAndControlsShareAnEdge) {
  const bool mirrored = GetParam().direction == Qt::RightToLeft;
  const auto outer = [=](const QRect& r) { return mirrored ? r.left() : r.right(); };
  const auto inner = [=](const QRect& r) { return mirrored ? r.right() : r.left(); };
  const int colon = outer(placeOf("ibPrintQualityLabel"));
  const int edge = inner(placeOf("ibPrintQuality"));
  for (const QWidget* leaf : leaves()) {
    const QString name = leaf->objectName();
    const bool isBesideControl = name.endsWith("Label") && name != "ibDisclosureLabel" &&
                                 name != "ibNoneLabel" && name != "ibMostLabel" &&
                                 name != "advancedSummaryLabel";
    if (isBesideControl) {
      EXPECT_EQ(outer(placeOf(*leaf)), colon) << name.toStdString();
    }
    const bool isInColumn = qobject_cast<const QComboBox*>(leaf) ||
                            (qobject_cast<const QAbstractButton*>(leaf) && name != "ibDisclosure");
    if (isInColumn) {
      EXPECT_EQ(inner(placeOf(*leaf)), edge) << name.toStdString();
    }
  }
}

TEST_P(PanelShapes, HasNoMarginsOfItsOwn) {
  QRect used;
  for (const QWidget* leaf : leaves()) used |= placeOf(*leaf);
  EXPECT_EQ(used.left(), 0);
  EXPECT_EQ(used.right(), panel.widget().width() - 1);
  EXPECT_LE(used.top(), 1);
  // A check box is a little lower than a row.
  EXPECT_LE(panel.widget().height() - 1 - used.bottom(), 4);
}

TEST_P(PanelShapes, EveryRowIsAsFarFromTheNextAsInAForm) {
  QWidget forms;
  forms.setFont(host.font());
  QFormLayout form(&forms);
  QComboBox upper, lower;
  form.addRow("Upper:", &upper);
  form.addRow("Lower:", &lower);
  forms.resize(forms.sizeHint());
  form.activate();
  const int wanted = lower.y() - upper.y();
  std::set<int> rows;
  for (const QWidget* leaf : leaves()) rows.insert(placeOf(*leaf).center().y());
  for (auto row = std::next(rows.begin()); row != rows.end(); ++row) {
    const int distance = *row - *std::prev(row);
    EXPECT_TRUE(distance <= 2 || std::abs(distance - wanted) <= 2) << distance;
  }
}

TEST_P(PanelShapes, StandsInOneGridWithAForm) {
  if (GetParam().narrow) host.resize(host.sizeHint());
  QLabel label("A label of the program's own form:");
  QLineEdit field;
  QFormLayout form;
  form.setLabelAlignment(Qt::AlignRight);
  form.addRow(&label, &field);
  layout.insertLayout(0, &form);
  const int column =
      std::max(label.sizeHint().width(), QtToolkit::labelColumnWidth(panel.widget()));
  label.setMinimumWidth(column);
  QtToolkit::setLabelColumnWidth(panel.widget(), column);
  host.resize(host.sizeHint() + QSize(50, 0));
  QCoreApplication::processEvents();
  const auto onHost = [this](const QWidget& widget) {
    return QRect(widget.mapTo(&host, QPoint(0, 0)), widget.size());
  };
  const auto& popUp = panel.find<QWidget>("ibPaperType");
  EXPECT_NEAR(onHost(popUp).left(), onHost(field).left(), 1);
  EXPECT_NEAR(onHost(popUp).right(), onHost(field).right(), 1);
  EXPECT_NEAR(onHost(panel.find<QWidget>("ibPaperTypeLabel")).right(), onHost(label).right(), 1);
  layout.removeItem(&form);
}

TEST_P(PanelShapes, FramesStayAsTheControllerSetThem) {
  const Rect view = panel.ibPDEView->frame();
  EXPECT_EQ(view.width, 300);
  EXPECT_EQ(view.height,
            (GetParam().expanded ? panel.advancedViewRect : panel.headerViewRect).height);
  EXPECT_EQ(panel.ibHeaderView->frame(), panel.headerViewRect);
  EXPECT_EQ(panel.ibDisclosure->frame().y, GetParam().secondTray ? 9 : 44);
}

TEST_P(PanelShapes, FollowsAChangeAtOnce) {
  const int before = panel.widget().sizeHint().height();
  panel.disclose(!GetParam().expanded);
  const int after = panel.widget().sizeHint().height();
  EXPECT_EQ(after > before, !GetParam().expanded);
  panel.ibPrintQualityLabel->setStringValue(
      "A label that is longer than any other of this panel, "
      "whatever language the panel speaks");
  EXPECT_GT(panel.widget().sizeHint().width(), host.width());
}

std::vector<Shape> shapes() {
  std::vector<Shape> all;
  for (bool tray : {false, true})
    for (bool expanded : {false, true})
      for (const Shape& look : {Shape{tray, expanded, 9, ""},
                                {tray, expanded, 16, ""},
                                {tray, expanded, 9, " in a language half as long again"},
                                {tray, expanded, 6, ""},
                                {tray, expanded, 12, "", Qt::RightToLeft},
                                {tray, expanded, 9, "", Qt::LeftToRight, true},
                                {tray, expanded, 16, "", Qt::RightToLeft, true}})
        all.push_back(look);
  return all;
}

INSTANTIATE_TEST_SUITE_P(All, PanelShapes, testing::ValuesIn(shapes()));

}  // namespace
}  // namespace tavrin
