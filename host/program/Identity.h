#pragma once

namespace tavrin {

// Tells Qt and the desktop which program this is: its name, its icon and its desktop file. Called
// once the QApplication is there.
void identifyProgram();

}  // namespace tavrin
