#pragma once

#include "platform/toolkit/Toolkit.h"

namespace tavrin {

// The panel's views: a header that is always there and an advanced area that the user opens.
class PanelView {
 public:
  void offerOutlets(InterfaceBindings& bindings);

  // Takes the frames of the interface file; not to be done twice. Without a second tray the panel
  // is a row lower.
  void layOut(bool hasTray2Support);

  // Shows or hides the advanced area and sizes the panel for it.
  void displayAdvancedOptions(bool show);

  // The panel's root view; null when the interface file has none.
  View* root() const { return ibPDEView.isConnected() ? &*ibPDEView : nullptr; }

 private:
  Rect headerViewRect;
  // Its size is the expanded panel's once the view is laid out.
  Rect advancedViewRect;

  Outlet<View> ibPDEView;
  Outlet<View> ibAdvancedView;
  Outlet<View> ibHeaderView;
};

}  // namespace tavrin
