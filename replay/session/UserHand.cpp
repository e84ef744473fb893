#include "replay/session/UserHand.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QSlider>
#include <QWidget>

#include "platform/text/Quoted.h"

namespace tavrin {
namespace {

// Why a person could not work the control; empty if nothing stands in the way.
std::string hindrance(const QWidget& widget) {
  if (!widget.isVisible()) return "it cannot be seen";
  if (!widget.isEnabled()) return "it is disabled";
  return "";
}

Failure outOfRange(const std::string& control, const std::string& what, long long number,
                   long long first, long long last) {
  const std::string reason = "The control " + quotedInShort(control) + " has no " + what + " " +
                             std::to_string(number) + "; ";
  if (last < first) return Failure{reason + "it is empty."};
  return Failure{reason + "they go from " + std::to_string(first) + " to " + std::to_string(last) +
                 "."};
}

}  // namespace

Result<QWidget*> UserHand::find(const std::string& control) const {
  if (!panel)
    return Failure{"Nobody can work " + quotedInShort(control) + ": the panel has no view yet."};
  QWidget* widget = panel->findChild<QWidget*>(QString::fromStdString(control));
  // Qt finds any widget by the empty name, and the parts of its widgets by names of its own.
  if (widget && widget->objectName().startsWith("ib")) return widget;
  return Failure{"The panel has no control " + quotedInShort(control) + "."};
}

template <class Kind>
Result<Kind*> UserHand::workable(const std::string& control, const std::string& kind) const {
  const Result<QWidget*> found = find(control);
  if (!found) return Failure{found.reason()};
  Kind* widget = qobject_cast<Kind*>(*found);
  if (!widget) return Failure{"The control " + quotedInShort(control) + " is no " + kind + "."};
  const std::string why = hindrance(*widget);
  if (!why.empty())
    return Failure{"Nobody can work " + quotedInShort(control) + " now: " + why + "."};
  return widget;
}

Result<bool> UserHand::choose(const std::string& control, long long index) const {
  const auto popUp = workable<QComboBox>(control, "pop-up");
  if (!popUp) return Failure{popUp.reason()};
  if (index < 0 || index >= (*popUp)->count())
    return outOfRange(control, "item", index, 0, (*popUp)->count() - 1);
  (*popUp)->setCurrentIndex(static_cast<int>(index));
  emit(*popUp)->activated(static_cast<int>(index));
  return true;
}

Result<bool> UserHand::click(const std::string& control) const {
  const auto button = workable<QAbstractButton>(control, "button");
  if (!button) return Failure{button.reason()};
  (*button)->click();
  return true;
}

Result<bool> UserHand::slide(const std::string& control, long long value) const {
  const auto slider = workable<QSlider>(control, "slider");
  if (!slider) return Failure{slider.reason()};
  const int first = (*slider)->minimum();
  const int last = (*slider)->maximum();
  if (value < first || value > last) return outOfRange(control, "value", value, first, last);
  const int position = static_cast<int>(value);
  // Moving the knob runs the action; a knob that is there already has to be told.
  if ((*slider)->sliderPosition() != position)
    (*slider)->setSliderPosition(position);
  else
    (*slider)->triggerAction(QAbstractSlider::SliderMove);
  return true;
}

}  // namespace tavrin
