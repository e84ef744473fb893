#include "platform/qt/controls/WheelAndReturn.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QDialogButtonBox>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QSpinBox>
#include <QTabBar>
#include <QTest>
#include <QToolButton>
#include <QVBoxLayout>
#include <QWheelEvent>
#include <gtest/gtest.h>

namespace tavrin {
namespace {

// A dialog with a default button and more controls than it has room for.
class WheelAndReturnTest : public testing::Test {
 protected:
  void SetUp() override {
    popUp.addItems({"Letter", "Legal", "Statement"});
    popUp.setCurrentIndex(1);
    editable.setEditable(true);
    number.setValue(5);
    slider.setOrientation(Qt::Horizontal);
    slider.setValue(5);
    tabs.addTab("Layout");
    tabs.addTab("Summary");
    for (QWidget* widget :
         std::initializer_list<QWidget*>{&popUp, &editable, &number, &slider, &tabs, &print, &rest})
      column.addWidget(widget);
    rest.setMinimumHeight(2000);
    print.setDefault(true);
    area.setWidget(&content);
    area.setWidgetResizable(true);
    outer.addWidget(&area);
    QObject::connect(&print, &QPushButton::clicked, &dialog, [this] { ++printed; });
    dialog.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&dialog));
  }

  void turnWheelOver(QWidget& widget, int notches) {
    const QPointF middle = widget.rect().center();
    QWheelEvent wheel(middle, widget.mapToGlobal(middle), {}, {0, 120 * notches}, Qt::NoButton,
                      Qt::NoModifier, Qt::NoScrollPhase, false);
    // Qt gives the focus, and hands on what is ignored, only for the events of a device.
    QSpontaneKeyEvent::setSpontaneous(&wheel);
    qApp->notify(&widget, &wheel);
  }

  int scrolled() const { return area.verticalScrollBar()->value(); }

  WheelAndReturn manners;
  QDialog dialog;
  QVBoxLayout outer{&dialog};
  QScrollArea area;
  QWidget content;
  QVBoxLayout column{&content};
  QComboBox popUp;
  QComboBox editable;
  QSpinBox number;
  QSlider slider;
  QTabBar tabs;
  QPushButton print{"Print"};
  QWidget rest;
  int printed = 0;
};

TEST_F(WheelAndReturnTest, TheWheelScrollsPastWhatHasNoFocus) {
  print.setFocus();
  for (QWidget* widget : std::initializer_list<QWidget*>{&popUp, &number, &slider, &tabs}) {
    area.verticalScrollBar()->setValue(0);
    turnWheelOver(*widget, -1);
    EXPECT_GT(scrolled(), 0) << widget->metaObject()->className();
  }
  EXPECT_TRUE(print.hasFocus());
  EXPECT_EQ(popUp.currentIndex(), 1);
  EXPECT_EQ(number.value(), 5);
  EXPECT_EQ(slider.value(), 5);
  EXPECT_EQ(tabs.currentIndex(), 0);
}

TEST_F(WheelAndReturnTest, TheWheelChangesWhatHasTheFocus) {
  popUp.setFocus();
  turnWheelOver(popUp, -1);
  EXPECT_EQ(popUp.currentText(), "Statement");
  number.setFocus();
  turnWheelOver(number, 1);
  EXPECT_EQ(number.value(), 6);
  slider.setFocus();
  turnWheelOver(slider, -1);
  EXPECT_LT(slider.value(), 5);
  tabs.setFocus();
  turnWheelOver(tabs, -1);
  EXPECT_EQ(tabs.currentIndex(), 1);
  EXPECT_EQ(scrolled(), 0);
}

TEST_F(WheelAndReturnTest, ReturnOpensAPopUp) {
  for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter}) {
    popUp.setFocus();
    QTest::keyClick(&popUp, key);
    EXPECT_TRUE(popUp.view()->isVisible());
    QTest::keyClick(popUp.view(), Qt::Key_Down);
    QTest::keyClick(popUp.view(), key);
    EXPECT_FALSE(popUp.view()->isVisible());
  }
  EXPECT_EQ(printed, 0);
}

TEST_F(WheelAndReturnTest, ReturnPressesTheButtonThatHasTheFocus) {
  QPushButton cancel(print.parentWidget());
  QToolButton turn(print.parentWidget());
  for (QAbstractButton* button : std::initializer_list<QAbstractButton*>{&cancel, &turn}) {
    int pressed = 0;
    QObject::connect(button, &QAbstractButton::clicked, [&] { ++pressed; });
    button->show();
    button->setFocus();
    QTest::keyClick(button, Qt::Key_Return);
    EXPECT_EQ(pressed, 1);
  }
  EXPECT_EQ(printed, 0);
}

TEST_F(WheelAndReturnTest, ReturnElsewherePrints) {
  for (QWidget* widget : std::initializer_list<QWidget*>{&editable, &number, &slider, &print}) {
    printed = 0;
    widget->setFocus();
    QTest::keyClick(widget, Qt::Key_Return);
    EXPECT_EQ(printed, 1) << widget->metaObject()->className();
  }
}

}  // namespace
}  // namespace tavrin
