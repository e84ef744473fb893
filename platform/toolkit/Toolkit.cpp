#include "platform/toolkit/Toolkit.h"

namespace tavrin {
namespace {

class NullToolkit final : public Toolkit {
 public:
  std::shared_ptr<LoadedInterface> loadInterface(const Bundle&, const std::string&,
                                                 InterfaceBindings) override {
    return nullptr;
  }
  bool runModalForWindow(Window&) override { return false; }
  void stopModal() override {}
};

Toolkit*& installedToolkit() {
  static Toolkit* toolkit = nullptr;
  return toolkit;
}

}  // namespace

Toolkit& Toolkit::current() {
  static NullToolkit none;
  return installedToolkit() != nullptr ? *installedToolkit() : none;
}

void Toolkit::install(Toolkit* toolkit) { installedToolkit() = toolkit; }

}  // namespace tavrin
