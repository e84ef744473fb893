#include "platform/qt/testing/TestPanel.h"

#include <QWidget>

namespace tavrin {

namespace {

std::filesystem::path resource(const std::string& file) {
  return std::filesystem::path(TAVRIN_RESOURCES) / file;
}

// An action that notes its selector.
template <class Sender, class Owner>
void note(InterfaceBindings& bindings, Owner& owner, const std::string& selector) {
  bindings.action<Sender>(selector, [&owner, selector](Sender&) {
    owner.ran.push_back(selector);
    if (owner.duringAction) owner.duringAction(selector);
  });
}

}  // namespace

TestPanel::TestPanel(QtToolkit& toolkit)
    : interface(toolkit.loadInterfaceFrom(resource("TavrinPDENIB.ui"), bindings())) {}

InterfaceBindings TestPanel::bindings() {
  InterfaceBindings b;
  b.outlet("ibPDEView", ibPDEView);
  b.outlet("ibAdvancedView", ibAdvancedView);
  b.outlet("ibHeaderView", ibHeaderView);
  b.outlet("ibPrintQuality", ibPrintQuality);
  b.outlet("ibPrintQualityLabel", ibPrintQualityLabel);
  b.outlet("ibBlackAndWhite", ibBlackAndWhite);
  b.outlet("ibPaperType", ibPaperType);
  b.outlet("ibPaperTypeLabel", ibPaperTypeLabel);
  b.outlet("ibPaperSource", ibPaperSource);
  b.outlet("ibPaperSourceLabel", ibPaperSourceLabel);
  b.outlet("ibDisclosure", ibDisclosure);
  b.outlet("ibDisclosureLabel", ibDisclosureLabel);
  b.outlet("ibMIrror", ibMIrror);
  b.outlet("ibImageSharpeningLabel", ibImageSharpeningLabel);
  b.outlet("ibAutoImageSharpening", ibAutoImageSharpening);
  b.outlet("ibManualImageSharpening", ibManualImageSharpening);
  b.outlet("ibManualImageSharpeningSlider", ibManualImageSharpeningSlider);
  b.outlet("ibNoneLabel", ibNoneLabel);
  b.outlet("ibMostLabel", ibMostLabel);
  b.outlet("ibDryTimePopUp", ibDryTimePopUp);
  b.outlet("ibDryTimeCheckBox", ibDryTimeCheckBox);
  b.outlet("ibDryTimeLabel", ibDryTimeLabel);
  for (const char* selector :
       {"printQualityAction:", "paperTypeAction:", "paperSourceAction:", "dryTimePopUpAction:"})
    note<PopUpButton>(b, *this, selector);
  for (const char* selector :
       {"blackAndWhiteAction:", "mirrorAction:", "manualImageSharpeningAction:",
        "autoImageSharpeningAction:", "dryTimeCheckBoxAction:", "disclosureAction:"})
    note<Button>(b, *this, selector);
  note<Slider>(b, *this, "imageSharpeningSliderAction:");
  return b;
}

QWidget& TestPanel::widget() const { return *QtToolkit::widgetOf(*ibPDEView); }

// The controller's arithmetic, the two different amounts included.
void TestPanel::layOut(bool secondTray) {
  const double freedRow = ibPaperSourceLabel->frame().y;
  headerViewRect = ibHeaderView->frame();
  advancedViewRect = ibAdvancedView->frame();
  if (!secondTray) {
    ibPaperSourceLabel->setHidden(true);
    ibPaperSource->setHidden(true);
    ibDisclosure->setFrameOrigin(ibDisclosure->frame().x, freedRow);
    ibDisclosureLabel->setFrameOrigin(ibDisclosureLabel->frame().x, freedRow);
    headerViewRect.y -= 35;
    advancedViewRect.height -= 40;
    ibHeaderView->setFrame(headerViewRect);
  }
  advancedViewRect.height += headerViewRect.height;
  disclose(false);
}

void TestPanel::disclose(bool show) {
  ibAdvancedView->setHidden(!show);
  const Rect& size = show ? advancedViewRect : headerViewRect;
  ibPDEView->setFrameSize(size.width, size.height);
  if (show) ibHeaderView->setFrameOrigin(headerViewRect.x, headerViewRect.y);
  ibDisclosure->setState(show ? 1 : 0);
  ibPDEView->setNeedsDisplay();
}

void TestPanel::fill(bool secondTray, bool dryTimePopUp, const std::string& suffix) {
  const auto add = [](Outlet<PopUpButton>& popUp, std::initializer_list<const char*> titles) {
    for (const char* title : titles) popUp->addItem(title, title);
  };
  add(ibPrintQuality, {"Automatic", "Quick Print", "Normal", "Photo"});
  add(ibPaperType, {"Automatic", "Plain", "Glossy/Photo Paper", "Iron-On Transfer"});
  ibPrintQualityLabel->setStringValue("Print Quality" + suffix + ":");
  ibPaperTypeLabel->setStringValue("Paper Type" + suffix + ":");
  if (secondTray) {
    add(ibPaperSource, {"Tray 1", "Tray 2"});
    ibPaperSource->setHidden(false);
    ibPaperSourceLabel->setHidden(false);
  }
  ibPaperSourceLabel->setStringValue("Paper Source" + suffix + ":");
  ibDisclosureLabel->setStringValue("Advanced Options" + suffix);
  ibBlackAndWhite->setTitle("Print in Black and White" + suffix);
  ibMIrror->setTitle("Mirror" + suffix);
  ibImageSharpeningLabel->setStringValue("Image Sharpening" + suffix + ":");
  ibAutoImageSharpening->setTitle("Automatic" + suffix);
  ibAutoImageSharpening->setState(1);
  ibManualImageSharpening->setTitle("Manual" + suffix);
  ibManualImageSharpeningSlider->setEnabled(false);
  ibNoneLabel->setStringValue("None");
  ibMostLabel->setStringValue("Most");
  ibNoneLabel->setTextColor(TextColor::grey);
  ibMostLabel->setTextColor(TextColor::grey);
  if (dryTimePopUp) {
    add(ibDryTimePopUp, {"Automatic", "Short", "Long"});
    ibDryTimeLabel->setStringValue("Dry Time" + suffix);
    ibDryTimePopUp->setHidden(false);
    ibDryTimeLabel->setHidden(false);
  } else {
    ibDryTimeCheckBox->setTitle("Extended dry time" + suffix);
    ibDryTimeCheckBox->setHidden(false);
  }
}

TestWindows::TestWindows(QtToolkit& toolkit)
    : interface(toolkit.loadInterfaceFrom(resource("Conflicts.ui"), bindings())) {}

InterfaceBindings TestWindows::bindings() {
  const std::map<std::string, std::vector<std::string>> captions{
      {"MsgOne", {"A_First", "B_First", "A_Second", "B_Second", "A_Third"}},
      {"MsgTwo", {"A_First", "B_First", "A_Second", "A_Third"}},
      {"MsgFive", {"A_First", "B_First", "A_Second"}}};
  InterfaceBindings b;
  const auto offer = [&b](auto& outlets, const std::string& name) {
    b.outlet(name, outlets[name]);
  };
  for (const auto& [msg, lines] : captions) {
    offer(windows, "ib" + msg + "Window");
    for (const char* line : {"A", "B", "C", "D"}) offer(labels, "ibLabel" + (line + ("_" + msg)));
    for (const auto& line : lines) offer(labels, "ibLabel" + line + "Button_" + msg);
    for (const std::string button : {"First", "Second", "Third", "Ok"}) {
      if (msg == "MsgFive" && button == "Third") continue;
      offer(buttons, "ib" + button + "Button_" + msg);
      note<Button>(b, *this, "click" + button + "Button_" + msg + ":");
    }
  }
  offer(windows, "ibInstructionWindow");
  offer(labels, "ibInstructionText");
  b.windowWillClose = [this] {
    ran.push_back("windowWillClose:");
    if (windowWillClose) windowWillClose();
  };
  return b;
}

void TestWindows::fill(const std::string& suffix) {
  for (auto& [name, window] : windows) window->setTitle("Conflicting settings");
  for (auto& [name, button] : buttons)
    if (name.starts_with("ibOk"))
      button->setTitle("OK");
    else
      button->setState(name.starts_with("ibFirst") ? 1 : 0);
  for (const std::string msg : {"MsgOne", "MsgTwo", "MsgFive"}) {
    labels["ibLabelA_" + msg]->setStringValue("Paper Type: Iron-On Transfer" + suffix);
    labels["ibLabelB_" + msg]->setStringValue("is not compatible with" + suffix);
    labels["ibLabelC_" + msg]->setStringValue("Print Quality: Quick Print" + suffix);
    labels["ibLabelD_" + msg]->setStringValue("Choose an option to resolve the conflict:" + suffix);
    labels["ibLabelA_FirstButton_" + msg]->setStringValue("Paper Type: Iron-On Transfer" + suffix);
    labels["ibLabelB_FirstButton_" + msg]->setStringValue("Print Quality: Normal" + suffix);
    labels["ibLabelA_SecondButton_" + msg]->setStringValue(
        "Show instructions to resolve the conflict settings." + suffix);
  }
  labels["ibLabelA_SecondButton_MsgOne"]->setStringValue("Paper Type: Plain" + suffix);
  labels["ibLabelB_SecondButton_MsgOne"]->setStringValue("Print Quality: Quick Print" + suffix);
  for (const std::string msg : {"MsgOne", "MsgTwo"})
    labels["ibLabelA_ThirdButton_" + msg]->setStringValue(
        "Continue without resolving the conflict." + suffix);
  labels["ibInstructionText"]->setStringValue(
      "1) If your application does not have File -> Page Setup, skip to step 7." + suffix +
      "\n2) Cancel the Print dialog.\n3) Select File -> Page Setup." + suffix +
      "\n4) From the Paper Size pop-up menu, select the desired paper size.\n5) Click OK.\n6) Open "
      "the Print dialog.\n7) From the Print dialog, select your desired settings." +
      suffix + "\n8) Click the close button in the upper left corner of this screen.");
}

}  // namespace tavrin
