#include "controller/PanelView.h"

namespace tavrin {
namespace {

// Without a second tray the header moves down by one row, and the expanded panel is a row and its
// margin lower. The two amounts differ on purpose.
constexpr double kHeaderDrop = 35.0;
constexpr double kHeightLess = 40.0;

}  // namespace

void PanelView::offerOutlets(InterfaceBindings& bindings) {
  bindings.outlet("ibPDEView", ibPDEView);
  bindings.outlet("ibAdvancedView", ibAdvancedView);
  bindings.outlet("ibHeaderView", ibHeaderView);
}

void PanelView::layOut(bool hasTray2Support) {
  headerViewRect = ibHeaderView->frame();
  advancedViewRect = ibAdvancedView->frame();
  if (!hasTray2Support) {
    headerViewRect.y -= kHeaderDrop;
    advancedViewRect.height -= kHeightLess;
    ibHeaderView->setFrame(headerViewRect);
  }
  advancedViewRect.height += headerViewRect.height;
}

void PanelView::displayAdvancedOptions(bool show) {
  ibAdvancedView->setHidden(!show);
  if (show) {
    ibPDEView->setFrameSize(advancedViewRect.width, advancedViewRect.height);
    ibHeaderView->setFrameOrigin(headerViewRect.x, headerViewRect.y);
  } else {
    ibPDEView->setFrameSize(headerViewRect.width, headerViewRect.height);
  }
  ibPDEView->setNeedsDisplay();
}

}  // namespace tavrin
