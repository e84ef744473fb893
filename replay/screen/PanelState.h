#pragma once

#include "replay/commands/Json.h"

class QWidget;

namespace tavrin {

// What a person sees of a panel, {"controls": ..., "views": ...}: every control by its object name,
// and the views that make the panel's shape.
Json panelState(const QWidget& panel);

}  // namespace tavrin
