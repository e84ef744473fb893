#pragma once

#include <string>

#include "platform/text/Result.h"

class QWidget;

namespace tavrin {

// Works the controls of a panel as a person does: only those that are visible and enabled, and the
// control's action runs afterwards, even if nothing changed. Each function gives the reason if a
// person could not do it; nothing has happened then.
class UserHand {
 public:
  // The widget of the panel whose controls are worked; null if it has no view yet.
  explicit UserHand(QWidget* panelWidget) : panel(panelWidget) {}

  // Picks an item of a pop-up by its place, from 0.
  Result<bool> choose(const std::string& control, long long index) const;
  // Clicks a check box, a radio button or the disclosure button.
  Result<bool> click(const std::string& control) const;
  // Moves a slider to a value.
  Result<bool> slide(const std::string& control, long long value) const;

 private:
  Result<QWidget*> find(const std::string& control) const;
  template <class Kind>
  Result<Kind*> workable(const std::string& control, const std::string& kind) const;

  QWidget* panel;
};

}  // namespace tavrin
