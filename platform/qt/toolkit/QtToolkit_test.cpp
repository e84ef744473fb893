#include "platform/qt/toolkit/QtToolkit.h"

#include <QComboBox>
#include <QLabel>
#include <QPointer>
#include <QRadioButton>
#include <QSlider>
#include <QTest>
#include <QVBoxLayout>
#include <gtest/gtest.h>

#include "platform/files/Bundle.h"
#include "platform/qt/base/WidgetProperties.h"
#include "tests/fixtures/TestPanel.h"
#include "tests/fixtures/TestWindows.h"

namespace tavrin {
namespace {

using Strings = std::vector<std::string>;

class QtToolkitTest : public testing::Test {
 protected:
  void TearDown() override { QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete); }

  void show() {
    panel.layOut(true);
    panel.fill(true, true);
    panel.disclose(true);
    panel.widget().show();
    QCoreApplication::processEvents();
  }

  QtToolkit toolkit;
  TestPanel panel{toolkit};
};

TEST_F(QtToolkitTest, ThePanelsFileFitsItsOwner) {
  EXPECT_EQ(panel.interface->problems(), Strings{});
  EXPECT_TRUE(panel.ibPDEView.isConnected());
}

TEST_F(QtToolkitTest, TheWindowsFileFitsItsOwner) {
  EXPECT_EQ(TestWindows(toolkit).interface->problems(), Strings{});
}

TEST_F(QtToolkitTest, NamesWhatDoesNotFit) {
  Outlet<Slider> wrongKind;
  Outlet<View> missing;
  InterfaceBindings bindings;
  bindings.outlet("ibPrintQuality", wrongKind);
  bindings.outlet("ibNothing", missing);
  bindings.action<Slider>("paperTypeAction:", [](Slider&) {});
  bindings.action<Slider>("noAction:", [](Slider&) {});
  const auto loaded =
      toolkit.loadInterfaceFrom(TAVRIN_RESOURCES "/TavrinPDENIB.ui", std::move(bindings));
  std::string all;
  for (const auto& problem : loaded->problems()) all += problem + "\n";
  for (const char* name : {"\"ibPrintQuality\"", "\"ibNothing\"", "\"noAction:\"",
                           "\"ibPaperType\"", "\"mirrorAction:\""})
    EXPECT_NE(all.find(name), std::string::npos) << name << " in\n" << all;
  EXPECT_FALSE(wrongKind.isConnected());
  EXPECT_FALSE(missing.isConnected());
}

TEST_F(QtToolkitTest, AFileThatIsNotThereLeavesTheOutlets) {
  Outlet<View> outlet;
  InterfaceBindings bindings;
  bindings.outlet("ibPDEView", outlet);
  EXPECT_EQ(toolkit.loadInterface(Bundle(), "TavrinPDENIB", std::move(bindings)), nullptr);
  EXPECT_FALSE(outlet.isConnected());
}

TEST_F(QtToolkitTest, StartsAsTheFileSays) {
  EXPECT_TRUE(panel.ibPaperSource->isHidden());
  EXPECT_TRUE(panel.ibPaperSourceLabel->isHidden());
  EXPECT_TRUE(panel.ibDryTimePopUp->isHidden());
  EXPECT_TRUE(panel.ibDryTimeLabel->isHidden());
  EXPECT_TRUE(panel.ibDryTimeCheckBox->isHidden());
  EXPECT_FALSE(panel.ibPDEView->isHidden());
  EXPECT_FALSE(panel.ibPaperType->isHidden());
  EXPECT_EQ(panel.ibDisclosure->intValue(), 0);
  const auto& slider = panel.find<QSlider>("ibManualImageSharpeningSlider");
  EXPECT_EQ(slider.minimum(), 0);
  EXPECT_EQ(slider.maximum(), 10);
}

TEST_F(QtToolkitTest, ProgramChangesRunNoAction) {
  show();
  panel.ibPaperType->selectItemWithTitle("Plain");
  panel.ibPaperType->removeAllItems();
  panel.ibPaperType->addItem("x", "y");
  panel.ibMIrror->setState(1);
  panel.ibManualImageSharpening->setState(1);
  panel.ibManualImageSharpeningSlider->setIntValue(7);
  panel.ibDisclosure->setState(0);
  QCoreApplication::processEvents();
  EXPECT_EQ(panel.ran, Strings{});
}

TEST_F(QtToolkitTest, UserChangesRunTheirAction) {
  show();
  panel.ibManualImageSharpeningSlider->setEnabled(true);
  QTest::keyClick(&panel.find<QComboBox>("ibPrintQuality"), Qt::Key_Down);
  QTest::mouseClick(&panel.find<QAbstractButton>("ibMIrror"), Qt::LeftButton, {}, QPoint(8, 10));
  QTest::keyClick(&panel.find<QSlider>("ibManualImageSharpeningSlider"), Qt::Key_Right);
  QTest::mouseClick(&panel.find<QLabel>("ibDisclosureLabel"), Qt::LeftButton);
  EXPECT_EQ(panel.ran, (Strings{"printQualityAction:", "mirrorAction:",
                                "imageSharpeningSliderAction:", "disclosureAction:"}));
  EXPECT_EQ(panel.ibDisclosure->intValue(), 0);
}

TEST_F(QtToolkitTest, AnActionSeesWhatTheUserMade) {
  show();
  panel.ibManualImageSharpeningSlider->setEnabled(true);
  int seen = -1;
  panel.duringAction = [&](const auto&) { seen = panel.ibManualImageSharpeningSlider->intValue(); };
  panel.find<QSlider>("ibManualImageSharpeningSlider").setSliderPosition(4);
  EXPECT_EQ(seen, 4);
  EXPECT_EQ(panel.ran.size(), 1u);
}

TEST_F(QtToolkitTest, AnActionMaySetTheSliderBack) {
  show();
  panel.duringAction = [&](const auto&) { panel.ibManualImageSharpeningSlider->setIntValue(0); };
  panel.find<QSlider>("ibManualImageSharpeningSlider").setSliderPosition(4);
  EXPECT_EQ(panel.ibManualImageSharpeningSlider->intValue(), 0);
}

TEST_F(QtToolkitTest, RadioButtonsKeepOneOnForTheUserOnly) {
  show();
  auto& automatic = panel.find<QRadioButton>("ibAutoImageSharpening");
  QTest::mouseClick(&automatic, Qt::LeftButton, {}, QPoint(8, 10));
  EXPECT_EQ(panel.ran, Strings{"autoImageSharpeningAction:"});
  EXPECT_EQ(panel.ibAutoImageSharpening->intValue(), 1);
  automatic.setFocus();
  QTest::keyClick(&automatic, Qt::Key_Down);
  EXPECT_EQ(panel.ran.back(), "manualImageSharpeningAction:");
  EXPECT_EQ(panel.ibAutoImageSharpening->intValue(), 0);
  panel.ibAutoImageSharpening->setState(1);
  EXPECT_EQ(panel.ibManualImageSharpening->intValue(), 1);
  panel.ibManualImageSharpening->setState(0);
  EXPECT_EQ(panel.ibManualImageSharpening->intValue(), 0);
}

TEST_F(QtToolkitTest, ReturnWorksTheDisclosureTriangle) {
  show();
  auto& triangle = panel.find<QAbstractButton>("ibDisclosure");
  QTest::keyClick(&triangle, Qt::Key_Return);
  EXPECT_EQ(panel.ibDisclosure->intValue(), 0);
  QTest::keyClick(&triangle, Qt::Key_Enter, Qt::KeypadModifier);
  EXPECT_EQ(panel.ibDisclosure->intValue(), 1);
  EXPECT_EQ(panel.ran, (Strings{"disclosureAction:", "disclosureAction:"}));
}

TEST_F(QtToolkitTest, ThePickedItemCanBePickedAgain) {
  show();
  auto& box = panel.find<QComboBox>("ibPaperType");
  emit box.activated(0);
  EXPECT_EQ(panel.ran, Strings{"paperTypeAction:"});
}

TEST_F(QtToolkitTest, PopUpsKeepTitlesAndValuesAsTheyAre) {
  const std::string odd = "A&B <b>x</b>\nline\x01\xff";
  panel.ibPaperType->addItem(odd, "first");
  panel.ibPaperType->addItem("Same", "2");
  panel.ibPaperType->addItem("Same", "3");
  EXPECT_EQ(panel.ibPaperType->numberOfItems(), 3);
  EXPECT_EQ(panel.ibPaperType->indexOfSelectedItem(), 0);
  EXPECT_EQ(panel.ibPaperType->titleOfSelectedItem(), odd);
  EXPECT_EQ(panel.ibPaperType->itemValue(2), "3");
  EXPECT_FALSE(panel.ibPaperType->itemTitle(3));
  panel.ibPaperType->selectItemWithTitle("Same");
  EXPECT_EQ(panel.ibPaperType->indexOfSelectedItem(), 1);
  panel.ibPaperType->selectItemWithTitle({});
  EXPECT_EQ(panel.ibPaperType->indexOfSelectedItem(), -1);
  EXPECT_FALSE(panel.ibPaperType->titleOfSelectedItem());
  panel.ibPaperType->selectItemWithTitle(odd);
  EXPECT_EQ(panel.ibPaperType->indexOfSelectedItem(), 0);
  EXPECT_FALSE(panel.find<QComboBox>("ibPaperType").itemText(0).contains(u'\n'));
}

TEST_F(QtToolkitTest, TextsAreShownAsTheyAre) {
  panel.ibPrintQualityLabel->setStringValue("A & B <b>\nC:");
  panel.ibMIrror->setTitle("A & B <b>\nC");
  const auto& label = panel.find<QLabel>("ibPrintQualityLabel");
  EXPECT_EQ(label.text(), "A && B <b> C:");  // the buddy makes it a mnemonic otherwise
  EXPECT_EQ(label.textFormat(), Qt::PlainText);
  EXPECT_EQ(label.property(kRawText).toByteArray(), "A & B <b>\nC:");
  EXPECT_EQ(panel.find<QAbstractButton>("ibMIrror").text(), "A && B <b> C");
  EXPECT_EQ(panel.find<QComboBox>("ibPrintQuality").accessibleName(), "A & B <b> C");
}

TEST_F(QtToolkitTest, ATextThatMayBeCutNeedsNoRoom) {
  show();
  const int width = panel.widget().sizeHint().width();
  const QString text = QString("Mirror Image, ").repeated(8) + "<b>";
  panel.advancedSummaryLabel->setStringValue(text.toStdString());
  const auto& label = panel.find<QLabel>("advancedSummaryLabel");
  EXPECT_EQ(panel.widget().sizeHint().width(), width);
  EXPECT_TRUE(label.text().endsWith(u'…'));
  EXPECT_TRUE(label.toolTip().contains(text.toHtmlEscaped()));
  EXPECT_EQ(label.accessibleName(), text);
  panel.widget().resize(10000, panel.widget().height());
  EXPECT_EQ(label.text(), text);
  EXPECT_EQ(label.toolTip(), "");
}

TEST_F(QtToolkitTest, GreyIsThePalettesDisabledText) {
  show();
  const auto& label = panel.find<QLabel>("ibNoneLabel");
  EXPECT_EQ(label.property(kTextColor), "grey");
  EXPECT_EQ(label.palette().currentColorGroup(), QPalette::Disabled);
  panel.ibNoneLabel->setTextColor(TextColor::black);
  EXPECT_EQ(label.property(kTextColor), "black");
  EXPECT_NE(label.palette().currentColorGroup(), QPalette::Disabled);
}

TEST_F(QtToolkitTest, EveryControlHasAName) {
  show();
  for (QWidget* widget : panel.widget().findChildren<QWidget*>()) {
    if (widget->focusPolicy() == Qt::NoFocus || widget->objectName().startsWith("qt_")) continue;
    if (!widget->property(kFrame).isValid()) continue;
    const auto* button = qobject_cast<QAbstractButton*>(widget);
    const bool named = !widget->accessibleName().isEmpty() || (button && !button->text().isEmpty());
    EXPECT_TRUE(named || widget->property(kHiddenFlag).toBool())
        << widget->objectName().toStdString();
  }
}

TEST_F(QtToolkitTest, TabGoesFromTopToBottom) {
  show();
  panel.ibManualImageSharpeningSlider->setEnabled(true);
  panel.ibBlackAndWhite->setEnabled(true);
  Strings order;
  QWidget* first = &panel.find<QWidget>("ibPrintQuality");
  for (QWidget* w = first; order.size() < 10; w = w->nextInFocusChain()) {
    const bool isControl = w->property(kFrame).isValid() && w->focusPolicy() != Qt::NoFocus;
    if (isControl && w->isVisible()) order.push_back(w->objectName().toStdString());
  }
  EXPECT_EQ(order,
            (Strings{"ibPrintQuality", "ibBlackAndWhite", "ibPaperType", "ibPaperSource",
                     "ibDisclosure", "ibMIrror", "ibAutoImageSharpening", "ibManualImageSharpening",
                     "ibManualImageSharpeningSlider", "ibDryTimePopUp"}));
}

TEST_F(QtToolkitTest, DetachedControlsRunNoAction) {
  show();
  panel.interface->detach();
  panel.find<QAbstractButton>("ibMIrror").click();
  EXPECT_EQ(panel.ran, Strings{});
}

TEST_F(QtToolkitTest, AnActionMayDropThePanel) {
  show();
  auto& box = panel.find<QComboBox>("ibPaperType");
  QPointer<QWidget> watched = &panel.widget();
  panel.duringAction = [&](const auto&) { panel.interface.reset(); };
  QTest::keyClick(&box, Qt::Key_Down);
  toolkit.settle();
  EXPECT_EQ(panel.ran.size(), 1u);
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  EXPECT_TRUE(watched.isNull());
}

TEST_F(QtToolkitTest, TellsAfterAnActionHasRun) {
  show();
  Strings heard;
  QObject::connect(&toolkit, &QtToolkit::actionRan, [&] { heard = panel.ran; });
  panel.ibMIrror->setState(1);
  EXPECT_EQ(heard, Strings{});
  panel.find<QAbstractButton>("ibMIrror").click();
  EXPECT_EQ(heard, Strings{"mirrorAction:"});
}

TEST_F(QtToolkitTest, TellsOnceOfAnActionThatRanOthers) {
  show();
  int told = 0;
  QObject::connect(&toolkit, &QtToolkit::actionRan, [&] { ++told; });
  TestWindows windows(toolkit);
  windows.duringAction = [&](const auto&) { toolkit.stopModal(); };
  panel.duringAction = [&](const auto&) {
    toolkit.runModalForWindow(*windows.windows["ibMsgOneWindow"]);
    EXPECT_EQ(told, 0);
  };
  toolkit.onModalWindow(
      [](QWidget& shown) { shown.findChild<QAbstractButton*>("ibOkButton_MsgOne")->click(); });
  panel.find<QAbstractButton>("ibBlackAndWhite").click();
  EXPECT_EQ(windows.ran, Strings{"clickOkButton_MsgOne:"});
  EXPECT_EQ(told, 1);
}

TEST_F(QtToolkitTest, TellsOfAnActionThatDroppedThePanel) {
  show();
  int told = 0;
  QObject::connect(&toolkit, &QtToolkit::actionRan, [&] { ++told; });
  panel.duringAction = [&](const auto&) { panel.interface.reset(); };
  panel.find<QAbstractButton>("ibMIrror").click();
  EXPECT_EQ(told, 1);
}

TEST_F(QtToolkitTest, AProgramMayDeleteThePanelsWidgets) {
  {
    QWidget host;
    QVBoxLayout layout(&host);
    layout.addWidget(&panel.widget());
  }
  EXPECT_EQ(QtToolkit::widgetOf(*panel.ibPDEView), nullptr);
  panel.ibPaperType->addItem("x", "y");
  panel.ibMIrror->setState(1);
  panel.ibMIrror->setTitle("x");
  panel.ibNoneLabel->setStringValue("x");
  panel.ibManualImageSharpeningSlider->setIntValue(3);
  panel.ibPDEView->setFrameSize(1, 1);
  EXPECT_EQ(panel.ibPaperType->numberOfItems(), 0);
  EXPECT_EQ(panel.ibMIrror->intValue(), 0);
}

TEST_F(QtToolkitTest, NullObjectsHaveNoWidgetAndRunNoWindow) {
  EXPECT_EQ(QtToolkit::widgetOf(nullObject<View>()), nullptr);
  EXPECT_FALSE(toolkit.runModalForWindow(nullObject<Window>()));
}

}  // namespace
}  // namespace tavrin
