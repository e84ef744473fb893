#pragma once

#include <string>

#include "replay/commands/Json.h"

class QWidget;

namespace tavrin {

// A message window's short name: "MsgOne" for the window "ibMsgOneWindow", "Instructions" for the
// one with the instructions.
std::string windowName(const QWidget& window);

// What a message window shows: its title, and either its text (Instructions) or its labels and
// buttons.
Json windowContents(const QWidget& window);

}  // namespace tavrin
