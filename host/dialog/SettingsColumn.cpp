#include "host/dialog/SettingsColumn.h"

#include <QEvent>

#include "host/panes/Widgets.h"

namespace tavrin {
namespace {

// In line heights, so that it grows with the font.
constexpr QSize kUsualSize(34, 28);
// What can be seen on even the smallest screen.
constexpr QSize kLeastSize(12, 6);

// Brings whatever comes into the column in line. That is done when its own layout has been brought
// up to date: a form that changes before is not laid out again.
class Contents : public QWidget {
 public:
  using QWidget::QWidget;

 protected:
  bool event(QEvent* event) override {
    const bool handled = QWidget::event(event);
    const auto type = event->type();
    if (type == QEvent::LayoutRequest || type == QEvent::Show || type == QEvent::Resize)
      lineUpForms(*this);
    return handled;
  }
};

}  // namespace

SettingsColumn::SettingsColumn(QWidget* parent) : QScrollArea(parent) {
  setFrameShape(QFrame::NoFrame);
  setWidgetResizable(true);
  setFocusPolicy(Qt::NoFocus);
  setWidget(makeChild<Contents>(this));
}

QSize SettingsColumn::sizeHint() const { return kUsualSize * fontMetrics().height(); }

QSize SettingsColumn::minimumSizeHint() const { return kLeastSize * fontMetrics().height(); }

}  // namespace tavrin
