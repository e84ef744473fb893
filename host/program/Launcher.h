#pragma once

#include <string>

// A person who starts the program from a menu, a file manager or a key sees no standard error:
// launchers connect it to a log, a file or nothing. Why the program refused would stay unknown.

namespace tavrin {

// Whether there is a screen, and neither a terminal nor anybody at the other end of a pipe, who
// would read what the program says. A script that has a screen, no terminal and none of its
// standard streams in a pipe cannot be told from a launcher.
bool isStartedFromLauncher();

// Shows the sentence in a window of its own process, and returns at once: whoever waits for the
// program, such as a script taken for a launcher, does not wait for the window. Called before this
// process has threads or a connection to the screen.
void showInOwnProcess(const std::string& sentence);

}  // namespace tavrin
