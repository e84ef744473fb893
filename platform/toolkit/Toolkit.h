#pragma once

#include <memory>
#include <string>

#include "platform/toolkit/InterfaceBindings.h"
#include "platform/toolkit/LoadedInterface.h"

// The controls of a panel and its message windows, as the core sees them. A toolkit library
// implements them on real widgets; the core never meets a widget.
//
// Everything here is used on the user-interface thread only. Objects belong to the interface that
// they were loaded with; the core reaches them through outlets and never deletes one.

namespace tavrin {

class Bundle;

// Loads interface files and runs windows modally. A program that shows panels installs one.
class Toolkit {
 public:
  virtual ~Toolkit() = default;

  // The toolkit of this process; before a program has installed one, a toolkit that can load
  // nothing.
  static Toolkit& current();
  // Borrowed; must outlive every panel. Null takes the toolkit away.
  static void install(Toolkit* toolkit);

  // Makes the objects of the bundle's interface file of that name (without ".ui") and connects
  // the outlets. Null if there is no such file or it cannot be read; the outlets then stay as they
  // were.
  virtual std::shared_ptr<LoadedInterface> loadInterface(const Bundle& bundle,
                                                         const std::string& name,
                                                         InterfaceBindings bindings) = 0;

  // Shows the window above all others of the program and handles events until stopModal. False if
  // the run was not stopped but the program is ending, or if the window cannot be shown: the caller
  // then shows nothing more and returns.
  virtual bool runModalForWindow(Window& window) = 0;

  // Ends the innermost run: the last to start that has not returned. Does nothing if there is none.
  // Stopping a run twice is the same as stopping it once: the runs around it go on.
  virtual void stopModal() = 0;
};

}  // namespace tavrin
