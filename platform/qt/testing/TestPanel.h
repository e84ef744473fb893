#pragma once

#include <map>
#include <memory>
#include <string>
#include <vector>

#include <QWidget>

#include "platform/qt/QtToolkit.h"

namespace tavrin {

// The panel's interface file with an owner that behaves like the panel's controller as far as the
// screen shows it: which rows there are, the frames, the texts.
class TestPanel {
 public:
  explicit TestPanel(QtToolkit& toolkit);

  InterfaceBindings bindings();
  // Lays the panel out for a printer with or without a second tray, collapsed.
  void layOut(bool secondTray);
  void disclose(bool show);
  // Fills the pop-ups and writes the texts; longer ones stand for a wordier language.
  void fill(bool secondTray, bool dryTimePopUp, const std::string& suffix = "");

  QWidget& widget() const;
  template <class W>
  W& find(const char* name) const {
    return *widget().findChild<W*>(QLatin1String(name));
  }

  std::vector<std::string> ran;  // the selectors of the actions that ran
  std::function<void(const std::string& selector)> duringAction;

  Outlet<View> ibPDEView, ibAdvancedView, ibHeaderView;
  Outlet<PopUpButton> ibPrintQuality, ibPaperType, ibPaperSource, ibDryTimePopUp;
  Outlet<Button> ibBlackAndWhite, ibDisclosure, ibMIrror, ibAutoImageSharpening,
      ibManualImageSharpening, ibDryTimeCheckBox;
  Outlet<Slider> ibManualImageSharpeningSlider;
  Outlet<Label> ibPrintQualityLabel, ibPaperTypeLabel, ibPaperSourceLabel, ibDisclosureLabel,
      ibImageSharpeningLabel, ibNoneLabel, ibMostLabel, ibDryTimeLabel;
  Rect headerViewRect, advancedViewRect;

  std::shared_ptr<LoadedInterface> interface;  // after the outlets, which loading connects
};

// The windows of the conflict checker, likewise.
class TestWindows {
 public:
  explicit TestWindows(QtToolkit& toolkit);

  InterfaceBindings bindings();
  void fill(const std::string& suffix = "");

  std::vector<std::string> ran;
  std::function<void(const std::string& selector)> duringAction;
  std::function<void()> windowWillClose;

  std::map<std::string, Outlet<Window>> windows;
  std::map<std::string, Outlet<Label>> labels;
  std::map<std::string, Outlet<Button>> buttons;

  std::shared_ptr<LoadedInterface> interface;  // after the outlets, which loading connects
};

}  // namespace tavrin
